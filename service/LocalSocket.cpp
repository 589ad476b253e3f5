#include "LocalSocket.h"

#include "StatusLog.h"

#include <QCoreApplication>
#include <QDebug>

LocalSocket* LocalSocket::link = nullptr;
bool LocalSocket::serviceConnected = false;
int LocalSocket::waitMs = LocalSocket::kWaitMs;

namespace {

// Texts from the service are logged as arguments, never as the format: an answer may hold
// anything, "%n" included.
QByteArray logged(const QString& text) {
    return text.toLocal8Bit();
}

} // namespace

LocalSocket::LocalSocket(QObject* parent) : QObject(parent) {}

LocalSocket::~LocalSocket() {
    // The sockets go with this object; what they report on the way out is no news.
    for (QLocalSocket* socket : findChildren<QLocalSocket*>())
        socket->disconnect(this);
    if (link == this) {
        link = nullptr;
        serviceConnected = false;
    }
}

QString LocalSocket::errorText(QLocalSocket::LocalSocketError error) {
    switch (error) {
    case QLocalSocket::ConnectionRefusedError:
        return QStringLiteral("N: Error = ConnectionRefusedError");
    case QLocalSocket::PeerClosedError:
        return QStringLiteral("N: Error = PeerClosedError");
    case QLocalSocket::ServerNotFoundError:
        return QStringLiteral("N: Error = ServerNotFoundError");
    case QLocalSocket::SocketAccessError:
        return QStringLiteral("N: Error = SocketAccessError");
    case QLocalSocket::SocketResourceError:
        return QStringLiteral("N: Error = SocketResourceError");
    case QLocalSocket::SocketTimeoutError:
        return QStringLiteral("N: Error = SocketTimeoutError");
    case QLocalSocket::DatagramTooLargeError:
        return QStringLiteral("N: Error = DatagramTooLargeError");
    case QLocalSocket::ConnectionError:
        return QStringLiteral("N: Error = ConnectionError");
    case QLocalSocket::UnsupportedSocketOperationError:
        return QStringLiteral("N: Error = UnsupportedSocketOperationError");
    case QLocalSocket::OperationError:
        return QStringLiteral("N: Error = OperationError");
    case QLocalSocket::UnknownSocketError:
        return QStringLiteral("N: Error = UnknownSocketError");
    }
    return QString();
}

QString LocalSocket::stateText(QLocalSocket::LocalSocketState state) {
    switch (state) {
    case QLocalSocket::UnconnectedState:
        return QStringLiteral("N: State = UnconnectedState");
    case QLocalSocket::ConnectingState:
        return QStringLiteral("N: State = ConnectingState");
    case QLocalSocket::ConnectedState:
        return QStringLiteral("N: State = ConnectedState");
    case QLocalSocket::ClosingState:
        return QStringLiteral("N: State = ClosingState");
    }
    return QString();
}

void LocalSocket::setConnected(bool connected) {
    const bool lost = serviceConnected && !connected;
    serviceConnected = connected;
    if (lost)
        emit onSendConnectionLost();
}

void LocalSocket::onRecvConnected() {
    logInfo("connected localSocket!");
    setConnected(true);
}

void LocalSocket::onRecvDisconnected() {}

void LocalSocket::onRecvError(QLocalSocket::LocalSocketError error) {
    const QString text = errorText(error);
    if (!text.isEmpty())
        logError("%s", logged(text).constData());
    setConnected(false);
}

void LocalSocket::onRecvStateChanged(QLocalSocket::LocalSocketState state) {
    const QString text = stateText(state);
    if (!text.isEmpty())
        logInfo("%s", logged(text).constData());
    if (state == QLocalSocket::UnconnectedState || state == QLocalSocket::ClosingState)
        setConnected(false);
}

