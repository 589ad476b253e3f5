#pragma once

#include <QLocalSocket>
#include <QObject>
#include <QString>

// The program's one link to the companion service, a process on the same machine that checks
// for new versions, downloads installers and sends crash reports. The link is a local socket
// (a named pipe on Windows) under the name "PV3CommService".
//
// A message is the bare bytes of one text: no terminator, no length, no separator. Whatever
// one read brings after a readyRead is one message, so two answers that arrive together are
// taken as one text. Every request is answered before the next one is sent.
//
// Views ask through the signal: they connect to onSendRecvMessage() just before they send and
// disconnect first thing when the answer comes (ServiceRequest does both), so an answer only
// reaches the view that asked. getMessage() waits for an answer synchronously instead; the
// greeting uses it.
class LocalSocket : public QObject {
    Q_OBJECT
public:
    static constexpr const char* kServerName = "PV3CommService";
    static constexpr const char* kHello = "HelloLauncher";
    static constexpr const char* kGoodbye = "GoodbyeLauncher";
    // getMessage() waits this many times this long before it gives the link up.
    static constexpr int kWaitCount = 10;
    static constexpr int kWaitMs = 1000;
    // The length of one of those waits: kWaitMs, shorter only where a test waits out a
    // silent service.
    static int waitMs;

    // The program's link, made by the main window; null before and after.
    static LocalSocket* link;
    // True from the socket's connected notification until an error, an unconnected or
    // closing state, an unanswered getMessage() or a confirmed close, until reconnectService().
    static bool serviceConnected;

    explicit LocalSocket(QObject* parent = nullptr);
    ~LocalSocket() override;

    // Connects and greets the service. On return serviceConnected tells whether it worked:
    // a local socket's connect completes or fails within the call.
    void connectService();
    // Connects and greets the service again when the link was lost (a service restarted,
    // or one that hung up); a connected link is left as it is.
    void reconnectService();
    // Writes the text when the link is connected and enabled; "GoodbyeLauncher" enables the
    // link first. A message that is not sent is not reported.
    void sendMessage(const QString& text);
    // The answer that has not come through the signal, waiting for it up to kWaitCount times
    // kWaitMs. Empty when none came; the link then counts as gone. Paint events and timers
    // keep running between the waits, so a window shown meanwhile still draws.
    QString getMessage();
    // Disconnects; the socket is let go of whether or not the service confirms in time.
    void close();

    // False after the service answered the greeting with "DisableNetwork": nothing is sent
    // or read until "GoodbyeLauncher".
    bool isEnabled() const { return m_enabled; }
    QLocalSocket* socket() const { return m_socket; }
    const QString& lastMessage() const { return m_lastMessage; }

    // The texts written to the status log for a socket error and a socket state; empty for
    // those that are not logged.
    static QString errorText(QLocalSocket::LocalSocketError error);
    static QString stateText(QLocalSocket::LocalSocketState state);

signals:
    void onSendRecvMessage(const QString& message);
    // The link was connected and is not any more; requests still waiting will get no answer.
    void onSendConnectionLost();

public slots:
    void onRecvConnected();
    void onRecvDisconnected();
    void onRecvError(QLocalSocket::LocalSocketError error);
    void onRecvStateChanged(QLocalSocket::LocalSocketState state);
    void onRecvMessage();

private:
    void setConnected(bool connected);

    QLocalSocket* m_socket = nullptr;
    QString m_lastMessage;
    bool m_enabled = true;
};
