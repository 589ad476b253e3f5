#include "CardDrives.h"

#include <QDir>
#include <QFileInfo>

namespace {

// TAVORIC_DRIVE_TABLES may name a folder holding "mountinfo", "sys" and "by-label" to read in
// place of the system's, so that the card dialogs can be tried on a machine without a card
// reader (Linux only).
platform::DriveTables tablesFromEnvironment() {
    platform::DriveTables tables;
    const QByteArray folder = qgetenv("TAVORIC_DRIVE_TABLES");
    if (!folder.isEmpty()) {
        tables.mountInfo = (folder + "/mountinfo").toStdString();
        tables.sysfs = (folder + "/sys").toStdString();
        tables.labels = (folder + "/by-label").toStdString();
    }
    return tables;
}

// The same folder written two ways ("E:" and "E:/", a link and its target) compares equal.
QString comparable(const QString& path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return QDir::cleanPath(canonical.isEmpty() ? path : canonical);
}

} // namespace

platform::DriveTables CardDrives::tables = tablesFromEnvironment();
QString CardDrives::s_validatedRoot;

QVector<CardDrives::Drive> CardDrives::list() {
    QVector<Drive> drives;
    for (const platform::RemovableDrive& found : platform::listRemovableDrives(tables)) {
        Drive drive;
        drive.root = QString::fromLocal8Bit(found.root.c_str());
        drive.name = QString::fromLocal8Bit(found.name.c_str());
        drive.totalBytes = found.totalBytes;
        drive.freeBytes = found.freeBytes;
        drive.device = QString::fromLocal8Bit(found.device.c_str());
        drives.append(drive);
    }
    return drives;
}

QString CardDrives::sizeText(quint64 bytes) {
    const double gigabytes = double(bytes) / 1024.0 / 1024.0 / 1024.0;
    return QString::number(gigabytes, 'f', 1) + QStringLiteral("GB");
}

void CardDrives::setValidatedRoot(const QString& root) {
    s_validatedRoot = root;
}

QString CardDrives::validatedRoot() {
    return s_validatedRoot;
}

void CardDrives::clearValidatedRoot() {
    s_validatedRoot.clear();
}

bool CardDrives::isSafeCardRoot(const QString& root) {
    if (root.trimmed().isEmpty() || s_validatedRoot.isEmpty())
        return false;
    const QString path = comparable(root);
    // The file system's root is never a card's, even on a system booted from one.
    if (path != comparable(s_validatedRoot) || path == QLatin1String("/"))
        return false;
    const QString home = comparable(QDir::homePath());
    if (home == path || home.startsWith(path + '/'))
        return false;
    for (const Drive& drive : list()) {
        if (comparable(drive.root) == path)
            return true;
    }
    return false;
}
