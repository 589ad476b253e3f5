#include "SettingOptServicePage.h"

#include "SettingOpt.h"
#include "SettingOptAction.h"

#include <utility>

SettingOptServicePage::SettingOptServicePage(const QString& objectName, const char* titleEntry,
                                             QString question, QWidget* parent)
    : SettingOptPage(objectName, titleEntry, parent), m_question(std::move(question)) {
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &SettingOptServicePage::answered);
}

void SettingOptServicePage::setRows(std::initializer_list<SettingOpt*> shown,
                                    SettingOpt* permission, bool allowed,
                                    const std::function<void(bool)>& store,
                                    SettingOptAction* action) {
    m_shown = shown;
    m_shown << permission;
    m_action = action;
    permission->setValue(allowed ? 1 : 0);
    connect(permission, &SettingOpt::onSendValueChanged, this, [store](const QString&, int value) {
        store(value != 0);
        ServiceRequest::tell(QStringLiteral("updateAgreement"));
    });
    connect(action, &SettingOptAction::clicked, this, &SettingOptServicePage::ask);
    connect(&m_request, &ServiceRequest::onSendFailed, action, &SettingOptAction::showFailure);
    QList<QWidget*> rows;
    for (SettingOpt* row : std::as_const(m_shown))
        rows << row;
    addRows(rows << action);
    retranslate();
}

void SettingOptServicePage::retranslate() {
    SettingOptPage::retranslate();
    for (SettingOpt* row : std::as_const(m_shown))
        row->retranslate();
    if (m_action != nullptr) {
        m_action->retranslate();
        m_action->showLinkState();
    }
}

void SettingOptServicePage::ask() {
    if (m_request.send(m_question))
        m_action->showWaiting();
}
