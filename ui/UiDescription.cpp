#include "UiDescription.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <rapidjson/istreamwrapper.h>

#include <fstream>

namespace {

constexpr int kMaximumWidthUnlimited = 7680;
constexpr int kMaximumHeightUnlimited = 4320;

using Value = rapidjson::Value;

const Value* member(const Value& object, const char* name) {
    if (!object.IsObject())
        return nullptr;
    const auto it = object.FindMember(name);
    return it == object.MemberEnd() ? nullptr : &it->value;
}

void readInt(const Value& object, const char* name, int& out) {
    const Value* value = member(object, name);
    if (value != nullptr && value->IsInt())
        out = value->GetInt();
}

QString readString(const Value* value) {
    return QString::fromUtf8(value->GetString(), static_cast<int>(value->GetStringLength()));
}

void readSize(const Value* value, QSize& out) {
    if (value == nullptr || !value->IsObject())
        return;
    int width = out.width();
    int height = out.height();
    readInt(*value, "width", width);
    readInt(*value, "height", height);
    out = QSize(width, height);
}

void readStates(const Value* value, UiItem::StateStrings& out) {
    static const char* const keys[UiItem::StateCount] = {"Default", "Normal", "Select", "Hover",
                                                         "Disable"};
    if (value == nullptr || !value->IsObject())
        return;
    for (int i = 0; i < UiItem::StateCount; ++i) {
        const Value* state = member(*value, keys[i]);
        if (state != nullptr && state->IsString())
            out[i] = readString(state);
    }
}

bool isTrue(const Value* value) {
    return value != nullptr && value->IsBool() && value->GetBool();
}

} // namespace

UiDescription::UiDescription()
    : m_jsonFolder(QCoreApplication::applicationDirPath() + "/Resources/json/"),
      m_imageFolder(QCoreApplication::applicationDirPath() + "/Resources/image/"),
      m_scaleRules{"Fixed", "Minimum", "Maximum", "Expanding", "Movable"},
      m_weightNames{"Thin",     "ExtraLight", "Light",     "Normal", "Medium",
                    "DemiBold", "Bold",       "ExtraBold", "Black"},
      m_weightValues{0, 12, 25, 50, 57, 63, 75, 81, 87} {
    m_document.SetObject();
}

bool UiDescription::open(const QString& viewName) {
    m_viewName = viewName;
    m_document.SetObject();
    const QString path = m_jsonFolder + viewName + ".json";
    if (!QFileInfo(path).isFile())
        return false;
    std::ifstream stream(QFile::encodeName(path).constData(), std::ios::binary);
    if (!stream)
        return false;
    rapidjson::IStreamWrapper wrapper(stream);
    m_document.ParseStream(wrapper);
    if (m_document.HasParseError() || !m_document.IsObject()) {
        m_document.SetObject();
        return false;
    }
    return true;
}

int UiDescription::scaleRule(const QString& name) const {
    return m_scaleRules.indexOf(name);
}

UiItem UiDescription::item(const QString& widgetName) const {
    UiItem item;
    const QByteArray name = widgetName.toUtf8();
    const Value* entry = member(m_document, name.constData());
    if (entry == nullptr || !entry->IsObject()) {
        item.status = -1;
        return item;
    }

    if (const Value* position = member(*entry, "position")) {
        readInt(*position, "x", item.x);
        readInt(*position, "y", item.y);
    }
    readSize(member(*entry, "size"), item.size);
    readSize(member(*entry, "minimum"), item.minimum);
    if (const Value* maximum = member(*entry, "maximum"); maximum != nullptr) {
        readSize(maximum, item.maximum);
        if (item.maximum.width() == -1 && maximum->HasMember("width"))
            item.maximum.setWidth(kMaximumWidthUnlimited);
        if (item.maximum.height() == -1 && maximum->HasMember("height"))
            item.maximum.setHeight(kMaximumHeightUnlimited);
    }
    if (const Value* margin = member(*entry, "margin")) {
        readInt(*margin, "left", item.marginLeft);
        readInt(*margin, "top", item.marginTop);
        readInt(*margin, "right", item.marginRight);
        readInt(*margin, "bottom", item.marginBottom);
    }
    if (const Value* scale = member(*entry, "scale")) {
        const std::pair<const char*, int*> rules[] = {{"x", &item.scaleX},
                                                      {"y", &item.scaleY},
                                                      {"width", &item.scaleWidth},
                                                      {"height", &item.scaleHeight}};
        for (const auto& [key, code] : rules) {
            const Value* rule = member(*scale, key);
            if (rule != nullptr && rule->IsString())
                *code = scaleRule(readString(rule));
        }
    }
    if (const Value* font = member(*entry, "font")) {
        const Value* family = member(*font, "family");
        if (family != nullptr && family->IsString())
            item.font.setFamily(readString(family));
        const Value* weight = member(*font, "weight");
        if (weight != nullptr && weight->IsString()) {
            // An unknown weight name keeps the font's own weight.
            const int index = m_weightNames.indexOf(readString(weight));
            if (index >= 0)
                item.font.setWeight(m_weightValues[static_cast<std::size_t>(index)]);
        }
        int pixelSize = 0;
        readInt(*font, "size", pixelSize);
        if (pixelSize > 0)
            item.font.setPixelSize(pixelSize);
    }
    readStates(member(*entry, "color"), item.color);
    readStates(member(*entry, "textColor"), item.textColor);
    readStates(member(*entry, "image"), item.image);
    readStates(member(*entry, "border"), item.border);
    item.show = isTrue(member(*entry, "show"));
    item.enable = isTrue(member(*entry, "enable"));
    if (const Value* text = member(*entry, "text"); text != nullptr && text->IsString())
        item.text = readString(text);
    return item;
}

QByteArray UiDescription::translationContext(const QString& viewName) {
    QString name = viewName;
    if (!name.isEmpty())
        name[0] = name[0].toLower();
    return "ui_" + name.toUtf8();
}

QString UiDescription::translatedText(const QString& widgetName) const {
    const UiItem record = item(widgetName);
    if (record.text.isEmpty())
        return QString();
    return QCoreApplication::translate(translationContext(m_viewName).constData(),
                                       record.text.toUtf8().constData());
}
