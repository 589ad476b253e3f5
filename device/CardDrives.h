#pragma once

#include "RemovableDrives.h"

#include <QString>
#include <QVector>

// The memory cards the system has mounted, and the one card root the program may change.
//
// Only the root that the card dialog opened (a removable drive holding CONFIG/config.bin
// whose configuration it read) may be written, formatted or emptied, and only while it is
// still mounted as a removable drive. A home folder, a fixed disk, the file system's root or
// an empty path never qualify, whatever a caller passes.
class CardDrives {
public:
    struct Drive {
        QString root;
        QString name;
        quint64 totalBytes = 0;
        quint64 freeBytes = 0;
        QString device;
    };

    // Where Linux reads its mount and device tables; tests give trees of their own.
    static platform::DriveTables tables;

    static QVector<Drive> list();

    // A byte count in gigabytes with one decimal, as "29.7GB".
    static QString sizeText(quint64 bytes);

    static void setValidatedRoot(const QString& root);
    static QString validatedRoot();
    // Forgets the opened card (it was removed, or its configuration could not be read).
    static void clearValidatedRoot();

    // Whether root is the opened card's root and may be changed now.
    static bool isSafeCardRoot(const QString& root);

private:
    static QString s_validatedRoot;
};
