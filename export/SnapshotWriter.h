#pragma once

#include <QString>

class QImage;

// Still pictures of a recording's cameras as JPEG files, named after the recording, the
// camera and the position in the recording they were taken at.
class SnapshotWriter {
public:
    // folder + "/" + the recording's name without its four-character extension + "_" +
    // camera number (channel + 1) + "_" + the digits after the point of the position
    // (0..1, six significant digits) + ".jpg". A position without a point gives "0".
    static QString fileName(const QString& folder, const QString& recordingName, int channel,
                            double position);

    // Where snapshots go until the user chooses a folder: the pictures folder + "/ZENTA".
    static QString defaultFolder();

    // Writes the image; an existing file of that name is replaced only once the new one is
    // complete. On failure returns false and says why in error.
    static bool save(const QImage& image, const QString& path, QString* error);
};
