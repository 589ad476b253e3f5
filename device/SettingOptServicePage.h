#pragma once

#include "ServiceRequest.h"
#include "SettingOptPage.h"

#include <QString>

#include <functional>

class SettingOpt;
class SettingOptAction;

// A settings page whose rows are a permission the service acts on (a toggle, stored with
// the agreement and told to the service at once), an action row that asks the service one
// question, and what else the page shows above them. The action row says when the service is
// not working, waits while the question is out and shows the answer or the failure; the page
// judges the answer.
class SettingOptServicePage : public SettingOptPage {
    Q_OBJECT
protected:
    SettingOptServicePage(const QString& objectName, const char* titleEntry, QString question,
                          QWidget* parent);

    // The permission row, stored through store(allowed); the action row; both laid out after
    // the rows given before them.
    void setRows(std::initializer_list<SettingOpt*> shown, SettingOpt* permission, bool allowed,
                 const std::function<void(bool)>& store, SettingOptAction* action);

    // Asks the question (the action row's click).
    void ask();
    // The service's answer to the question.
    virtual void answered(const QString& message) = 0;

public:
    void retranslate() override;

private:
    QString m_question;
    QList<SettingOpt*> m_shown;
    SettingOptAction* m_action = nullptr;
    // A child, so that tests find it.
    ServiceRequest m_request{this};
};
