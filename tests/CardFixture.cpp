#include "CardFixture.h"

#include "CardDrives.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// mountinfo writes a blank as "\040".
QByteArray escaped(const QString& path) {
    return path.toLocal8Bit().replace(" ", "\\040");
}

} // namespace

CardFixture::CardFixture(const QString& base) : m_base(base), m_tables(base + "/tables") {
    QDir().mkpath(m_tables + "/sys/dev/block");
    QDir().mkpath(m_tables + "/by-label");
    QDir().mkpath(m_base + "/dev");
    writeFile(m_tables + "/mountinfo", "22 1 0:21 / /proc rw - proc proc rw\n");
    m_mountInfo = readFile(m_tables + "/mountinfo");
}

QString CardFixture::addDrive(const QString& folder, bool removable, const QString& label,
                              const QString& source, const QString& disk) {
    const int index = ++m_devices;
    const QString mountPoint = m_base + '/' + folder;
    QDir().mkpath(mountPoint);
    const QString device = source.isEmpty() ? m_base + "/dev/" + folder : source;
    if (!QFileInfo::exists(device))
        writeFile(device, QByteArray());
    const QString diskName = disk.isEmpty() ? QStringLiteral("sd%1").arg(QChar('a' + index)) : disk;
    const QString partition = diskName + (diskName.startsWith("mmcblk") ? "p1" : "1");
    const QString number = QStringLiteral("8:%1").arg(index * 16 + 1);
    const QString diskFolder =
        m_tables + "/sys/devices/usb" + QString::number(index) + "/block/" + diskName;
    QDir().mkpath(diskFolder + '/' + partition);
    writeFile(diskFolder + "/removable", removable ? "1\n" : "0\n");
    writeFile(diskFolder + '/' + partition + "/partition", "1\n");
    QFile::link("../../devices/usb" + QString::number(index) + "/block/" + diskName + '/' +
                    partition,
                m_tables + "/sys/dev/block/" + number);
    if (!label.isEmpty())
        QFile::link(device, m_tables + "/by-label/" + QString(label).replace(' ', "\\x20"));
    m_mountInfo += QStringLiteral("%1 1 %2 / ").arg(30 + index).arg(number).toLocal8Bit() +
                   escaped(mountPoint) + " rw,relatime shared:" + QByteArray::number(index) +
                   " - vfat " + escaped(device) + " rw,fmask=0022\n";
    writeFile(m_tables + "/mountinfo", m_mountInfo);
    return mountPoint;
}

void CardFixture::addBindMount(const QString& folder, const QString& ofDrive) {
    const QString mountPoint = m_base + '/' + folder;
    QDir().mkpath(mountPoint);
    // Same device number as the drive, but only a folder of it.
    const QList<QByteArray> lines = m_mountInfo.split('\n');
    for (const QByteArray& line : lines) {
        if (line.contains(" / " + escaped(m_base + '/' + ofDrive) + ' ')) {
            const QList<QByteArray> fields = line.split(' ');
            m_mountInfo += "99 1 " + fields[2] + " /sub " + escaped(mountPoint) + " rw - vfat " +
                           fields[fields.size() - 2] + " rw\n";
        }
    }
    writeFile(m_tables + "/mountinfo", m_mountInfo);
}

platform::DriveTables CardFixture::tables() const {
    platform::DriveTables tables;
    tables.mountInfo = QString(m_tables + "/mountinfo").toStdString();
    tables.sysfs = QString(m_tables + "/sys").toStdString();
    tables.labels = QString(m_tables + "/by-label").toStdString();
    return tables;
}

void CardFixture::install() const {
    CardDrives::tables = tables();
}

QByteArray CardFixture::configBin(const QString& model, const QVector<QByteArray>& groups,
                                  const QString& identity, const QString& version) {
    QByteArray file(160, '\0');
    const auto put = [&file](int block, const QByteArray& text) {
        file.replace(block * 32, text.size(), text);
    };
    put(0, identity.toLatin1());
    put(1, QByteArray("\x11\x22opaque-2", 10));
    put(2, model.toLatin1());
    put(3, QByteArray("\x7f\x01opaque-4", 10));
    put(4, version.toLatin1());
    for (const QByteArray& group : groups)
        file += group.leftJustified(128, '\0', true);
    unsigned sum = 0;
    for (int i = 64; i < file.size(); ++i)
        sum += static_cast<unsigned char>(file[i]);
    file += static_cast<char>((256 - sum % 256) % 256);
    return file;
}

QVector<QByteArray> CardFixture::blocks(const QVector<QVector<int>>& widths,
                                        const QVector<QVector<qint64>>& values) {
    QVector<QByteArray> result;
    for (int g = 0; g < widths.size(); ++g) {
        QByteArray block;
        for (int i = 0; i < widths[g].size(); ++i) {
            // Items without a value hold 0.
            qint64 value = g < values.size() && i < values[g].size() ? values[g][i] : 0;
            for (int b = 0; b < widths[g][i]; ++b, value >>= 8)
                block += static_cast<char>(value & 0xFF);
        }
        result << block.leftJustified(128, '\0', true);
    }
    return result;
}

QVector<QVector<int>> CardFixture::layout(const QString& configStr, const QString& model) {
    QVector<QVector<int>> widths;
    const QJsonObject groups =
        QJsonDocument::fromJson(readFile(configStr)).object().value(model).toObject();
    // Qt's object sorts its keys; the file's order comes from reading the names in order.
    const QByteArray text = readFile(configStr);
    const int start = text.indexOf('"' + model.toUtf8() + '"');
    QVector<QPair<int, QString>> ordered;
    for (const QString& name : groups.keys())
        ordered.append({text.indexOf('"' + name.toUtf8() + "\": [", start), name});
    std::sort(ordered.begin(), ordered.end());
    for (const auto& [position, name] : ordered) {
        Q_UNUSED(position)
        QVector<int> group;
        for (const QJsonValue& item : groups.value(name).toArray())
            group << item.toObject().value("type").toInt();
        widths << group;
    }
    return widths;
}

QString CardFixture::shippedJson(const QString& name) {
    return QCoreApplication::applicationDirPath() + "/Resources/json/" + name;
}

QByteArray CardFixture::shippedConfigBin(const QString& model,
                                         const QVector<QVector<qint64>>& values) {
    return configBin(model, blocks(layout(shippedJson("configStr.json"), model), values));
}

bool CardFixture::writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

QByteArray CardFixture::readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
