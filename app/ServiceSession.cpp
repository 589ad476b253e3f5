#include "ServiceSession.h"

#include "AboutView.h"
#include "AppGlobals.h"
#include "LocalSocket.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "UpdateView.h"

#include <QApplication>
#include <QDebug>

ServiceSession::ServiceSession(QWidget* window)
    : QObject(window), m_window(window), m_link(new LocalSocket(this)) {
    LocalSocket::link = m_link;
    m_link->connectService();
    connect(&m_request, &ServiceRequest::onSendAnswer, this, &ServiceSession::onRecvMessage);
    connect(&m_request, &ServiceRequest::onSendFailed, this, &ServiceSession::onRequestFailed);
}

ServiceSession::~ServiceSession() {
    if (LocalSocket::link == m_link)
        LocalSocket::link = nullptr;
}

void ServiceSession::startVersionCheck() {
    if (!AppGlobals::updateChecksAllowed || !LocalSocket::serviceConnected)
        return;
    // The bare version: that is what the service looks for, not "checkVersion+" and the
    // version. An answer that does not come in time is given up, so that it cannot take
    // the answer to a later question of another view for its own.
    m_request.send(AppGlobals::version);
}

void ServiceSession::onRecvMessage(const QString& message) {
    logDebug("[MainWindow] RecvMessage: %s", message.toLocal8Bit().constData());
    if (message == QLatin1String("NoUpdate"))
        return;
    if (message == QLatin1String("FindUpdate")) {
        if (TavPrompt::ask(m_window, tr("Update Message"),
                           tr("find Update Version") + '\n' +
                               tr("Would you like to download now?"))) {
            m_downloadAsked = true;
            // The link may have gone while the question waited for the user.
            m_link->reconnectService();
            m_request.send(QStringLiteral("Download"), false);
        }
        return;
    }
    if (message == QLatin1String("wait")) {
        // The download goes on; the service is told that the program still waits for it.
        m_request.send(QStringLiteral("DownloadWaiting"), false);
        return;
    }
    if (message == QLatin1String("fail")) {
        TavPrompt::inform(m_window, ServiceRequest::failureText(ServiceRequest::DownloadFailed));
        return;
    }
    if (message == QLatin1String("complete")) {
        closeForUpdate();
        return;
    }
    logWarning("[MainWindow]: the service's answer is not known; it is left alone.");
}

void ServiceSession::onRequestFailed(ServiceRequest::Failure failure) {
    logWarning("[MainWindow]: no answer from the service (%d).", int(failure));
    // Only a download the user asked for is worth a message; a version check at the start
    // that did not work is not.
    if (m_downloadAsked)
        TavPrompt::inform(m_window, ServiceRequest::failureText(failure));
}

void ServiceSession::closeForUpdate() {
    TavPrompt::inform(dialogParent(), tr("The new version has been downloaded. The program closes "
                                         "now so that it can be installed."));
    logInfo("Update is Exist. Program will be close");
    ServiceRequest::tell(QStringLiteral("closeToDoNot"));
    emit onSendQuitForUpdate();
}

QWidget* ServiceSession::dialogParent() const {
    // Over whatever dialog asked for it (the about view, the settings), else the window.
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : m_window;
}

void ServiceSession::openAboutDialog() {
    logDebug("MainWindow::openAboutDlg");
    AboutView dialog(m_window);
    connect(&dialog, &AboutView::onSendShowUpdate, this, &ServiceSession::openUpdateDialog);
    dialog.move(m_window->geometry().center() - dialog.rect().center());
    dialog.exec();
}

void ServiceSession::openUpdateDialog(const QString& version) {
    logDebug("MainWindow::openUpdateDialog");
    QWidget* parent = dialogParent();
    UpdateView dialog(version, parent);
    connect(&dialog, &QDialog::finished, this, &ServiceSession::onUpdateDlgFinished);
    dialog.move(parent->window()->geometry().center() - dialog.rect().center());
    dialog.exec();
}

void ServiceSession::onUpdateDlgFinished(int result) {
    logDebug("MainWindow::onUpdateDlgFinished");
    if (result == 1 && LocalSocket::serviceConnected)
        closeForUpdate();
}

void ServiceSession::close() {
    qDebug() << LocalSocket::kGoodbye;
    m_link->sendMessage(QLatin1String(LocalSocket::kGoodbye));
    m_link->close();
}
