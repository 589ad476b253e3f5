#include "ServiceFixture.h"

#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

ServiceFixture::ServiceFixture() {
    qputenv("TMPDIR", m_temp.path().toLocal8Bit());
    m_transcript = m_temp.filePath("transcript.txt");
}

ServiceFixture::~ServiceFixture() {
    stop();
}

QString ServiceFixture::program() {
    return QStringLiteral(SERVICE_STANDIN);
}

bool ServiceFixture::start(const QStringList& answers, const QStringList& options) {
    stop();
    QFile::remove(m_transcript);
    QStringList arguments = {"--transcript", m_transcript};
    for (const QString& answer : answers)
        arguments << "--answer" << answer;
    arguments << options;
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program(), arguments);
    if (!m_process.waitForStarted(10000))
        return false;
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(10000))
            return false;
    }
    return m_process.readLine().trimmed() == "listening";
}

void ServiceFixture::stop() {
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(10000);
}

QStringList ServiceFixture::transcript() const {
    QFile file(m_transcript);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    lines.removeAll(QString());
    return lines;
}

QStringList ServiceFixture::received() const {
    QStringList messages;
    for (const QString& line : transcript()) {
        if (line.startsWith(QLatin1String("< ")))
            messages << line.mid(2);
    }
    return messages;
}

bool ServiceFixture::waitFor(const QString& line, int ms) const {
    QElapsedTimer clock;
    clock.start();
    while (!transcript().contains(line)) {
        if (clock.elapsed() > ms)
            return false;
        QTest::qWait(20);
    }
    return true;
}
