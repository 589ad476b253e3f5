#include "CardFolders.h"

#include "StatusLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char* kConfigFile = "config.bin";

QStringList filesOf(const QDir& folder) {
    return folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted);
}

bool sameBytes(const QString& a, const QString& b) {
    QFile first(a);
    QFile second(b);
    return first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) &&
           first.readAll() == second.readAll();
}

// Removes each entry of folder; a link (also one to a folder) goes as a link.
void removeEntries(const QDir& folder) {
    const QFileInfoList entries = folder.entryInfoList(QDir::Dirs | QDir::Files | QDir::Hidden |
                                                       QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        if (entry.isDir() && !entry.isSymLink())
            CardFolders::removeFolder(entry.absoluteFilePath());
        else
            QFile::remove(entry.absoluteFilePath());
    }
}

} // namespace

bool CardFolders::copyFolder(const QString& source, const QString& destination, int mode) {
    QDir target(destination);
    if (!target.exists()) {
        if (!QDir().mkpath(destination)) {
            logError("Failed to create destination directory!");
            return false;
        }
    } else {
        for (const QString& file : filesOf(target))
            QFile::remove(target.filePath(file));
    }
    const QDir from(source);
    if (mode == ConfigFileOnly) {
        if (!QFileInfo(from.filePath(kConfigFile)).isFile()) {
            logError("'config.bin' not found in the source directory.");
            return false;
        }
        if (!QFile::copy(from.filePath(kConfigFile), target.filePath(kConfigFile))) {
            logError("'config.bin' copy failed.");
            return false;
        }
        logInfo("Copy Success!!!!!");
        return true;
    }
    for (const QString& file : filesOf(from)) {
        if (!QFile::copy(from.filePath(file), target.filePath(file))) {
            logError("Failed to File Copy!");
            return false;
        }
    }
    return true;
}

bool CardFolders::holdsCopy(const QString& source, const QString& destination, int mode) {
    const QDir from(source);
    const QDir to(destination);
    const QStringList files =
        mode == ConfigFileOnly
            ? (QFileInfo(from.filePath(kConfigFile)).isFile() ? QStringList{kConfigFile}
                                                              : QStringList())
            : filesOf(from);
    for (const QString& file : files) {
        if (!sameBytes(from.filePath(file), to.filePath(file)))
            return false;
    }
    return true;
}

bool CardFolders::removeFolder(const QString& folder) {
    if (!removeContents(folder))
        return false;
    QDir().rmdir(folder);
    return true;
}

bool CardFolders::removeContents(const QString& root) {
    QDir dir(root);
    if (!dir.exists()) {
        logDebug("Directory does not exist.");
        return false;
    }
    removeEntries(dir);
    return true;
}
