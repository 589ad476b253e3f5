#pragma once

#include "RemovableDrives.h"

#include <QByteArray>
#include <QString>
#include <QVector>

// Memory cards for tests. No removable device is plugged in where the tests run, so a card
// is a folder that the drive tables handed to the program (a mountinfo file and a small
// sysfs tree, as Linux has them) describe as a mounted removable drive.
class CardFixture {
public:
    explicit CardFixture(const QString& base);

    // A drive mounted at base/<folder> from the block device file source (base/dev/<folder>
    // when empty). A disk named "mmcblk..." stands for a computer's own card slot.
    QString addDrive(const QString& folder, bool removable, const QString& label = QString(),
                     const QString& source = QString(), const QString& disk = QString());
    // Mounts a sub-folder of a drive again elsewhere, as a bind mount does.
    void addBindMount(const QString& folder, const QString& ofDrive);

    platform::DriveTables tables() const;
    // Makes the program read these tables.
    void install() const;

    // config.bin built from its layout alone: the five header blocks, the group blocks and
    // the check byte that makes every byte from offset 64 on sum to zero.
    static QByteArray configBin(const QString& model, const QVector<QByteArray>& groups,
                                const QString& identity = "DC-0000001234",
                                const QString& version = "1.02.07");
    // Group blocks holding one value per item, little-endian in the item's width; items
    // beyond the values given hold 0.
    static QVector<QByteArray> blocks(const QVector<QVector<int>>& widths,
                                      const QVector<QVector<qint64>>& values);
    // The item widths of a model in a configStr.json, read with Qt's own JSON reader.
    static QVector<QVector<int>> layout(const QString& configStr, const QString& model);
    static QString shippedJson(const QString& name);
    // config.bin of a shipped model (its layout in the shipped configStr.json).
    static QByteArray shippedConfigBin(const QString& model,
                                       const QVector<QVector<qint64>>& values = {});

    static bool writeFile(const QString& path, const QByteArray& bytes);
    static QByteArray readFile(const QString& path);

private:
    QString m_base;
    QString m_tables;
    int m_devices = 0;
    QByteArray m_mountInfo;
};
