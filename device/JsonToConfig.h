#pragma once

#include "ConfigGroup.h"

#include <QString>

#include <rapidjson/document.h>

// The per-model layout of config.bin's groups, from Resources/json/configStr.json: the root
// object names models by their whole model text; each model names its groups in file order,
// and each group lists its items as {"name": ..., "type": width in bytes}.
class JsonToConfig {
public:
    // Opens the description (see openFile()).
    JsonToConfig();

    // Loads the description file; false when it is missing or not a JSON object.
    bool openFile();
    bool isOpen() const { return m_open; }

    // Remembers the model when the description has a member of exactly that name.
    bool setModel(const QString& model);

    // The remembered model's groups with every value 0; empty when none is remembered.
    ConfigGroups getItem() const;

    // Resources/json/configStr.json under the program folder, unless descriptionPath is set.
    static QString filePath();
    // Set by tests that need layouts no shipped camera has.
    static QString descriptionPath;

private:
    rapidjson::Document m_document;
    const rapidjson::Value* m_model = nullptr;
    bool m_open = false;
};
