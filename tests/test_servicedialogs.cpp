// The companion service against the stand-in service (a real local server): the link and the
// views' requests over it, and what the user meets: the version check at start, the about and
// update dialogs, the settings pages, and no service at all.
#include "AboutView.h"
#include "AppGlobals.h"
#include "LocalSocket.h"
#include "ServiceSession.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "SettingOptCrashReport.h"
#include "SettingOptProgram.h"
#include "SettingOptUpdate.h"
#include "SettingView.h"
#include "TavPrompt.h"
#include "UpdateView.h"
#include "VersionText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

namespace {

// The stand-in service (tools/service_standin) with its answers and transcript ("< Version",
// "> 1.0.7", ...), met in a TMPDIR of its own (where a local socket's name lives on Linux) so
// that tests side by side never meet; made before any QLocalSocket is.
class ServiceFixture {
public:
    ServiceFixture() { qputenv("TMPDIR", m_temp.path().toLocal8Bit()); }
    ~ServiceFixture() { stop(); }

    // Starts the stand-in with these `--answer REQUEST=ANSWER` pairs; false if it is not up.
    bool start(const QStringList& answers = {}) {
        stop();
        QFile::remove(transcriptPath());
        QStringList arguments = {"--transcript", transcriptPath()};
        for (const QString& answer : answers)
            arguments << "--answer" << answer;
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(SERVICE_STANDIN), arguments);
        if (!m_process.waitForStarted(10000))
            return false;
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(10000))
                return false;
        return m_process.readLine().trimmed() == "listening";
    }
    void stop() {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(10000);
        }
    }
    QStringList transcript() const {
        QFile file(transcriptPath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    }
    // The messages the program sent, in order.
    QStringList received() const {
        static const QRegularExpression sent(QStringLiteral("^< "));
        return transcript().filter(sent).replaceInStrings(sent, QString());
    }
    bool waitFor(const QString& line) const {
        return QTest::qWaitFor([&] { return transcript().contains(line); }, 15000);
    }

private:
    QString transcriptPath() const { return m_temp.filePath("transcript.txt"); }
    QTemporaryDir m_temp;
    QProcess m_process;
};

// Counts the times it is drawn.
class PaintCounter : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

} // namespace

class TestServiceDialogs : public QObject {
    Q_OBJECT

    ServiceFixture m_service;
    QTemporaryDir m_dir;
    QWidget m_window;
    QStringList m_messages;
    QStringList m_questions;
    bool m_answer = false;
    // The user answers only after the service has hung up.
    bool m_answerAfterLinkLoss = false;

    // The status log's lines without their time stamps ("[i] N: State = ...").
    QStringList logLines() const {
        QFile file(AppGlobals::statusLogPath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QStringList lines;
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.size() > 15)
                lines << QString::fromLocal8Bit(line.mid(15));
        return lines;
    }

    // A link made as the main window makes it, connected and greeted.
    LocalSocket* connectLink(QObject* owner) {
        auto* link = new LocalSocket(owner);
        LocalSocket::link = link;
        link->connectService();
        return link;
    }

    static QPushButton* button(QWidget* view, const char* name) {
        return view->findChild<QPushButton*>(QLatin1String(name));
    }

    static QString notWorking() {
        return ServiceRequest::failureText(ServiceRequest::NotConnected);
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.filePath("data");
        QDir().mkpath(AppGlobals::dataFolder);
        AppGlobals::programFolder = QCoreApplication::applicationDirPath();
        AppGlobals::resourcesFolder = AppGlobals::programFolder + "/Resources";
        AppGlobals::settings = new QSettings(m_dir.filePath("settings.ini"), QSettings::IniFormat);
        AppGlobals::translator = new QTranslator;
        AppGlobals::version = "1.0.6";
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
        TavPrompt::askTitledHook = [this](const QString& title, const QString& text) {
            m_questions << title + ": " + text;
            if (m_answerAfterLinkLoss)
                (void)QTest::qWaitFor([] { return !LocalSocket::serviceConnected; }, 5000);
            return m_answer;
        };
        m_window.resize(800, 600);
    }

