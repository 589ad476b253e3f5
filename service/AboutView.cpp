#include "AboutView.h"

#include "AppGlobals.h"
#include "LocalSocket.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"
#include "VersionText.h"

#include <QLabel>
#include <QPushButton>

AboutView::AboutView(QWidget* parent)
    : TavDialog("AboutView", parent), m_version(new QLabel(form())), m_state(new QLabel(form())),
      m_check(new QPushButton(form())), m_download(new QPushButton(form())) {
    logInfo("[AboutView]: Enter AboutView class.");
    TavWidget* view = form();
    view->addChild(new QLabel(view), "logo", TavWidget::Style::Panel);
    view->addChild(m_version, "lVersion", TavWidget::Style::Label);
    view->addChild(m_state, "lState", TavWidget::Style::Label);
    m_state->setWordWrap(true);
    m_state->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    view->addChild(m_check, "bUpdate", TavWidget::Style::Button);
    view->addChild(m_download, "bDownload", TavWidget::Style::Button);
    auto* close = new QPushButton(view);
    view->addChild(close, "bOk", TavWidget::Style::Button);
    m_download->setEnabled(false);
    m_check->setDefault(true);

    connect(m_check, &QPushButton::clicked, this, &AboutView::onClickUpdate);
    connect(m_download, &QPushButton::clicked, this, [this] { emit onSendShowUpdate(m_offered); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &AboutView::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, this, &AboutView::onRequestFailed);
    retranslateUi();
}

void AboutView::retranslateUi() {
    form()->retranslate();
    m_version->setText(m_version->text().arg(AppGlobals::version));
    if (!LocalSocket::serviceConnected)
        m_state->setText(ServiceRequest::failureText(ServiceRequest::NotConnected));
}

void AboutView::onClickUpdate() {
    logDebug("AboutView::onClickUpdate");
    m_check->setEnabled(false);
    m_state->setText(ServiceRequest::waitingText());
    m_request.send(QStringLiteral("Version"));
}

void AboutView::onRecvMessage(const QString& message) {
    logDebug("[AboutView] RecvMessage: %s", message.toLocal8Bit().constData());
    m_check->setEnabled(true);
    const VersionText::Verdict verdict = VersionText::judge(message);
    if (verdict == VersionText::NotAVersion) {
        onRequestFailed(ServiceRequest::NotUnderstood);
        return;
    }
    m_offered = verdict == VersionText::Newer ? message : QString();
    m_download->setEnabled(verdict == VersionText::Newer);
    m_state->setText(VersionText::verdictText(verdict, message));
}

void AboutView::onRequestFailed(ServiceRequest::Failure failure) {
    m_check->setEnabled(true);
    m_state->setText(ServiceRequest::failureText(failure));
    TavPrompt::inform(this, ServiceRequest::failureText(failure));
}
