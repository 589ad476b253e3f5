#include "SettingOptUpdate.h"

#include "AppGlobals.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "VersionText.h"

SettingOptUpdate::SettingOptUpdate(QWidget* parent)
    : SettingOptPage("page_Update", "updateTitle", parent),
      m_version(new SettingOpt(
          record(QT_TRANSLATE_NOOP("SettingOpt", "Program Version"), SettingOpt::CardTextKind),
          look(), this)),
      m_updateCheck(new SettingOpt(
          record(QT_TRANSLATE_NOOP("SettingOpt", "Check for Updates at Start"),
                 SettingOpt::ToggleKind, {},
                 QT_TRANSLATE_NOOP("SettingOpt",
                                   "Each start asks the service whether a newer version is out.")),
          look(), this)),
      m_updateNow(new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Newer Version"),
                                       QT_TRANSLATE_NOOP("SettingOpt", "Update Now"), look(),
                                       "optAction", this)) {
    m_version->setCardText(AppGlobals::version);
    m_updateCheck->setValue(AppGlobals::updateChecksAllowed ? 1 : 0);
    connect(m_updateCheck, &SettingOpt::onSendValueChanged, this, [](const QString&, int value) {
        AppGlobals::storeAgreement(value != 0, AppGlobals::autoCrashReports);
        ServiceRequest::tell(QStringLiteral("updateAgreement"));
    });
    connect(m_updateNow, &SettingOptAction::clicked, this, &SettingOptUpdate::onClickUpdateNow);
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &SettingOptUpdate::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, m_updateNow, &SettingOptAction::showFailure);
    addRows({m_version, m_updateCheck, m_updateNow});
    retranslate();
}

void SettingOptUpdate::retranslate() {
    SettingOptPage::retranslate();
    m_version->retranslate();
    m_updateCheck->retranslate();
    m_updateNow->retranslate();
    m_updateNow->showLinkState();
}

void SettingOptUpdate::onClickUpdateNow() {
    logDebug("SettingOptUpdate::onClickUpdateNow");
    if (m_request.send(QStringLiteral("Version")))
        m_updateNow->showWaiting();
}

void SettingOptUpdate::onRecvMessage(const QString& message) {
    logDebug("[SettingOptUpdate] RecvMessage: %s", message.toLocal8Bit().constData());
    const VersionText::Verdict verdict = VersionText::judge(message);
    if (verdict == VersionText::NotAVersion) {
        m_updateNow->showFailure(ServiceRequest::NotUnderstood);
        return;
    }
    m_updateNow->showAnswer(VersionText::verdictText(verdict, message));
    if (verdict == VersionText::Newer)
        emit onSendShowUpdate(message);
}