    void init() {
        m_messages.clear();
        m_questions.clear();
        AppGlobals::settings->clear();
        AppGlobals::settings->setValue("agreement", "3");
        AppGlobals::updateChecksAllowed = true;
        AppGlobals::autoCrashReports = false;
        QFile::remove(AppGlobals::statusLogPath());
        LocalSocket::serviceConnected = false;
    }

    void cleanup() {
        m_service.stop();
        LocalSocket::link = nullptr;
    }

    // ---- The link ----

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
        LocalSocket::waitMs = 200; // the ten waits, each shorter
        LocalSocket* link = connectLink(&owner);
        LocalSocket::waitMs = LocalSocket::kWaitMs;
        // Drawn between the waits, not only after them.
        QVERIFY2(window.paints >= LocalSocket::kWaitCount / 2,
                 qPrintable(QString::number(window.paints)));
        QVERIFY(!LocalSocket::serviceConnected);
        QVERIFY(link->isEnabled());
        QCOMPARE(logLines().count("[i] Wait... "), LocalSocket::kWaitCount);
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
            QVERIFY(logLines().contains("[e] N: Error = PeerClosedError")); // not a time-out
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

    // A silent service costs that question only; the next answer reaches only its asker.
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
        // The service stops reading and a big message fills the socket: no disconnect completes.
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
        // judge(): the about view's rows against the stand-in.
    }

    // ---- The dialogs ----

    // Without a service the link logs why and sends nothing, and each view says so at once.
    void withoutServiceEachSaysSo() {
        ServiceSession session(&m_window);
        QVERIFY(!LocalSocket::serviceConnected);
        // Not found, or refused where an earlier test's service left its socket file.
        QTRY_VERIFY(!logLines().filter("[e] N: Error = ").isEmpty());
        session.startVersionCheck();

        AboutView about;
        button(&about, "bUpdate")->click();
        QTRY_COMPARE(m_messages, QStringList{notWorking()});

        UpdateView update("1.0.7");
        QCOMPARE(update.stateLabel()->text(), notWorking());
        button(&update, "bDownload")->click();
        QTRY_COMPARE(m_messages.size(), 2);
        QVERIFY(!update.isDownloading());

        SettingView settings;
        QCOMPARE(settings.updatePage()->updateNowRow()->hint()->text(), notWorking());
        QCOMPARE(settings.crashReportPage()->sendRow()->hint()->text(), notWorking());
        settings.updatePage()->updateNowRow()->button()->click();
        settings.crashReportPage()->sendRow()->button()->click();
        QTRY_COMPARE(m_messages, QVector<QString>(4, notWorking()).toList());
        session.close();
        QVERIFY(!logLines().join('\n').contains("Send Message"));
        QVERIFY(!logLines().contains("[i] Wait... "));
    }

    // No update and a completed download are the real program's runs in test_service_program.
    void versionCheckAtStart_data() {
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QStringList>("received");
        QTest::addColumn<QStringList>("messages");
        const QString hello = LocalSocket::kHello;
        QTest::newRow("update declined") << QStringList{"@version=FindUpdate"} << false
                                         << QStringList{hello, "1.0.6"} << QStringList{};
        QTest::newRow("download fails")
            << QStringList{"@version=FindUpdate", "Download=fail"} << true
            << QStringList{hello, "1.0.6", "Download"}
            << QStringList{ServiceRequest::failureText(ServiceRequest::DownloadFailed)};
        QTest::newRow("link lost before Yes")
            << QStringList{"@version=FindUpdate|@sleep=100|@close", "Download=wait",
                           "DownloadWaiting=@sleep=300|complete"}
            << true
            << QStringList{hello, "1.0.6", hello, "Download", "DownloadWaiting", "closeToDoNot"}
            << QStringList{"The new version has been downloaded. The program closes now so "
                           "that it can be installed."};
        QTest::newRow("unknown answer") << QStringList{"@version=@garbage"} << true
                                        << QStringList{hello, "1.0.6"} << QStringList{};
    }

    void versionCheckAtStart() {
        QFETCH(QStringList, answers);
        QFETCH(bool, yes);
        QFETCH(QStringList, received);
        QFETCH(QStringList, messages);
        QVERIFY(m_service.start(answers));
        m_answer = yes;
        m_answerAfterLinkLoss = answers.join('|').contains("@close");
        ServiceSession session(&m_window);
        QVERIFY(LocalSocket::serviceConnected);
        QSignalSpy quit(&session, &ServiceSession::onSendQuitForUpdate);
        session.startVersionCheck();
        QTRY_COMPARE(m_service.received(), received);
        QTest::qWait(300);
        QCOMPARE(m_service.received(), received);
        QCOMPARE(m_messages, messages);
        QCOMPARE(quit.count(), int(received.contains("closeToDoNot")));
        if (received.contains("Download"))
            QCOMPARE(m_questions, QStringList{"Update Message: find Update Version\nWould you "
                                              "like to download now?"});
        // Whatever the service said is in the log as text, printf directives included.
        QVERIFY(logLines().join('\n').contains("[d] [MainWindow] RecvMessage: "));
        if (QTest::currentDataTag() == QLatin1String("unknown answer"))
            QVERIFY(logLines().join('\n').contains("%n%s%s"));
    }

    void noVersionCheckWithoutPermission() {
        QVERIFY(m_service.start());
        AppGlobals::updateChecksAllowed = false;
        ServiceSession session(&m_window);
        session.startVersionCheck();
        QTest::qWait(300);
        QCOMPARE(m_service.received(), QStringList{LocalSocket::kHello});
    }

    void updateDialogAcceptedClosesTheProgram() {
        QVERIFY(m_service.start());
        ServiceSession session(&m_window);
        QSignalSpy quit(&session, &ServiceSession::onSendQuitForUpdate);
        session.onUpdateDlgFinished(0);
        QCOMPARE(quit.count(), 0);
        session.onUpdateDlgFinished(1);
        QCOMPARE(quit.count(), 1);
        QVERIFY(m_service.waitFor("< closeToDoNot"));
    }

    void aboutView_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("offered");
        const QString unknown = ServiceRequest::failureText(ServiceRequest::NotUnderstood);
        QTest::newRow("newer") << "1.0.7"
                               << "Version 1.0.7 is out." << true;
        QTest::newRow("same") << "1.0.6"
                              << "This is the latest version." << false;
        QTest::newRow("garbage") << "@garbage" << unknown << false;
        QTest::newRow("very long") << "@long=300000" << unknown << false;
        QTest::newRow("silent") << "@silent"
                                << ServiceRequest::failureText(ServiceRequest::NoAnswer) << false;
        QTest::newRow("hangs up") << "@close"
                                  << ServiceRequest::failureText(ServiceRequest::LinkLost) << false;
    }

    void aboutView() {
        QFETCH(QString, answer);
        QFETCH(QString, state);
        QFETCH(bool, offered);
        QVERIFY(m_service.start({"Version=" + answer}));
        ServiceSession session(&m_window);
        AboutView view(&m_window);
        view.findChild<ServiceRequest*>()->setAnswerMs(500);
        QSignalSpy showUpdate(&view, &AboutView::onSendShowUpdate);
        QVERIFY(view.findChild<QLabel*>("lVersion")->text().contains("1.0.6"));
        button(&view, "bUpdate")->click();
        QTRY_COMPARE(view.stateLabel()->text(), state);
        QVERIFY(m_service.received().contains("Version"));
        QPushButton* update = button(&view, "bDownload");
        QCOMPARE(update->isEnabled(), offered);
        if (offered) {
            QVERIFY(m_messages.isEmpty());
            update->click();
            QCOMPARE(showUpdate.count(), 1);
            QCOMPARE(showUpdate[0][0].toString(), answer);
        } else if (state != "This is the latest version.") {
            // Told in a message too, and the question may be asked again.
            QCOMPARE(m_messages, QStringList{state});
            QVERIFY(button(&view, "bUpdate")->isEnabled());
        }
        for (const QString& line : logLines())
            QVERIFY(line.mid(4).size() < 1024); // the log's line buffer
    }

    void updateDialog_data() {
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<int>("result");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("waits, then complete")
            << QStringList{"Download=wait", "DownloadWaiting=@sleep=300|complete"} << 1
            << QStringList{};
        QTest::newRow("fails") << QStringList{"Download=fail"} << -1
                               << QStringList{
                                      ServiceRequest::failureText(ServiceRequest::DownloadFailed)};
        QTest::newRow("unknown answer")
            << QStringList{"Download=@garbage"} << -1
            << QStringList{ServiceRequest::failureText(ServiceRequest::NotUnderstood)};
        QTest::newRow("service switched off")
            << QStringList{"HelloLauncher=DisableNetwork"} << -1
            << QStringList{ServiceRequest::failureText(ServiceRequest::Disabled)};
    }

    void updateDialog() {
        QFETCH(QStringList, answers);
        QFETCH(int, result);
        QFETCH(QStringList, messages);
        QVERIFY(m_service.start(answers));
        ServiceSession session(&m_window);
        UpdateView view("1.0.7", &m_window);
        QVERIFY(view.findChild<QLabel*>("lVersions")->text().contains("1.0.7"));
        QSignalSpy finished(&view, &QDialog::finished);
        button(&view, "bDownload")->click();
        if (result == 1) {
            QVERIFY(view.isDownloading());
            QVERIFY(!button(&view, "bDownload")->isEnabled());
            QTRY_COMPARE(finished.count(), 1);
            QCOMPARE(finished[0][0].toInt(), 1);
            QCOMPARE(m_service.received(),
                     (QStringList{LocalSocket::kHello, "Download", "DownloadWaiting"}));
        } else {
            QTRY_COMPARE(m_messages, messages);
            QCOMPARE(finished.count(), 0);
            QVERIFY(!view.isDownloading());
            QVERIFY(button(&view, "bDownload")->isEnabled());
        }
    }

    void updateDialogKeepsTheUpdateCheckChoice() {
        QVERIFY(m_service.start());
        ServiceSession session(&m_window);
        AppGlobals::settings->setValue("agreement", "7");
        AppGlobals::autoCrashReports = true;
        UpdateView view;
        auto* check = view.findChild<QCheckBox*>("chkUpdate");
        QVERIFY(check->isChecked());
        check->click();
        QCOMPARE(AppGlobals::settings->value("agreement").toString(), QString("5"));
        QVERIFY(!AppGlobals::updateChecksAllowed);
        QVERIFY(m_service.waitFor("< updateAgreement"));
        check->click();
        QCOMPARE(AppGlobals::settings->value("agreement").toString(), QString("7"));
    }

    void programPage() {
        SettingView view;
        SettingOptProgram* page = view.programPage();
        QSignalSpy language(&view, &SettingView::onSendChangeLanguage);
        QSignalSpy unit(&view, &SettingView::onSendSpeedUnit);

        const auto clickUnit = [page](const QString& text) {
            for (QPushButton* candidate : page->option("Speed Unit")->findChildren<QPushButton*>())
                if (candidate->text() == text)
                    candidate->click();
        };
        clickUnit("Mi/h");
        QCOMPARE(AppGlobals::speedUnit, 2);
        QCOMPARE(unit.count(), 1); // for the map, which shows it at once
        QCOMPARE(unit.first().first().toInt(), 2);
        QCOMPARE(AppGlobals::settings->value("speedUnit").toInt(), 2);
        clickUnit("Km/h");
        QCOMPARE(AppGlobals::speedUnit, 1);

        // The chooser opens where the folder is now: the default one (when it exists, else
        // the home folder) before any is chosen.
        QStringList starts;
        const QString before = QDir(AppGlobals::defaultSnapshotFolder()).exists()
                                   ? AppGlobals::defaultSnapshotFolder()
                                   : QDir::homePath();
        TavPrompt::openFolderHook = [this, &starts](const QString& start) {
            starts << start;
            return m_dir.filePath("shots");
        };
        page->snapshotRow()->button()->click();
        QCOMPARE(AppGlobals::snapshotPath, m_dir.filePath("shots"));
        QVERIFY(QDir().mkpath(m_dir.filePath("shots")));
        page->snapshotRow()->button()->click();
        QCOMPARE(starts, (QStringList{before, m_dir.filePath("shots")}));
        QCOMPARE(page->snapshotRow()->hint()->text(),
                 QDir::toNativeSeparators(m_dir.filePath("shots")));
        TavPrompt::openFolderHook = [](const QString&) { return QString(); }; // cancelled
        page->videoRow()->button()->click();
        QVERIFY(AppGlobals::videoPath.isEmpty());
        QCOMPARE(page->videoRow()->hint()->text(),
                 QDir::toNativeSeparators(AppGlobals::defaultVideoFolder()));
        TavPrompt::openFolderHook = nullptr;

        // Drives: the gap and the thresholds are kept and announced at once.
        QSignalSpy rules(&view, &SettingView::onSendDriveRules);
        auto* gap = page->option("Drive Gap")->findChild<QComboBox*>();
        gap->setCurrentIndex(gap->findText("1 min"));
        emit gap->activated(gap->currentIndex());
        QCOMPARE(AppGlobals::driveGapSeconds, 60);
        QCOMPARE(AppGlobals::settings->value("driveGapSeconds").toInt(), 60);
        auto* thresholds = page->option("Incident Thresholds")->findChild<QComboBox*>();
        thresholds->setCurrentIndex(thresholds->findText("80 %"));
        emit thresholds->activated(thresholds->currentIndex());
        QCOMPARE(AppGlobals::incidentScalePercent, 80);
        QCOMPARE(rules.count(), 2);
        gap->setCurrentIndex(gap->findText("10 s"));
        emit gap->activated(gap->currentIndex());
        QCOMPARE(AppGlobals::driveGapSeconds, 10);

        QVERIFY(SettingOptProgram::keepsSettings());
        page->option("Keep Settings")->findChild<QPushButton*>()->click();
        QVERIFY(!SettingOptProgram::keepsSettings());

        // Korean at once, in the dialog too; then back.
        auto* combo = page->option("Language")->findChild<QComboBox*>();
        const QString english = button(&view, "bProgram")->text();
        combo->setCurrentIndex(1);
        emit combo->activated(1);
        QCOMPARE(AppGlobals::languageIndex, 1);
        QCOMPARE(language.count(), 1);
        QVERIFY(button(&view, "bProgram")->text() != english);
        QVERIFY(page->snapshotRow()->button()->text() != "Change");
        combo->setCurrentIndex(0);
        emit combo->activated(0);
        QCOMPARE(button(&view, "bProgram")->text(), english);
        QCOMPARE(page->snapshotRow()->button()->text(), QString("Change"));
        AppGlobals::snapshotPath.clear();
    }

    // The update and crash report pages, and the agreement bits they keep.
    void updateAndCrashReportPages_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("offered");
        QTest::newRow("newer") << "1.0.7" << true;
        QTest::newRow("latest") << "1.0.6" << false;
    }

    void updateAndCrashReportPages() {
        QFETCH(QString, answer);
        QFETCH(bool, offered);
        QVERIFY(m_service.start({"Version=" + answer, "Report=Send_Complete"}));
        ServiceSession session(&m_window);
        SettingView view;
        SettingOptUpdate* page = view.updatePage();
        QVERIFY(page->updateNowRow()->hint()->text().isEmpty());
        QSignalSpy showUpdate(&view, &SettingView::onSendShowUpdate);
        page->updateNowRow()->button()->click();
        QTRY_VERIFY(!page->updateNowRow()->hint()->text().startsWith("Asking"));
        QCOMPARE(showUpdate.count(), offered ? 1 : 0);
        if (!offered)
            QCOMPARE(page->updateNowRow()->hint()->text(), QString("This is the latest version."));
        page->updateCheckRow()->findChild<QPushButton*>()->click();
        QCOMPARE(AppGlobals::settings->value("agreement").toString(), QString("1"));
        QVERIFY(m_service.waitFor("< updateAgreement"));

        SettingOptCrashReport* reports = view.crashReportPage();
        reports->sendRow()->button()->click();
        QTRY_COMPARE(m_messages, QStringList{"The transfer is complete."});
        QCOMPARE(reports->sendRow()->hint()->text(), QString("The transfer is complete."));
        QCOMPARE(m_service.received(),
                 (QStringList{LocalSocket::kHello, "Version", "updateAgreement", "Report"}));
        reports->autoReportRow()->findChild<QPushButton*>()->click();
        QCOMPARE(AppGlobals::settings->value("agreement").toString(), QString("5"));
        QVERIFY(AppGlobals::autoCrashReports);
    }
};

QTEST_MAIN(TestServiceDialogs)
#include "test_servicedialogs.moc"
