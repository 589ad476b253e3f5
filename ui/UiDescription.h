#pragma once

#include "UiItem.h"

#include <QString>
#include <QStringList>

#include <rapidjson/document.h>

// Reads one view's description file, Resources/json/<view name>.json under the program
// folder, and hands out the record of each named child. Files are read anew on every open,
// so editing a file changes the look at the next set-up or retranslation.
class UiDescription {
public:
    UiDescription();

    // Reads the view's file. False for a missing file or bad JSON; every item() then has
    // status -1.
    bool open(const QString& viewName);

    UiItem item(const QString& widgetName) const;

    const QString& jsonFolder() const { return m_jsonFolder; }
    const QString& imageFolder() const { return m_imageFolder; }
    const QString& viewName() const { return m_viewName; }

    // The child's "text" passed through the view's translation context.
    QString translatedText(const QString& widgetName) const;

    // "ui_" followed by the view name in lower camel case: "ui_mainWindow".
    static QByteArray translationContext(const QString& viewName);

    // Index of a resize rule name, -1 when the name is not a rule.
    int scaleRule(const QString& name) const;

private:
    QString m_jsonFolder;
    QString m_imageFolder;
    QStringList m_scaleRules;
    QStringList m_weightNames;
    std::array<int, 9> m_weightValues;
    rapidjson::Document m_document;
    QString m_viewName;
};
