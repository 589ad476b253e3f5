#pragma once

#include <QDateTime>
#include <QString>

// What the name of another camera's recording says, by one of NameSchemes' layouts.
struct ForeignName {
    bool valid = false;
    int scheme = -1;       // index in NameSchemes::table()
    QDateTime start;       // the recording's start as the name gives it; invalid without a date
    int type = 0;          // recording type code 0-4 (RecordingName::Type)
    int channel = -1;      // 0 front, 1 rear, 2 interior; -1 when the name has no channel
    int channelStart = -1; // where the channel letter or digit is in the name
    QString channelToken;  // as written: "F", "r", "2"
};
