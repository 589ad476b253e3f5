#pragma once

#include "SettingOptServicePage.h"

class SettingOpt;
class SettingOptAction;

// The settings dialog's update page: the program's version, whether the program asks for
// a newer one at its start, and "Update Now", which asks the service ("Version") and offers
// the update dialog when a newer version is out.
class SettingOptUpdate : public SettingOptServicePage {
    Q_OBJECT
public:
    explicit SettingOptUpdate(QWidget* parent = nullptr);

    SettingOpt* updateCheckRow() const { return m_updateCheck; }
    SettingOptAction* updateNowRow() const { return m_updateNow; }

signals:
    // A newer version is out; the main window opens the update dialog for it.
    void onSendShowUpdate(const QString& version);

public slots:
    void onClickUpdateNow();
    void onRecvMessage(const QString& message);

protected:
    void answered(const QString& message) override { onRecvMessage(message); }

private:
    SettingOpt* m_version;
    SettingOpt* m_updateCheck;
    SettingOptAction* m_updateNow;
};
