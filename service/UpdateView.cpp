#include "UpdateView.h"

#include "AppGlobals.h"
#include "LocalSocket.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"
#include "VersionText.h"

#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

UpdateView::UpdateView(const QString& offered, QWidget* parent)
    : TavDialog("UpdateView", parent), m_state(new QLabel(form())),
      m_updateCheck(new QCheckBox(form())), m_progress(new QProgressBar(form())),
      m_download(new QPushButton(form())) {
    logInfo("[UpdateView]: Enter UpdateView class.");
    TavWidget* view = form();
    auto* message = new QLabel(view);
    view->addChild(message, "lMessage", TavWidget::Style::Label);
    message->setWordWrap(true);
    auto* versions = new QLabel(view);
    view->addChild(versions, "lVersions", TavWidget::Style::Label);
    view->addChild(m_updateCheck, "chkUpdate", TavWidget::Style::Choice);
    view->addChild(m_state, "lState", TavWidget::Style::Label);
    m_state->setWordWrap(true);
    view->addChild(m_progress, "progressBar", TavWidget::Style::Field);
    m_progress->setTextVisible(false);
    m_progress->hide();
    view->addChild(m_download, "bDownload", TavWidget::Style::Button);
    auto* close = new QPushButton(view);
    view->addChild(close, "bCancel", TavWidget::Style::Button);
    m_download->setDefault(true);
    view->retranslate();
    // A version that is no version is not repeated here; the download still may be.
    const QString available = VersionText::isVersion(offered) ? offered : tr("unknown");
    versions->setText(versions->text().arg(AppGlobals::version, available));
    m_updateCheck->setChecked(AppGlobals::updateChecksAllowed);
    if (!LocalSocket::serviceConnected)
        m_state->setText(ServiceRequest::failureText(ServiceRequest::NotConnected));

    connect(m_download, &QPushButton::clicked, this, &UpdateView::onClickDownload);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_updateCheck, &QCheckBox::toggled, this, &UpdateView::onChangeUpdateCheck);
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &UpdateView::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, this, &UpdateView::onRequestFailed);
}

void UpdateView::setDownloading(bool downloading) {
    m_downloading = downloading;
    m_download->setEnabled(!downloading);
    // A busy bar: the service does not say how far it is.
    m_progress->setRange(0, 0);
    m_progress->setVisible(downloading && form()->isEnabledChild("progressBar"));
}

void UpdateView::onClickDownload() {
    logDebug("UpdateView::onClickDownload");
    // A download takes as long as it takes; the user may close the dialog meanwhile.
    if (!m_request.send(QStringLiteral("Download"), false))
        return;
    setDownloading(true);
    m_state->setText(tr("Downloading the new version..."));
}

void UpdateView::onRecvMessage(const QString& message) {
    logDebug("[UpdateView] RecvMessage: %s", message.toLocal8Bit().constData());
    if (message == QLatin1String("wait")) {
        m_state->setText(tr("The service is still downloading. Please wait..."));
        m_request.send(QStringLiteral("DownloadWaiting"), false);
        return;
    }
    setDownloading(false);
    if (message == QLatin1String("complete")) {
        m_state->setText(tr("The download is complete."));
        done(1);
        return;
    }
    onRequestFailed(message == QLatin1String("fail") ? ServiceRequest::DownloadFailed
                                                     : ServiceRequest::NotUnderstood);
}

void UpdateView::onRequestFailed(ServiceRequest::Failure failure) {
    setDownloading(false);
    m_state->setText(ServiceRequest::failureText(failure));
    TavPrompt::inform(this, m_state->text());
}

void UpdateView::onChangeUpdateCheck(bool checked) {
    logDebug("UpdateView::onChangeUpdateCheck");
    AppGlobals::storeAgreement(checked, AppGlobals::autoCrashReports);
    ServiceRequest::tell(QStringLiteral("updateAgreement"));
}
