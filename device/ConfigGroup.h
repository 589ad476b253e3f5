#pragma once

#include <QString>
#include <QVector>

// One setting group of a camera's config.bin: its name and its items in file order. An
// item occupies exactly `width` bytes of the group's 128-byte block.
struct ConfigGroup {
    struct Item {
        QString name;
        qint32 width = 0;
        double value = 0;
    };

    QString name;
    QVector<Item> items;
};

using ConfigGroups = QVector<ConfigGroup>;
