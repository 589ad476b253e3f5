#include "DeviceJson.h"

#include <QFile>
#include <QFileInfo>

bool DeviceJson::load(const QString& path, rapidjson::Document& document) {
    document.SetObject();
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    rapidjson::Document parsed;
    parsed.Parse(bytes.constData(), static_cast<size_t>(bytes.size()));
    if (parsed.HasParseError() || !parsed.IsObject())
        return false;
    document.Swap(parsed);
    return true;
}

const rapidjson::Value* DeviceJson::member(const rapidjson::Value& object, const QString& name) {
    return member(object, name.toUtf8().constData());
}

const rapidjson::Value* DeviceJson::member(const rapidjson::Value& object, const char* name) {
    if (!object.IsObject())
        return nullptr;
    const auto found = object.FindMember(name);
    return found == object.MemberEnd() ? nullptr : &found->value;
}

QString DeviceJson::text(const rapidjson::Value& string) {
    if (!string.IsString())
        return QString();
    return QString::fromUtf8(string.GetString(), static_cast<int>(string.GetStringLength()));
}

QString DeviceJson::stringMember(const rapidjson::Value& object, const char* name) {
    const rapidjson::Value* value = member(object, name);
    return value != nullptr ? text(*value) : QString();
}

int DeviceJson::intMember(const rapidjson::Value& object, const char* name, int fallback) {
    const rapidjson::Value* value = member(object, name);
    return value != nullptr && value->IsInt() ? value->GetInt() : fallback;
}
