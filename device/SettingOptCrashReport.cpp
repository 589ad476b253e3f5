#include "SettingOptCrashReport.h"

#include "AppGlobals.h"
#include "LocalSocket.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "UiDescription.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SettingOptCrashReport::SettingOptCrashReport(QWidget* parent) : QWidget(parent) {
    setObjectName("page_Crash Report");
    UiDescription look;
    look.open("SettingView");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 8, 0);
    rows->setSpacing(0);
    m_title = SettingOpt::makePageTitle(QString(), look, this);
    rows->addWidget(m_title);

    SettingRecord automatic;
    automatic.name = QLatin1String(QT_TRANSLATE_NOOP("SettingOpt", "Automatic Crash Reports"));
    automatic.text = QLatin1String(
        QT_TRANSLATE_NOOP("SettingOpt", "After the program ended unexpectedly, the service "
                                        "sends its status log without asking."));
    automatic.type = SettingOpt::ToggleKind;
    automatic.enable = true;
    m_autoReport = new SettingOpt(automatic, look, this);
    m_autoReport->setValue(AppGlobals::autoCrashReports ? 1 : 0);
    connect(m_autoReport, &SettingOpt::onSendValueChanged, this, [](const QString&, int value) {
        AppGlobals::storeAgreement(AppGlobals::updateChecksAllowed, value != 0);
        ServiceRequest::tell(QStringLiteral("updateAgreement"));
    });
    m_send =
        new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Send a Crash Report"),
                             QT_TRANSLATE_NOOP("SettingOpt", "Send Now"), look, "optAction", this);
    connect(m_send, &SettingOptAction::clicked, this, &SettingOptCrashReport::onClickSend);
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &SettingOptCrashReport::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, this,
            &SettingOptCrashReport::onRequestFailed);

    rows->addWidget(m_autoReport);
    rows->addWidget(m_send);
    rows->addStretch(1);
    retranslate();
}

void SettingOptCrashReport::retranslate() {
    UiDescription look;
    look.open("SettingView");
    m_title->setText(look.translatedText("crashTitle"));
    m_autoReport->retranslate();
    m_send->retranslate();
    m_send->setHint(LocalSocket::serviceConnected
                        ? QString()
                        : ServiceRequest::failureText(ServiceRequest::NotConnected));
}

void SettingOptCrashReport::onClickSend() {
    logDebug("SettingOptCrashReport::onClickSend");
    if (m_request.send(QStringLiteral("Report"))) {
        m_send->button()->setEnabled(false);
        m_send->setHint(tr("Sending..."));
    }
}

void SettingOptCrashReport::onRecvMessage(const QString& message) {
    logDebug("[SettingOptCrashReport] RecvMessage: %s", message.toLocal8Bit().constData());
    m_send->button()->setEnabled(true);
    if (message != QLatin1String("Send_Complete")) {
        onRequestFailed(ServiceRequest::NotUnderstood);
        return;
    }
    m_send->setHint(tr("The transfer is complete."));
    TavPrompt::inform(this, tr("The transfer is complete."));
}

void SettingOptCrashReport::onRequestFailed(ServiceRequest::Failure failure) {
    m_send->button()->setEnabled(true);
    m_send->setHint(ServiceRequest::failureText(failure));
    TavPrompt::inform(this, ServiceRequest::failureText(failure));
}
