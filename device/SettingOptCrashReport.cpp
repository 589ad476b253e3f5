#include "SettingOptCrashReport.h"

#include "AppGlobals.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "TavPrompt.h"

SettingOptCrashReport::SettingOptCrashReport(QWidget* parent)
    : SettingOptPage("page_Crash Report", "crashTitle", parent),
      m_autoReport(new SettingOpt(
          record(QT_TRANSLATE_NOOP("SettingOpt", "Automatic Crash Reports"), SettingOpt::ToggleKind,
                 {},
                 QT_TRANSLATE_NOOP("SettingOpt", "After the program ended unexpectedly, the "
                                                 "service sends its status log without asking.")),
          look(), this)),
      m_send(new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Send a Crash Report"),
                                  QT_TRANSLATE_NOOP("SettingOpt", "Send Now"), look(), "optAction",
                                  this)) {
    m_autoReport->setValue(AppGlobals::autoCrashReports ? 1 : 0);
    connect(m_autoReport, &SettingOpt::onSendValueChanged, this, [](const QString&, int value) {
        AppGlobals::storeAgreement(AppGlobals::updateChecksAllowed, value != 0);
        ServiceRequest::tell(QStringLiteral("updateAgreement"));
    });
    connect(m_send, &SettingOptAction::clicked, this, &SettingOptCrashReport::onClickSend);
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &SettingOptCrashReport::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, m_send, &SettingOptAction::showFailure);
    addRows({m_autoReport, m_send});
    retranslate();
}

void SettingOptCrashReport::retranslate() {
    SettingOptPage::retranslate();
    m_autoReport->retranslate();
    m_send->retranslate();
    m_send->showLinkState();
}

void SettingOptCrashReport::onClickSend() {
    logDebug("SettingOptCrashReport::onClickSend");
    if (m_request.send(QStringLiteral("Report")))
        m_send->showWaiting();
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
