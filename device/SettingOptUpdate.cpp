#include "SettingOptUpdate.h"

#include "AppGlobals.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "VersionText.h"

SettingOptUpdate::SettingOptUpdate(QWidget* parent)
    : SettingOptServicePage("page_Update", "updateTitle", QStringLiteral("Version"), parent),
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
    setRows(
        {m_version}, m_updateCheck, AppGlobals::updateChecksAllowed,
        [](bool allowed) { AppGlobals::storeAgreement(allowed, AppGlobals::autoCrashReports); },
        m_updateNow);
}

void SettingOptUpdate::onClickUpdateNow() {
    logDebug("SettingOptUpdate::onClickUpdateNow");
    ask();
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
