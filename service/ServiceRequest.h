#pragma once

#include <QMetaObject>
#include <QObject>
#include <QString>
#include <QTimer>

// One view's question to the companion service, in the way every view asks: listen to the
// link, send, and stop listening as soon as the answer comes, so that the answer reaches
// only the view that asked. The answer is handed on from the event loop (onSendAnswer), so a
// view may open a message box for it.
//
// A request that cannot go out, or whose answer does not come, ends in onSendFailed() with
// the reason; the view tells the user with failureText().
class ServiceRequest : public QObject {
    Q_OBJECT
public:
    enum Failure {
        NotConnected, // no link to the service
        Disabled,     // the service said it does no network work
        NoAnswer,     // nothing came within the time allowed
        LinkLost,     // the link went down while waiting
        // Judged by the view that asked:
        NotUnderstood,  // an answer the program does not know
        DownloadFailed, // the service answered "fail" to a download
    };
    Q_ENUM(Failure)

    // How long a question waits for its answer: as long as a synchronous wait does.
    static constexpr int kAnswerMs = 10000;

    explicit ServiceRequest(QObject* parent = nullptr);

    // Sends `request` and waits for the answer, up to the answer time unless `limited` is
    // false (a download takes as long as it takes). False when the request could not go
    // out; onSendFailed() follows.
    bool send(const QString& request, bool limited = true);
    void setAnswerMs(int ms) { m_answerMs = ms; }
    // Stops listening without an answer.
    void cancel();
    bool isWaiting() const { return m_connection; }

    // Sends a message that has no answer, when there is a link.
    static void tell(const QString& message);

    // The text shown to the user for a failure.
    static QString failureText(Failure failure);
    // The text shown while a question waits for its answer.
    static QString waitingText();

signals:
    void onSendAnswer(const QString& answer);
    void onSendFailed(ServiceRequest::Failure failure);

private:
    void fail(Failure failure);

    QMetaObject::Connection m_connection;
    QMetaObject::Connection m_lostConnection;
    QTimer m_timer;
    int m_answerMs = kAnswerMs;
};
