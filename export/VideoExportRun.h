#pragma once

#include <QString>
#include <QStringList>

// One ffmpeg run of a video export: one camera of the recording copied into one file.
struct VideoExportRun {
    int channel = 0;       // 0 front, 1 and 2 rear
    QString input;         // the file ffmpeg reads
    QString output;        // the file it writes
    QStringList arguments; // ffmpeg's arguments for this copy, output last
};
