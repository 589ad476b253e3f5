// The real binary started as a user does, each run with its own home: what it leaves behind.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

class TestStartup : public QObject {
    Q_OBJECT

    QTemporaryDir m_home;

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

    // Waits until the window reports itself built.
    void waitForWindow(QProcess& process) {
        QTRY_VERIFY_WITH_TIMEOUT(logMessages().contains(":: [d] create mainWindow success") ||
                                     process.state() == QProcess::NotRunning,
                                 20000);
        QVERIFY(process.state() == QProcess::Running);
    }

private slots:
    void init() {
        QVERIFY(m_home.isValid());
        QDir(m_home.path()).removeRecursively();
        QDir().mkpath(m_home.path());
    }

    void refusedAgreementEndsBeforeTheWindow() {
        storeSettings({{"agreement", "2"}, {"version", "1.0.5"}, {"language", 1}});
        QProcess process;
        start(process);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);

        const QStringList expected = {
            ":: [l] --------------------------------------------------",
            ":: [l]  This is log file to record Player status.",
            ":: [l]  This file should not collect user's information.",
            ":: [l] --------------------------------------------------",
            ":: [i] [Main]: Program is run.",
            ":: [i] [Main]: Main Function start now.",
            ":: [i] [Main]: QApplication start..",
            ":: [i] [Main]: Set Splash image...",
            ":: [l] Complete! ",
            ":: [i] [Main]: Set Translation file...",
            ":: [i] [Main]: MainWindow start now!",
            ":: [i] [MainWindow]: Enter MainWindow class.",
            // No companion service runs: the link says so and the start goes on.
            ":: [i] N: State = ConnectingState",
            ":: [e] N: Error = ServerNotFoundError",
            ":: [i] N: State = UnconnectedState",
            ":: [i] User disagree to use privacy information for program",
        };
        QCOMPARE(logMessages(), expected);
        QCOMPARE(storedValue("version").toString(), QString("1.0.6"));
        QCOMPARE(storedValue("language").toInt(), 1);
    }

    void normalCloseSavesSettingsAndRemovesItsTraces() {
        storeSettings({{"agreement", "1"}, {"version", "1.0.6"}, {"volume", 40}, {"mute", true}});
        for (const char* folder : {"/Thumbs", "/snapshot", "/CONFIG"}) {
            QVERIFY(QDir().mkpath(dataFolder() + folder + "/inner"));
            QFile leftover(dataFolder() + folder + "/inner/file.jpg");
            QVERIFY(leftover.open(QIODevice::WriteOnly));
        }
        QProcess process;
        start(process);
        waitForWindow(process);
        // The session asks the program to end, as at logout.
        ::kill(pid_t(process.processId()), SIGTERM);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);

        QVERIFY2(!QFile::exists(logFile()), qPrintable(logLines().join('\n')));
        for (const char* folder : {"/Thumbs", "/snapshot", "/CONFIG"})
            QVERIFY(!QFile::exists(dataFolder() + folder));
        QCOMPARE(storedValue("width").toInt(), 1366);
        QCOMPARE(storedValue("height").toInt(), 768);
        QVERIFY(storedValue("geoX").isValid());
        QCOMPARE(storedValue("volume").toInt(), 40);
        QCOMPARE(storedValue("mute").toBool(), true);
        QCOMPARE(storedValue("language").toInt(), 0);
        QCOMPARE(storedValue("version").toString(), QString("1.0.6"));
        QCOMPARE(storedValue("agreement").toString(), QString("1"));
    }

    void settingsAreNotKeptWhenTheUserSaidSo() {
        storeSettings({{"agreement", "1"}, {"keepSettings", false}, {"volume", 40}});
        QProcess process;
        start(process);
        waitForWindow(process);
        ::kill(pid_t(process.processId()), SIGTERM);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!storedValue("width").isValid());
        QCOMPARE(storedValue("volume").toInt(), 40);
        QVERIFY(!QFile::exists(logFile()));
    }

    void killedProcessLeavesTheLogForTheNextRun() {
        storeSettings({{"agreement", "5"}, {"language", 3}});
        QProcess process;
        start(process);
        waitForWindow(process);
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
        QCOMPARE(all.last(),
                 QString(":: [i] User disagree to use privacy information for program"));
    }
};

QTEST_GUILESS_MAIN(TestStartup)
#include "test_startup.moc"
