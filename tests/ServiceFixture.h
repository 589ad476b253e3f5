#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The companion service for tests: the stand-in program (tools/service_standin) with the
// answers a test asks for, and what it heard in its transcript. The stand-in and the
// program under test meet in a temporary folder of their own (TMPDIR, where a local
// socket's name lives on Linux), so tests running side by side never meet each other's.
class ServiceFixture {
public:
    // Points this process's temporary folder (and that of the programs it starts) at a
    // folder of its own. Call before any QLocalSocket is made.
    ServiceFixture();
    ~ServiceFixture();

    // Starts the stand-in with these `--answer REQUEST=ANSWER` pairs (and other options);
    // false when it does not come up.
    bool start(const QStringList& answers = {}, const QStringList& options = {});
    void stop();

    // The stand-in's transcript so far, one event per line ("< Version", "> 1.0.7", ...).
    QStringList transcript() const;
    // The messages the program sent, in order.
    QStringList received() const;
    // Waits until the transcript holds the line; false after `ms`.
    bool waitFor(const QString& line, int ms = 15000) const;

    QString tempFolder() const { return m_temp.path(); }
    static QString program();

private:
    QTemporaryDir m_temp;
    QProcess m_process;
    QString m_transcript;
};
