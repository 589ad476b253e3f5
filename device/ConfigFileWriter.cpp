#include "ConfigFileWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

std::function<void(const QString&)> ConfigFileWriter::afterReplaceHook;

bool ConfigFileWriter::commit(const QString& path, const QByteArray& bytes, QString* error) {
    // QSaveFile writes a file beside the target, flushes it to the device and renames it over
    // the target, so the target is always either the old or the new file as a whole.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

bool ConfigFileWriter::holds(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

ConfigFileWriter::Result ConfigFileWriter::replace(const QString& path, const QByteArray& image,
                                                   QString* error) {
    QString ignored;
    if (error == nullptr)
        error = &ignored;
    QFile current(path);
    if (!QFileInfo(path).isFile()) {
        *error = QStringLiteral("%1 does not exist").arg(path);
        return NothingWritten;
    }
    // The camera marks a configuration it must keep as read-only; that holds for every user,
    // also for one whom the system would let write it anyway.
    if (!(QFile::permissions(path) & QFileDevice::WriteOwner)) {
        *error = QStringLiteral("%1 is read-only").arg(path);
        return NothingWritten;
    }
    if (!current.open(QIODevice::ReadOnly)) {
        *error = current.errorString();
        return NothingWritten;
    }
    const QByteArray previous = current.readAll();
    current.close();

    const QByteArray content = image + previous.mid(image.size());
    if (!commit(path, content, error))
        return NothingWritten;
    if (afterReplaceHook)
        afterReplaceHook(path);
    if (holds(path, content))
        return Written;

    *error = QStringLiteral("%1 does not hold what was written").arg(path);
    QString restoreError;
    if (commit(path, previous, &restoreError) && holds(path, previous))
        return PreviousRestored;
    *error += QStringLiteral("; the previous bytes could not be put back: %1").arg(restoreError);
    return RestoreFailed;
}
