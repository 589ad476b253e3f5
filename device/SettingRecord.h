#pragma once

#include <QString>
#include <QVector>

// One setting of a camera as Resources/json/Setting.json describes it: the kind of control
// that shows it, where, whether the user may change it, its factory value and its choices.
struct SettingRecord {
    struct Choice {
        QString name;  // the label shown
        int value = 0; // the value stored in config.bin
    };

    QString name;
    qint32 type = 0;
    qint32 row = 0;
    bool enable = false;
    qint32 initial = -1; // -1: no factory value
    QString text;
    QString link;
    QVector<Choice> choices;
};

// A page of settings ("Camera", "Battery Protection", ...) in display order.
struct SettingTree {
    QString name;
    QVector<SettingRecord> settings;
};

using SettingTrees = QVector<SettingTree>;