void LocalSocket::onRecvMessage() {
    // While the link is down or switched off the bytes stay unread.
    if (!serviceConnected || !m_enabled || m_socket == nullptr)
        return;
    logInfo("onRecvMessage");
    m_lastMessage.clear();
    m_lastMessage = QString::fromUtf8(m_socket->readAll());
    emit onSendRecvMessage(m_lastMessage);
}

void LocalSocket::connectService() {
    m_socket = new QLocalSocket(this);
    connect(m_socket, &QLocalSocket::connected, this, &LocalSocket::onRecvConnected);
    connect(m_socket, &QLocalSocket::disconnected, this, &LocalSocket::onRecvDisconnected);
    connect(m_socket, &QLocalSocket::errorOccurred, this, &LocalSocket::onRecvError);
    connect(m_socket, &QLocalSocket::stateChanged, this, &LocalSocket::onRecvStateChanged);
    connect(m_socket, &QLocalSocket::readyRead, this, &LocalSocket::onRecvMessage);
    if (m_socket->state() == QLocalSocket::UnconnectedState)
        m_socket->connectToServer(QLatin1String(kServerName), QIODevice::ReadWrite);
    if (!serviceConnected)
        return;
    sendMessage(QLatin1String(kHello));
    const QString answer = getMessage();
    if (answer == QLatin1String("DisableNetwork"))
        m_enabled = false;
    else if (answer == QLatin1String("HelloClient"))
        qDebug() << ":)";
}

void LocalSocket::reconnectService() {
    if (serviceConnected)
        return;
    logInfo("LocalSocket::reconnectService");
    if (m_socket != nullptr) {
        m_socket->disconnect(this);
        m_socket->abort();
        m_socket->deleteLater();
        m_socket = nullptr;
    }
    m_lastMessage.clear();
    m_enabled = true;
    connectService();
}

void LocalSocket::sendMessage(const QString& text) {
    if (text == QLatin1String(kGoodbye))
        m_enabled = true;
    if (!serviceConnected || !m_enabled || m_socket == nullptr)
        return;
    logInfo("Send Message: %s", logged(text).constData());
    m_socket->write(text.toUtf8());
    // Out now rather than when the event loop next runs: the caller may wait for the answer
    // or close the link right away.
    m_socket->flush();
}

QString LocalSocket::getMessage() {
    QString result;
    bool waitedOut = false;
    if (serviceConnected && m_enabled && m_socket != nullptr && m_lastMessage.isEmpty()) {
        waitedOut = true;
        for (int wait = 0; wait < kWaitCount; ++wait) {
            logInfo("Wait... ");
            // Runs onRecvMessage() when bytes arrive.
            m_socket->waitForReadyRead(waitMs);
            if (!m_lastMessage.isEmpty()) {
                waitedOut = false;
                break;
            }
            if (m_socket->state() != QLocalSocket::ConnectedState) {
                // Nothing more can come; waitForReadyRead() would return at once anyway.
                continue;
            }
            // The window (or the splash screen) draws between the waits; input waits for the
            // answer.
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            if (!m_lastMessage.isEmpty()) {
                waitedOut = false;
                break;
            }
        }
    }
    if (!m_lastMessage.isEmpty()) {
        result = m_lastMessage;
        m_lastMessage.clear();
    } else if (waitedOut) {
        qCritical() << "Comm is not work!";
        logError("Comm is not work!");
        setConnected(false);
    }
    logInfo("GetMessage Complete! Message is : %s", logged(result).constData());
    return result;
}

void LocalSocket::close() {
    logInfo("LocalSocket::close");
    if (m_socket == nullptr)
        return;
    m_socket->disconnectFromServer();
    // An unconnected socket has nothing to confirm: disconnectFromServer() ended it already.
    if (m_socket->state() != QLocalSocket::UnconnectedState &&
        m_socket->waitForDisconnected(kWaitMs)) {
        setConnected(false);
        m_socket->abort();
        m_socket->close();
    }
    // The socket object stays (a child of the link) and goes with it.
    m_socket = nullptr;
}
