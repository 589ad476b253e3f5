// The link to the companion service over real local sockets, against the stand-in service,
// and the views' requests (ServiceRequest) over it.
#include "AppGlobals.h"
#include "LocalSocket.h"
#include "ServiceFixture.h"
#include "ServiceRequest.h"
#include "VersionText.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <QtTest>

namespace {

// Counts the times it is drawn.
class PaintCounter : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

} // namespace

class TestLocalSocket : public QObject {
    Q_OBJECT

    ServiceFixture m_service;
    QTemporaryDir m_data;

    // The status log's lines without their time stamps ("[i] N: State = ...").
    QStringList logLines() const {
        QFile file(AppGlobals::statusLogPath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QStringList lines;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.size() > 15)
                lines << QString::fromLocal8Bit(line.mid(15));
        }
        return lines;
    }

    // A link made as the main window makes it, connected and greeted.
    LocalSocket* connectLink(QObject* owner) {
        auto* link = new LocalSocket(owner);
        LocalSocket::link = link;
        link->connectService();
        return link;
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_data.path();
        AppGlobals::version = QStringLiteral("1.0.6");
    }

    void init() {
        QFile::remove(AppGlobals::statusLogPath());
        LocalSocket::serviceConnected = false;
    }

    void cleanup() {
        m_service.stop();
        LocalSocket::link = nullptr;
    }

    void withoutServiceNothingIsWritten() {
        QObject owner;
        LocalSocket* link = connectLink(&owner);
        QVERIFY(!LocalSocket::serviceConnected);
        const QStringList log = logLines();
        QVERIFY2(log.contains("[e] N: Error = ServerNotFoundError"), qPrintable(log.join('\n')));
        QVERIFY(log.contains("[i] N: State = UnconnectedState"));

        // Nothing goes out and nothing is waited for.
        link->sendMessage("Version");
        QCOMPARE(link->getMessage(), QString());
        link->sendMessage(LocalSocket::kGoodbye);
        QVERIFY(!logLines().join('\n').contains("Send Message"));
        QVERIFY(!logLines().contains("[i] Wait... "));

        // A view's question fails at once and says why.
        ServiceRequest request;
        QSignalSpy failed(&request, &ServiceRequest::onSendFailed);
        QVERIFY(!request.send("Version"));
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed[0][0].value<ServiceRequest::Failure>(), ServiceRequest::NotConnected);
        QVERIFY(ServiceRequest::failureText(ServiceRequest::NotConnected).contains("not working"));

        link->close();
        QVERIFY(link->socket() == nullptr);
    }

    void greeting_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("HelloClient") << "HelloClient" << true;
        QTest::newRow("DisableNetwork") << "DisableNetwork" << false;
        // Two answers in one read are one message, which is neither of them.
        QTest::newRow("both at once") << "HelloClient|DisableNetwork" << true;
        QTest::newRow("unknown") << "Bonjour" << true;
    }

    void greeting() {
        QFETCH(QString, answer);
        QFETCH(bool, enabled);
        // After its answer the service sends something on its own.
        QVERIFY(
            m_service.start({"HelloLauncher=" + answer + "|@sleep=100|Unasked", "Version=1.0.7"}));
        QObject owner;
        LocalSocket* link = connectLink(&owner);
        QVERIFY(LocalSocket::serviceConnected);
        QCOMPARE(link->isEnabled(), enabled);
        QCOMPARE(m_service.received(), QStringList{"HelloLauncher"});
        QVERIFY(logLines().contains("[i] Send Message: HelloLauncher"));
        QVERIFY(logLines().contains("[i] connected localSocket!"));

        QSignalSpy messages(link, &LocalSocket::onSendRecvMessage);
        QVERIFY(m_service.waitFor("> Unasked"));
        ServiceRequest request;
        QSignalSpy answers(&request, &ServiceRequest::onSendAnswer);
        QSignalSpy failed(&request, &ServiceRequest::onSendFailed);
        if (enabled) {
            QTRY_COMPARE(messages.count(), 1);
            QCOMPARE(messages[0][0].toString(), QString("Unasked"));
            QVERIFY(request.send("Version"));
            QTRY_COMPARE(answers.count(), 1);
            QCOMPARE(answers[0][0].toString(), QString("1.0.7"));
        } else {
            // Switched off: the bytes stay unread and nothing more is sent.
            QTRY_VERIFY(link->socket()->bytesAvailable() > 0);
            QVERIFY(link->lastMessage().isEmpty());
            link->sendMessage("Download");
            QVERIFY(!request.send("Version"));
            QTRY_COMPARE(failed.count(), 1);
            QCOMPARE(failed[0][0].value<ServiceRequest::Failure>(), ServiceRequest::Disabled);
            QTest::qWait(200);
            QCOMPARE(m_service.received(), QStringList{"HelloLauncher"});
            QCOMPARE(messages.count(), 0);
        }
        // The goodbye goes out in any case and switches the link on again.
        link->sendMessage(LocalSocket::kGoodbye);
        QVERIFY(link->isEnabled());
        QVERIFY(m_service.waitFor("< GoodbyeLauncher"));
        link->close();
        QVERIFY(link->socket() == nullptr);
        QVERIFY(m_service.waitFor("-"));
        QVERIFY(!LocalSocket::serviceConnected);
    }

    void silentServiceIsGivenUpAndTheWindowStillDraws() {
        QVERIFY(m_service.start({"HelloLauncher=@silent"}));
        PaintCounter window;
        window.resize(200, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTimer redraw;
        connect(&redraw, &QTimer::timeout, &window, qOverload<>(&QWidget::update));
        redraw.start(50);
        window.paints = 0;

        QObject owner;
        LocalSocket* link = connectLink(&owner);
        // Drawn between the waits, not only after them.
        QVERIFY2(window.paints >= LocalSocket::kWaitCount / 2,
                 qPrintable(QString::number(window.paints)));
        QVERIFY(!LocalSocket::serviceConnected);
        QVERIFY(link->isEnabled());
        const QStringList log = logLines();
        QCOMPARE(log.count("[i] Wait... "), LocalSocket::kWaitCount);
        QVERIFY(log.contains("[e] Comm is not work!"));
        QVERIFY(log.contains("[i] GetMessage Complete! Message is : "));
        // Given up for good: nothing more is sent.
        link->sendMessage("Version");
        QTest::qWait(100);
        QCOMPARE(m_service.received(), QStringList{"HelloLauncher"});
    }

    void serviceHangsUpMidRequest() {
        // During the greeting.
        QVERIFY(m_service.start({"HelloLauncher=@close"}));
        {
            QObject owner;
            connectLink(&owner);
            QVERIFY(!LocalSocket::serviceConnected);
            QVERIFY(logLines().contains("[e] N: Error = PeerClosedError"));
            QVERIFY(logLines().contains("[e] Comm is not work!"));
        }
        // During a view's question: the question ends at once, not at its time limit.
        QVERIFY(m_service.start({"Version=@close"}));
        QObject owner;
        connectLink(&owner);
        QVERIFY(LocalSocket::serviceConnected);
        ServiceRequest request;
        request.setAnswerMs(60000);
        QSignalSpy failed(&request, &ServiceRequest::onSendFailed);
        QVERIFY(request.send("Version"));
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed[0][0].value<ServiceRequest::Failure>(), ServiceRequest::LinkLost);
        QVERIFY(!LocalSocket::serviceConnected);
    }

    // A silent service costs that question only; the link stays for the next question, whose
    // answer reaches the one who asked it alone.
    void questionWithoutAnswerThenAnother() {
        QVERIFY(m_service.start({"Version=@silent", "Report=Send_Complete"}));
        QObject owner;
        connectLink(&owner);
        ServiceRequest first;
        ServiceRequest second;
        first.setAnswerMs(300);
        QSignalSpy failed(&first, &ServiceRequest::onSendFailed);
        QSignalSpy firstAnswers(&first, &ServiceRequest::onSendAnswer);
        QSignalSpy answers(&second, &ServiceRequest::onSendAnswer);
        QVERIFY(first.send("Version"));
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed[0][0].value<ServiceRequest::Failure>(), ServiceRequest::NoAnswer);
        QVERIFY(!first.isWaiting());
        QVERIFY(LocalSocket::serviceConnected);
        QVERIFY(second.send("Report"));
        QTRY_COMPARE(answers.count(), 1);
        QCOMPARE(answers[0][0].toString(), QString("Send_Complete"));
        QTest::qWait(100);
        QCOMPARE(firstAnswers.count(), 0);
    }

    void closeThatTheServiceDoesNotConfirm() {
        // The service stops reading; a big message fills the socket, so the disconnect has
        // bytes to deliver first and cannot complete.
        QVERIFY(m_service.start({"HelloLauncher=HelloClient|@deaf"}));
        QObject owner;
        LocalSocket* link = connectLink(&owner);
        QVERIFY(m_service.waitFor("deaf"));
        link->sendMessage(QString(8 * 1024 * 1024, 'x'));
        QVERIFY(link->socket()->bytesToWrite() > 0);
        const int lines = logLines().size();
        link->close();
        QVERIFY(link->socket() == nullptr);
        const QStringList after = logLines().mid(lines);
        QCOMPARE(after.value(0), QString("[i] LocalSocket::close"));
        QVERIFY(after.contains("[i] N: State = ClosingState"));
        QVERIFY(!after.contains("[i] N: State = UnconnectedState"));
        QVERIFY(!LocalSocket::serviceConnected);
        // What comes later finds no socket and does no harm.
        link->sendMessage(LocalSocket::kGoodbye);
        QCOMPARE(link->getMessage(), QString());
        link->close();
    }

    void anyErrorEndsTheLink() {
        // Every error counts as the link gone, logged or not.
        LocalSocket link;
        LocalSocket::serviceConnected = true;
        QSignalSpy lost(&link, &LocalSocket::onSendConnectionLost);
        link.onRecvError(QLocalSocket::LocalSocketError(8));
        QVERIFY(!LocalSocket::serviceConnected);
        QCOMPARE(lost.count(), 1);
    }

    void versionComparison() {
        QVERIFY(VersionText::isNewer("1.0.7", "1.0.6"));
        QVERIFY(VersionText::isNewer("1.0.10", "1.0.9"));
        QVERIFY(VersionText::isNewer("1.07", "1.06"));
        QVERIFY(!VersionText::isNewer("1.0.6", "1.0.6"));
        QVERIFY(!VersionText::isNewer("1.0.5", "1.0.6"));
        QVERIFY(!VersionText::isNewer("2.0", "10.0"));
        for (const char* no :
             {"", "inf", "1e9", " 1.0.7", "1.0.7\n", "1..0", "v1.0.7", "\u0661.\u0660"})
            QVERIFY2(!VersionText::isVersion(QString::fromUtf8(no)), no);
        QVERIFY(!VersionText::isVersion(QString(40, '1')));
        QCOMPARE(VersionText::judge("1.0.6"), VersionText::Latest);
        QCOMPARE(VersionText::judge("1.1"), VersionText::Newer);
    }
};

QTEST_MAIN(TestLocalSocket)
#include "test_localsocket.moc"
