// The first start: the stored agreement answers and what the dialog stores; the status log's
// lines, levels, cutting and threads; and the real binary started as a user does, each run
// with its own home, with what it leaves behind.
#include "AgreementView.h"
#include "AppGlobals.h"
#include "AppStartup.h"
#include "MainWindow.h"
#include "StatusLog.h"
#include "StatusLogWriter.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <thread>
#include <vector>

class TestStartup : public QObject {
    Q_OBJECT

    QTemporaryDir m_home;
    QTemporaryDir m_data;

    QString settingsFile() const { return m_home.path() + "/.config/qorbu/tavoric.conf"; }
    QString dataFolder() const {
        return m_home.path() + "/.local/share/com.ZENTA_DASHCAM/ZENTA DASHCAM";
    }
    QString logFile() const { return dataFolder() + "/playerStatus.txt"; }

    void storeSettings(const QVariantMap& values) {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.clear();
        for (auto it = values.begin(); it != values.end(); ++it)
            settings.setValue(it.key(), it.value());
    }
    QVariant storedValue(const QString& key) const {
        return QSettings(settingsFile(), QSettings::IniFormat).value(key);
    }
    QStringList logLines() const {
        QFile file(logFile());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QStringList lines = QString::fromLocal8Bit(file.readAll()).split('\n');
        lines.removeLast();
        return lines;
    }
    // The message of each line, without time stamp; the marker stays.
    QStringList logMessages() const {
        QStringList messages;
        for (const QString& line : logLines())
            messages << line.mid(12);
        return messages;
    }

