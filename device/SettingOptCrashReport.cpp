#include "SettingOptCrashReport.h"

#include "AppGlobals.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "TavPrompt.h"

SettingOptCrashReport::SettingOptCrashReport(QWidget* parent)
    : SettingOptServicePage("page_Crash Report", "crashTitle", QStringLiteral("Report"), parent),
      m_autoReport(new SettingOpt(
          record(QT_TRANSLATE_NOOP("SettingOpt", "Automatic Crash Reports"), SettingOpt::ToggleKind,
                 {},
                 QT_TRANSLATE_NOOP("SettingOpt", "After the program ended unexpectedly, the "
                                                 "service sends its status log without asking.")),
          look(), this)),
      m_send(new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Send a Crash Report"),
                                  QT_TRANSLATE_NOOP("SettingOpt", "Send Now"), look(), "optAction",
                                  this)) {
    setRows(
        {}, m_autoReport, AppGlobals::autoCrashReports,
        [](bool allowed) { AppGlobals::storeAgreement(AppGlobals::updateChecksAllowed, allowed); },
        m_send);
}

void SettingOptCrashReport::onClickSend() {
    logDebug("SettingOptCrashReport::onClickSend");
    ask();
}

void SettingOptCrashReport::onRecvMessage(const QString& message) {
    logDebug("[SettingOptCrashReport] RecvMessage: %s", message.toLocal8Bit().constData());
    if (message != QLatin1String("Send_Complete")) {
        m_send->showFailure(ServiceRequest::NotUnderstood);
        return;
    }
    m_send->showAnswer(tr("The transfer is complete."));
    TavPrompt::inform(this, tr("The transfer is complete."));
}
