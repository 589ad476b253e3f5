#include "SnapshotWriter.h"

#include "AppGlobals.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QSaveFile>

QString SnapshotWriter::fileName(const QString& folder, const QString& recordingName, int channel,
                                 double position) {
    const QString number = QString::number(position, 'g', 6);
    const int point = number.indexOf('.');
    const QString digits = point >= 0 ? number.mid(point + 1) : QStringLiteral("0");
    return folder + '/' + recordingName.left(recordingName.size() - 4) + '_' +
           QString::number(channel + 1) + '_' + digits + ".jpg";
}

QString SnapshotWriter::defaultFolder() {
    return AppGlobals::defaultSnapshotFolder();
}

bool SnapshotWriter::save(const QImage& image, const QString& path, QString* error) {
    const auto fail = [error](const QString& why) {
        if (error != nullptr)
            *error = why;
        return false;
    };
    if (image.isNull())
        return fail(QCoreApplication::translate("SnapshotWriter", "The camera showed no picture."));
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return fail(QCoreApplication::translate("SnapshotWriter", "The folder cannot be made."));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(file.errorString());
    QImageWriter writer(&file, "jpg");
    writer.setQuality(95);
    if (!writer.write(image)) {
        file.cancelWriting();
        return fail(writer.errorString());
    }
    if (!file.commit())
        return fail(file.errorString());
    return true;
}
