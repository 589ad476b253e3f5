#include "JsonToSetting.h"

#include "DeviceJson.h"
#include "StatusLog.h"

#include <QCoreApplication>

QString JsonToSetting::descriptionPath;

QString JsonToSetting::filePath() {
    if (!descriptionPath.isEmpty())
        return descriptionPath;
    return QCoreApplication::applicationDirPath() + "/Resources/json/Setting.json";
}

void JsonToSetting::openFile() {
    logDebug("JsonToSetting::openFile");
    // The remembered model stays: a later setModel() with an unknown name keeps it.
    DeviceJson::load(filePath(), m_document);
}

void JsonToSetting::setModel(const QString& model) {
    logDebug("JsonToSetting::setModel");
    const rapidjson::Value* found = DeviceJson::member(m_document, model);
    if (found == nullptr || !found->IsObject())
        return;
    m_model = model;
}

SettingTrees JsonToSetting::getItem() const {
    logDebug("JsonToSetting::getItem");
    SettingTrees trees;
    const rapidjson::Value* model =
        m_model.isNull() ? nullptr : DeviceJson::member(m_document, m_model);
    if (model == nullptr)
        return trees;
    for (auto tree = model->MemberBegin(); tree != model->MemberEnd(); ++tree) {
        SettingTree parsedTree;
        parsedTree.name = DeviceJson::text(tree->name);
        if (tree->value.IsObject()) {
            for (auto setting = tree->value.MemberBegin(); setting != tree->value.MemberEnd();
                 ++setting) {
                const rapidjson::Value& value = setting->value;
                SettingRecord record;
                record.name = DeviceJson::text(setting->name);
                record.type = DeviceJson::intMember(value, "type", 0);
                record.row = DeviceJson::intMember(value, "row", 0);
                const rapidjson::Value* enable = DeviceJson::member(value, "enable");
                record.enable = enable != nullptr && enable->IsBool() && enable->GetBool();
                record.initial = DeviceJson::intMember(value, "initial", -1);
                record.text = DeviceJson::stringMember(value, "text");
                record.link = DeviceJson::stringMember(value, "link");
                const rapidjson::Value* items = DeviceJson::member(value, "item");
                if (items != nullptr && items->IsArray()) {
                    for (const rapidjson::Value& item : items->GetArray())
                        record.choices.append({DeviceJson::stringMember(item, "name"),
                                               DeviceJson::intMember(item, "value", 0)});
                }
                parsedTree.settings.append(record);
            }
        }
        trees.append(parsedTree);
    }
    return trees;
}

bool JsonToSetting::hasTree(const char* name) const {
    const rapidjson::Value* model =
        m_model.isNull() ? nullptr : DeviceJson::member(m_document, m_model);
    return model != nullptr && DeviceJson::member(*model, name) != nullptr;
}

bool JsonToSetting::isCameraTreeExist() const {
    logDebug("JsonToSetting::isCameraTreeExist");
    return hasTree("Camera");
}

bool JsonToSetting::isVoltageTreeExist() const {
    logDebug("JsonToSetting::isVoltageTreeExist");
    return hasTree("Battery Protection");
}

bool JsonToSetting::isMemoryTreeExist() const {
    logDebug("JsonToSetting::isMemoryTreeExist");
    return hasTree("Memory");
}

bool JsonToSetting::isSensitiveTreeExist() const {
    logDebug("JsonToSetting::isSensitiveTreeExist");
    return hasTree("Sensitive");
}

bool JsonToSetting::isSystemTreeExist() const {
    logDebug("JsonToSetting::isSystemTreeExist");
    return hasTree("System");
}
