#pragma once

#include <QString>

#include <rapidjson/document.h>

// The few reading steps both device description files need.
class DeviceJson {
public:
    // Parses the file into document; false (and an empty object) when it is missing or its
    // root is not an object.
    static bool load(const QString& path, rapidjson::Document& document);

    // The member of exactly that name, or null.
    static const rapidjson::Value* member(const rapidjson::Value& object, const QString& name);
    static const rapidjson::Value* member(const rapidjson::Value& object, const char* name);

    static QString text(const rapidjson::Value& string);
    // A string member's text; empty when absent or not a string.
    static QString stringMember(const rapidjson::Value& object, const char* name);
    // An integer member; fallback when absent or not an integer.
    static int intMember(const rapidjson::Value& object, const char* name, int fallback);
};