    void start(QProcess& process) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", m_home.path());
        // Where a companion service would listen: none does in this folder.
        env.insert("TMPDIR", m_home.path());
        env.remove("XDG_CONFIG_HOME");
        env.remove("XDG_DATA_HOME");
        if (env.value("DISPLAY").isEmpty())
            env.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(env);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(TAVORIC_BINARY, QStringList());
        QVERIFY(process.waitForStarted());
    }

    QByteArray logContents() const {
        QFile file(AppGlobals::statusLogPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // Waits until the window reports itself built; false if the program ended first.
    bool windowBuilt(QProcess& process) {
        for (int i = 0; i < 200 && process.state() == QProcess::Running; ++i) {
            if (logMessages().contains(":: [d] create mainWindow success"))
                return true;
            QTest::qWait(100);
        }
        return false;
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_data.path();
        AppGlobals::settings = new QSettings(m_data.filePath("settings.ini"), QSettings::IniFormat);
    }

    void storedAnswers_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<bool>("updates");
        QTest::addColumn<bool>("reports");
        QTest::newRow("0") << "0" << true << false << false;
        QTest::newRow("1") << "1" << true << false << false;
        QTest::newRow("3") << "3" << true << true << false;
        QTest::newRow("5") << "5" << true << false << true;
        QTest::newRow("7") << "7" << true << true << true;
        QTest::newRow("2 refused") << "2" << false << false << false;
        QTest::newRow("6") << "6" << false << false << false;
        QTest::newRow("empty") << "" << false << false << false;
        QTest::newRow("padded") << " 1" << false << false << false;
        QTest::newRow("text") << "yes" << false << false << false;
    }
    void storedAnswers() {
        QFETCH(QString, value);
        QFETCH(bool, accepted);
        QFETCH(bool, updates);
        QFETCH(bool, reports);
        AppGlobals::updateChecksAllowed = false;
        AppGlobals::autoCrashReports = false;
        QCOMPARE(AppStartup::acceptAgreementValue(value), accepted);
        QCOMPARE(AppGlobals::updateChecksAllowed, updates);
        QCOMPARE(AppGlobals::autoCrashReports, reports);
    }

    void dialogStoresTheChoiceOnAgree() {
        AgreementView dialog;
        auto* updates = dialog.findChild<QCheckBox*>("chkUpdate");
        auto* reports = dialog.findChild<QCheckBox*>("chkReport");
        auto* agree = dialog.findChild<QPushButton*>("bAgree");
        QVERIFY(updates && reports && agree);
        QVERIFY(updates->isChecked());
        QVERIFY(!reports->isChecked());
        QTest::mouseClick(reports, Qt::LeftButton, {}, QPoint(4, reports->height() / 2));
        QTest::mouseClick(updates, Qt::LeftButton, {}, QPoint(4, updates->height() / 2));
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.show();
        QTest::mouseClick(agree, Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 1);
        QCOMPARE(AppGlobals::settings->value("agreement").toString(), QString("5"));
        // What the dialog stored is what the next start accepts.
        QVERIFY(
            AppStartup::acceptAgreementValue(AppGlobals::settings->value("agreement").toString()));
        QVERIFY(AppGlobals::autoCrashReports);
        QVERIFY(!AppGlobals::updateChecksAllowed);
    }

    void declineStoresNothing() {
        AppGlobals::settings->remove("agreement");
        AgreementView dialog;
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.show();
        QTest::mouseClick(dialog.findChild<QPushButton*>("bDisagree"), Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 0);
        QVERIFY(!AppGlobals::settings->contains("agreement"));
    }

    void init() {
        AppGlobals::dataFolder = m_data.path();
        AppGlobals::logLevel = 5;
        QFile::remove(AppGlobals::statusLogPath());
        QVERIFY(m_home.isValid());
        QDir(m_home.path()).removeRecursively();
        QDir().mkpath(m_home.path());
    }

    // ---- The status log ----

    void everyWriterAppendsItsLine() {
        const std::string line = StatusLogWriter::formatLine(
            StatusLogWriter::Info, "[Main]: Program is run.", 1700000000005LL);
        QVERIFY2(QRegularExpression(
                     "^\\d\\d:\\d\\d:\\d\\d\\.005:: \\[i\\] \\[Main\\]: Program is run\\.\\n$")
                     .match(QString::fromStdString(line))
                     .hasMatch(),
                 line.c_str());
        // (Appending to an earlier run's lines: killedProcessLeavesTheLogForTheNextRun.)
        logError("%s %d", "error", 1);
        logWarning("warning");
        logInfo("info");
        logLine("Complete! ");
        logDebug("MainWindow::onShowFilelist");
        const QByteArray text = logContents();
        QVERIFY(!text.contains('\r'));
        const QList<QByteArray> lines = text.split('\n');
        QCOMPARE(lines.size(), 6); // five lines and the empty rest
        const char* expected[] = {":: [e] error 1", ":: [w] warning", ":: [i] info",
                                  ":: [l] Complete! ", ":: [d] MainWindow::onShowFilelist"};
        for (int i = 0; i < 5; ++i)
            QCOMPARE(lines[i].mid(12), QByteArray(expected[i]));
    }

    void writersBelowTheLevelStaySilent() {
        AppGlobals::logLevel = 2;
        logDebug("debug");
        logLine("line");
        logInfo("info");
        logError("error");
        const QByteArray text = logContents();
        QCOMPARE(text.count('\n'), 2);
        QVERIFY(text.contains(":: [i] info\n"));
        QVERIFY(text.contains(":: [e] error\n"));
    }

    void longMessagesAreCutAtTheBuffer() {
        const QByteArray longText(3000, 'x');
        logInfo("%s", longText.constData());
        const QByteArray text = logContents();
        QVERIFY(text.endsWith('\n'));
        const QByteArray message = text.mid(19, text.size() - 20); // after time and marker
        QCOMPARE(message.size(), int(StatusLogWriter::kMessageBufferSize) - 1);
        QCOMPARE(message.count('x'), 1023);
    }

    void unwritableLogLosesTheLineQuietly() {
        AppGlobals::dataFolder = m_data.path() + "/missing/folder";
        logError("lost");
        QVERIFY(!QFile::exists(AppGlobals::statusLogPath()));
    }

    void linesFromSeveralThreadsStayWhole() {
        constexpr int threads = 8;
        constexpr int perThread = 400;
        std::vector<std::thread> workers;
        for (int t = 0; t < threads; ++t) {
            workers.emplace_back([t] {
                // Long lines make a torn write likely if writes were not whole.
                const QByteArray body(900, char('a' + t));
                for (int i = 0; i < perThread; ++i)
                    logDebug("T%d #%04d %s", t, i, body.constData());
            });
        }
        for (auto& worker : workers)
            worker.join();

        const QList<QByteArray> lines = logContents().split('\n');
        QCOMPARE(lines.size(), threads * perThread + 1);
        const QRegularExpression form(
            "^\\d\\d:\\d\\d:\\d\\d\\.\\d{3}:: \\[d\\] T(\\d) #\\d{4} ([a-h])\\2{899}$");
        std::vector<int> counts(threads, 0);
        for (int i = 0; i < lines.size() - 1; ++i) {
            const auto match = form.match(QString::fromLatin1(lines[i]));
            QVERIFY2(match.hasMatch(), lines[i].left(60).constData());
            const int t = match.captured(1).toInt();
            QCOMPARE(match.captured(2).at(0).toLatin1(), char('a' + t));
            ++counts[t];
        }
        for (int count : counts)
            QCOMPARE(count, perThread);
    }

    // ---- The real binary ----

    void refusedAgreementEndsBeforeTheWindow() {
        storeSettings({{"agreement", "2"}, {"version", "1.0.5"}, {"language", 1}});
        QProcess process;
        start(process);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);

        // A fresh header, the start, the link's word that no service runs, the refusal last.
        const QStringList log = logMessages();
        QCOMPARE(log.value(0),
                 QString(":: [l] --------------------------------------------------"));
        QCOMPARE(log.value(4), QString(":: [i] [Main]: Program is run."));
        QCOMPARE(log.mid(log.size() - 4),
                 (QStringList{":: [i] N: State = ConnectingState",
                              ":: [e] N: Error = ServerNotFoundError",
                              ":: [i] N: State = UnconnectedState",
                              ":: [i] User disagree to use privacy information for program"}));
        QCOMPARE(storedValue("version").toString(), QString("1.0.6"));
        QCOMPARE(storedValue("language").toInt(), 1);
    }

    // SIGTERM (logout) removes its folders and stores the window unless told not to.
    void normalCloseRemovesItsTraces_data() {
        QTest::addColumn<bool>("keep");
        QTest::newRow("settings kept") << true;
        QTest::newRow("settings not kept") << false;
    }
    void normalCloseRemovesItsTraces() {
        QFETCH(bool, keep);
        storeSettings({{"agreement", "1"},
                       {"version", "1.0.6"},
                       {"volume", 40},
                       {"mute", true},
                       {"keepSettings", keep}});
        for (const char* folder : {"/Thumbs", "/snapshot", "/CONFIG"}) {
            QVERIFY(QDir().mkpath(dataFolder() + folder + "/inner"));
            QFile leftover(dataFolder() + folder + "/inner/file.jpg");
            QVERIFY(leftover.open(QIODevice::WriteOnly));
        }
        QProcess process;
        start(process);
        QVERIFY(windowBuilt(process));
        // Its exit code and the status log's removal: test_service_program, test_firstrun.
        ::kill(pid_t(process.processId()), SIGTERM);
        QVERIFY(process.waitForFinished(20000));
        for (const char* folder : {"/Thumbs", "/snapshot", "/CONFIG"})
            QVERIFY(!QFile::exists(dataFolder() + folder));
        QCOMPARE(storedValue("width").isValid(), keep);
        QCOMPARE(storedValue("geoX").isValid(), keep);
        if (keep)
            QCOMPARE(QSize(storedValue("width").toInt(), storedValue("height").toInt()),
                     QSize(1366, 768));
        QCOMPARE(storedValue("volume").toInt(), 40);
        QCOMPARE(storedValue("mute").toBool(), true);
        QCOMPARE(storedValue("agreement").toString(), QString("1"));
    }

    void killedProcessLeavesTheLogForTheNextRun() {
        storeSettings({{"agreement", "5"}, {"language", 3}});
        QProcess process;
        start(process);
        QVERIFY(windowBuilt(process));
        process.kill();
        QVERIFY(process.waitForFinished(20000));
        const QStringList afterCrash = logMessages();
        QVERIFY(afterCrash.contains(":: [d] create mainWindow success"));
        QVERIFY(!afterCrash.contains(":: [i] [MainWindow]: Close Application."));

        // The next start appends a fresh header below the old lines.
        storeSettings({{"agreement", "9"}});
        QProcess second;
        start(second);
        QVERIFY(second.waitForFinished(20000));
        QCOMPARE(second.exitCode(), 0);
        const QStringList all = logMessages();
        QCOMPARE(all.mid(0, afterCrash.size()), afterCrash);
        QCOMPARE(all.at(afterCrash.size()),
                 QString(":: [l] --------------------------------------------------"));
    }
};

QTEST_MAIN(TestStartup)
#include "test_startup.moc"
