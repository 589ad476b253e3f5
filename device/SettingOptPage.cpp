#include "SettingOptPage.h"

#include "SettingOpt.h"

#include <QLabel>
#include <QVBoxLayout>

SettingOptPage::SettingOptPage(const QString& objectName, const char* titleEntry, QWidget* parent)
    : QWidget(parent), m_titleEntry(titleEntry), m_rows(new QVBoxLayout(this)) {
    setObjectName(objectName);
    m_look.open("SettingView");
    m_rows->setContentsMargins(0, 0, 8, 0);
    m_rows->setSpacing(0);
    m_title = SettingOpt::makePageTitle(m_look.translatedText(titleEntry), m_look, this);
    m_rows->addWidget(m_title);
}

void SettingOptPage::addRows(const QList<QWidget*>& rows) {
    for (QWidget* row : rows)
        m_rows->addWidget(row);
    m_rows->addStretch(1);
}

void SettingOptPage::retranslate() {
    m_title->setText(m_look.translatedText(m_titleEntry));
}

SettingRecord SettingOptPage::record(const char* name, int type,
                                     const QVector<SettingRecord::Choice>& choices,
                                     const char* hint) {
    SettingRecord made;
    made.name = QLatin1String(name);
    made.type = type;
    made.enable = true;
    made.text = QLatin1String(hint);
    made.choices = choices;
    return made;
}
