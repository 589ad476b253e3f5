#include "SettingOptUpdate.h"

#include "AppGlobals.h"
#include "LocalSocket.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "UiDescription.h"
#include "VersionText.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SettingOptUpdate::SettingOptUpdate(QWidget* parent) : QWidget(parent) {
    setObjectName("page_Update");
    UiDescription look;
    look.open("SettingView");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 8, 0);
    rows->setSpacing(0);
    m_title = SettingOpt::makePageTitle(QString(), look, this);
    rows->addWidget(m_title);

    SettingRecord version;
    version.name = QLatin1String(QT_TRANSLATE_NOOP("SettingOpt", "Program Version"));
    version.type = SettingOpt::CardTextKind;
    version.enable = true;
    m_version = new SettingOpt(version, look, this);
    m_version->setCardText(AppGlobals::version);
    SettingRecord check;
    check.name = QLatin1String(QT_TRANSLATE_NOOP("SettingOpt", "Check for Updates at Start"));
    check.text = QLatin1String(QT_TRANSLATE_NOOP(
        "SettingOpt", "Each start asks the service whether a newer version is out."));
    check.type = SettingOpt::ToggleKind;
    check.enable = true;
    m_updateCheck = new SettingOpt(check, look, this);
    m_updateCheck->setValue(AppGlobals::updateChecksAllowed ? 1 : 0);
    connect(m_updateCheck, &SettingOpt::onSendValueChanged, this, [](const QString&, int value) {
        AppGlobals::storeAgreement(value != 0, AppGlobals::autoCrashReports);
        ServiceRequest::tell(QStringLiteral("updateAgreement"));
    });
    m_updateNow = new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Newer Version"),
                                       QT_TRANSLATE_NOOP("SettingOpt", "Update Now"), look,
                                       "optAction", this);
    connect(m_updateNow, &SettingOptAction::clicked, this, &SettingOptUpdate::onClickUpdateNow);
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &SettingOptUpdate::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, this, &SettingOptUpdate::onRequestFailed);

    rows->addWidget(m_version);
    rows->addWidget(m_updateCheck);
    rows->addWidget(m_updateNow);
    rows->addStretch(1);
    retranslate();
}

void SettingOptUpdate::retranslate() {
    UiDescription look;
    look.open("SettingView");
    m_title->setText(look.translatedText("updateTitle"));
    m_version->retranslate();
    m_updateCheck->retranslate();
    m_updateNow->retranslate();
    m_updateNow->setHint(LocalSocket::serviceConnected
                             ? QString()
                             : ServiceRequest::failureText(ServiceRequest::NotConnected));
}

void SettingOptUpdate::onClickUpdateNow() {
    logDebug("SettingOptUpdate::onClickUpdateNow");
    if (m_request.send(QStringLiteral("Version"))) {
        m_updateNow->button()->setEnabled(false);
        m_updateNow->setHint(ServiceRequest::waitingText());
    }
}

void SettingOptUpdate::onRecvMessage(const QString& message) {
    logDebug("[SettingOptUpdate] RecvMessage: %s", message.toLocal8Bit().constData());
    m_updateNow->button()->setEnabled(true);
    const VersionText::Verdict verdict = VersionText::judge(message);
    if (verdict == VersionText::NotAVersion) {
        onRequestFailed(ServiceRequest::NotUnderstood);
        return;
    }
    m_updateNow->setHint(VersionText::verdictText(verdict, message));
    if (verdict == VersionText::Newer)
        emit onSendShowUpdate(message);
}

void SettingOptUpdate::onRequestFailed(ServiceRequest::Failure failure) {
    m_updateNow->button()->setEnabled(true);
    m_updateNow->setHint(ServiceRequest::failureText(failure));
    TavPrompt::inform(this, ServiceRequest::failureText(failure));
}
