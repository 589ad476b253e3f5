#pragma once

#include <QDateTime>
#include <QString>

// When an MP4 or QuickTime file says it was made: the creation time of its movie header.
// Numbered action-camera files ("GH010123.MP4") have no date in their name; this is theirs.
// Reads a few box headers and the movie header only.
class ContainerClock {
public:
    // The creation time as the camera's clock read it (no zone: cameras write their local
    // time there); invalid when the file has none or is no MP4.
    static QDateTime creationTime(const QString& path);
};
