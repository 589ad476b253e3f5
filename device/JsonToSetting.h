#pragma once

#include "SettingRecord.h"

#include <QString>

#include <rapidjson/document.h>

// Which settings the settings dialog shows for a camera, from Resources/json/Setting.json:
// the root names models by their whole model text; a model names its setting trees (pages)
// in display order, a tree its settings, and a setting its control ("type"), "row",
// "enable", and optionally "initial", "text", "link" and the choices ("item").
class JsonToSetting {
public:
    // Loads the description when the file exists; otherwise there are no models.
    void openFile();
    // Remembers the model when the description has a member of exactly that name; any other
    // name leaves the earlier choice in place.
    void setModel(const QString& model);
    // The remembered model's trees; empty when none is remembered.
    SettingTrees getItem() const;

    bool isCameraTreeExist() const;
    bool isVoltageTreeExist() const; // the "Battery Protection" tree
    bool isMemoryTreeExist() const;
    bool isSensitiveTreeExist() const;
    bool isSystemTreeExist() const;

    // Resources/json/Setting.json under the program folder, unless descriptionPath is set.
    static QString filePath();
    // Set by tests that need descriptions no shipped camera has.
    static QString descriptionPath;

    // The dialog reads the description this long after the card was read, giving the card
    // reader time to settle.
    static constexpr int kReadDelayMs = 250;

private:
    bool hasTree(const char* name) const;

    rapidjson::Document m_document;
    QString m_model;
};
