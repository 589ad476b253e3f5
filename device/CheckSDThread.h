#pragma once

#include <QString>
#include <QThread>

#include <atomic>

class QDir;

// Watches, once a second, that the opened card is still there; reports its going once with
// onSendSDNotExist() and ends.
class CheckSDThread : public QThread {
    Q_OBJECT
public:
    static constexpr int kPollMs = 1000;

    explicit CheckSDThread(const QString& root, QObject* parent = nullptr);
    ~CheckSDThread() override;

    // Ends the watch within one poll.
    void breakThread();

    bool isAlive() const { return m_alive; }

signals:
    void onSendSDNotExist();

protected:
    void run() override;

private:
    bool cardPresent(const QDir& root) const;

    QString m_root;
    std::atomic<bool> m_alive{false};
    std::atomic<bool> m_running{false};
};
