#pragma once

#include "SettingOptServicePage.h"

class SettingOpt;
class SettingOptAction;

// The settings dialog's crash-report page. The status log outlives only an abnormal end;
// the service sends it, on its own when the user allowed automatic reports, or now with
// "Send Now" ("Report", answered "Send_Complete").
class SettingOptCrashReport : public SettingOptServicePage {
    Q_OBJECT
public:
    explicit SettingOptCrashReport(QWidget* parent = nullptr);

    SettingOpt* autoReportRow() const { return m_autoReport; }
    SettingOptAction* sendRow() const { return m_send; }

public slots:
    void onClickSend();
    void onRecvMessage(const QString& message);

protected:
    void answered(const QString& message) override { onRecvMessage(message); }

private:
    SettingOpt* m_autoReport;
    SettingOptAction* m_send;
};
