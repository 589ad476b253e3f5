#include "JsonToConfig.h"

#include "DeviceJson.h"

#include <QCoreApplication>

QString JsonToConfig::descriptionPath;

JsonToConfig::JsonToConfig() {
    openFile();
}

QString JsonToConfig::filePath() {
    if (!descriptionPath.isEmpty())
        return descriptionPath;
    return QCoreApplication::applicationDirPath() + "/Resources/json/configStr.json";
}

bool JsonToConfig::openFile() {
    m_model = nullptr;
    m_open = DeviceJson::load(filePath(), m_document);
    return m_open;
}

bool JsonToConfig::setModel(const QString& model) {
    const rapidjson::Value* found = DeviceJson::member(m_document, model);
    if (found == nullptr || !found->IsObject())
        return false;
    m_model = found;
    return true;
}

ConfigGroups JsonToConfig::getItem() const {
    ConfigGroups groups;
    if (m_model == nullptr)
        return groups;
    for (auto group = m_model->MemberBegin(); group != m_model->MemberEnd(); ++group) {
        ConfigGroup parsed;
        parsed.name = DeviceJson::text(group->name);
        if (group->value.IsArray()) {
            for (const rapidjson::Value& item : group->value.GetArray()) {
                ConfigGroup::Item parsedItem;
                parsedItem.name = DeviceJson::stringMember(item, "name");
                parsedItem.width = DeviceJson::intMember(item, "type", 0);
                parsed.items.append(parsedItem);
            }
        }
        groups.append(parsed);
    }
    return groups;
}
