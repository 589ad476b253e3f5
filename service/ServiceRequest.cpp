#include "ServiceRequest.h"

#include "LocalSocket.h"
#include "VersionText.h"

#include <QCoreApplication>

ServiceRequest::ServiceRequest(QObject* parent) : QObject(parent) {
    qRegisterMetaType<ServiceRequest::Failure>("ServiceRequest::Failure");
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { fail(NoAnswer); });
}

bool ServiceRequest::send(const QString& request, bool limited) {
    cancel();
    LocalSocket* link = LocalSocket::link;
    if (link == nullptr || !LocalSocket::serviceConnected) {
        fail(NotConnected);
        return false;
    }
    if (!link->isEnabled()) {
        fail(Disabled);
        return false;
    }
    m_connection =
        connect(link, &LocalSocket::onSendRecvMessage, this, [this](const QString& text) {
            // First of all: the next answer of the link belongs to whoever asks next.
            cancel();
            // Handed on from the event loop: the link is still inside its read here, and a
            // message box opened now would hold it there.
            QMetaObject::invokeMethod(
                this, [this, text] { emit onSendAnswer(text); }, Qt::QueuedConnection);
        });
    m_lostConnection =
        connect(link, &LocalSocket::onSendConnectionLost, this, [this] { fail(LinkLost); });
    if (limited)
        m_timer.start(m_answerMs);
    link->sendMessage(request);
    return true;
}

void ServiceRequest::cancel() {
    disconnect(m_connection);
    disconnect(m_lostConnection);
    m_connection = {};
    m_lostConnection = {};
    m_timer.stop();
}

void ServiceRequest::fail(Failure failure) {
    cancel();
    // From the event loop, as answers are: the link may be inside its own notification.
    QMetaObject::invokeMethod(
        this, [this, failure] { emit onSendFailed(failure); }, Qt::QueuedConnection);
}

void ServiceRequest::tell(const QString& message) {
    if (LocalSocket::link != nullptr)
        LocalSocket::link->sendMessage(message);
}

QString ServiceRequest::waitingText() {
    return tr("Asking the service...");
}

QString ServiceRequest::failureText(Failure failure) {
    switch (failure) {
    case NotConnected:
        return tr("The service for updates and reports is not working.");
    case Disabled:
        return tr("The service for updates and reports does not use the network now.");
    case NoAnswer:
        return tr("The service for updates and reports did not answer.");
    case LinkLost:
        return tr("The connection to the service for updates and reports was lost.");
    case NotUnderstood:
        return VersionText::verdictText(VersionText::NotAVersion, QString());
    case DownloadFailed:
        return tr("Check your Network state") + '\n' + tr("DownLoad Fail");
    }
    return QString();
}
