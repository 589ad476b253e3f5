// The status log: the lines' exact form, levels, cutting, and several threads writing at once.
#include "AppGlobals.h"
#include "StatusLog.h"
#include "StatusLogWriter.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>
#include <vector>

class TestStatusLog : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    QByteArray logContents() const {
        QFile file(AppGlobals::statusLogPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init() {
        QVERIFY(m_dir.isValid());
        AppGlobals::dataFolder = m_dir.path();
        AppGlobals::logLevel = 5;
        QFile::remove(AppGlobals::statusLogPath());
    }

    // Each writer appends time, marker and message below an earlier run's lines.
    void everyWriterAppendsItsLine() {
        const std::string line = StatusLogWriter::formatLine(
            StatusLogWriter::Info, "[Main]: Program is run.", 1700000000005LL);
        QVERIFY2(QRegularExpression(
                     "^\\d\\d:\\d\\d:\\d\\d\\.005:: \\[i\\] \\[Main\\]: Program is run\\.\\n$")
                     .match(QString::fromStdString(line))
                     .hasMatch(),
                 line.c_str());
        {
            QFile old(AppGlobals::statusLogPath());
            QVERIFY(old.open(QIODevice::WriteOnly));
            old.write("earlier run\n");
        }
        logError("%s %d", "error", 1);
        logWarning("warning");
        logInfo("info");
        logLine("Complete! ");
        logDebug("MainWindow::onShowFilelist");
        const QByteArray text = logContents();
        QVERIFY(!text.contains('\r'));
        const QList<QByteArray> lines = text.split('\n');
        QCOMPARE(lines.size(), 7); // the earlier line, five lines and the empty rest
        QCOMPARE(lines[0], QByteArray("earlier run"));
        const char* expected[] = {":: [e] error 1", ":: [w] warning", ":: [i] info",
                                  ":: [l] Complete! ", ":: [d] MainWindow::onShowFilelist"};
        for (int i = 0; i < 5; ++i)
            QCOMPARE(lines[i + 1].mid(12), QByteArray(expected[i]));
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
        AppGlobals::dataFolder = m_dir.path() + "/missing/folder";
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
};

QTEST_GUILESS_MAIN(TestStatusLog)
#include "test_statuslog.moc"
