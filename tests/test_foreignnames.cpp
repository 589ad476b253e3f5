// Other cameras' file names: each layout's date, type and channel, what stays refused, and how
// their channel files find each other.
#include "ChannelFiles.h"
#include "ContainerClock.h"
#include "NameSchemes.h"
#include "RecordingBatch.h"
#include "RecordingName.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kCameras = QStringLiteral(FOREIGN_MEDIA) + "/cameras/";

} // namespace

class TestForeignNames : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    QString touch(const QString& relative) {
        const QString path = m_dir.filePath(relative);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        return path;
    }

private slots:
    void layouts_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("start"); // empty: the name has no date
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("channel");
        const auto row = [](const char* tag, const char* name, const char* folder, int type,
                            int channel, bool dated = true) {
            QTest::newRow(tag) << QString(name) << QString(folder)
                               << (dated ? QString("2024-06-12 08:15:02") : QString()) << type
                               << channel;
        };
        row("type and channel letters", "20240612_081502_EF.mp4", "", 2, 0);
        row("letters, lower case", "20240612_081502_pr.MP4", "", 3, 1);
        row("interior camera", "20240612_081502_NI.mov", "", 1, 2);
        row("word, underscores everywhere", "REC_2024_06_12_08_15_02_F.MP4", "Event", 1, 0);
        row("type from the folder", "2024_06_12_08_15_02.MP4", "Parking", 3, -1);
        row("sequence and channel", "2024_06_12_08_15_02_0003_R.mov", "", 1, 1);
        row("YYYY_MMDD_HHMMSS_SEQ", "2024_0612_081502_001F.MP4", "", 1, 0);
        row("YYYY_MMDD, event letter", "2024_0612_081502_001ER.MP4", "", 2, 1);
        row("read-only folder", "2024_0612_081502_002.MP4", "RO", 2, -1);
        row("word and dashes", "NO20240612-081502-000002F.MP4", "", 1, 0);
        row("event word, dashes", "EV20240612-081502-000002R.MP4", "", 2, 1);
        row("dashes, manual folder", "20240612-081502.MOV", "manual", 4, -1);
        row("channel digit", "20240612_081502_2.mp4", "", 1, 1);
        row("type word after the sequence", "20240612_081502_0001_EVT_F.MP4", "", 2, 0);
        row("unknown word, normal folder", "FILE_20240612_081502.avi", "Normal", 1, -1);
        row("numbered action camera", "GH010123.MP4", "", 4, -1, false);
        row("numbered, lower case", "gopr0123.mp4", "Event", 2, -1, false);
    }
    void layouts() {
        QFETCH(QString, name);
        QFETCH(QString, folder);
        QFETCH(QString, start);
        QFETCH(int, type);
        QFETCH(int, channel);
        const ForeignName parsed = NameSchemes::parse(name, folder);
        QVERIFY(parsed.valid);
        QCOMPARE(parsed.start.toString("yyyy-MM-dd HH:mm:ss"), start);
        QCOMPARE(parsed.type, type);
        QCOMPARE(parsed.channel, channel);
        QVERIFY(RecordingName::isSupportedName("/cards/" + folder + "/" + name));
        QCOMPARE(RecordingName::typeOf("/cards/" + folder + "/" + name), type);
    }

    // The camera's own layout is judged by its grammar alone: what it refuses stays refused,
    // with another camera's layouts at hand.
    void refusedNamesStayRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("own, upper-case extension") << "20230415_083012_INF_1.MP4";
        QTest::newRow("own, two-digit mp4") << "20230415_083012_EVT_1_2.mp4";
        QTest::newRow("own, channel 6") << "20230415_083012_INF_6.mp4";
        QTest::newRow("own, lower-case type") << "20230415_083012_inf_1.mp4";
        QTest::newRow("own, too few fields") << "20230415_083012_INF1.mp4";
        QTest::newRow("own, mkv") << "20230415_083012_INF_1.mkv";
        QTest::newRow("30 February") << "20240230_081502_F.MP4";
        QTest::newRow("hour 25") << "20240612_251502_F.MP4";
        QTest::newRow("mkv") << "20240612_081502_F.mkv";
        QTest::newRow("channel 4") << "20240612_081502_4.mp4";
        QTest::newRow("no date") << "clip_final.MOV";
        QTest::newRow("notes") << "notes.mp4";
    }
    void refusedNamesStayRefused() {
        QFETCH(QString, name);
        QVERIFY(!RecordingName::isSupportedName("/cards/" + name));
        QVERIFY(!NameSchemes::parse(name).valid);
    }

    void channelFilesFindEachOther() {
        QCOMPARE(ChannelFiles::siblingPath("/d_F/2024_0612_081502_001F.MP4", 1),
                 QString("/d_F/2024_0612_081502_001R.MP4"));
        QCOMPARE(ChannelFiles::siblingPath("C:\\cam\\20240612_081502_ef.mp4", 2),
                 QString("C:\\cam\\20240612_081502_ei.mp4"));
        QCOMPARE(ChannelFiles::siblingPath("/d/20240612_081502_1.MP4", 2),
                 QString("/d/20240612_081502_3.MP4"));
        QCOMPARE(ChannelFiles::siblingPath("/d/20240101_080000_INF_2.mp4", 0),
                 QString("/d/20240101_080000_INF_1.mp4"));
        QVERIFY(ChannelFiles::siblingPath("/d/GH010123.MP4", 1).isEmpty());
        // One key for one recording's files, another for the next recording's.
        QCOMPARE(ChannelFiles::recordingKey("/d/REC_2024_06_12_08_15_26_F.MP4"),
                 ChannelFiles::recordingKey("/d/REC_2024_06_12_08_15_26_I.MP4"));
        QVERIFY(ChannelFiles::recordingKey("/d/REC_2024_06_12_08_15_26_F.MP4") !=
                ChannelFiles::recordingKey("/d/REC_2024_06_12_08_15_27_F.MP4"));
        QCOMPARE(ChannelFiles::recordingKey("/d/20240101_080000_INF_3.mp4"),
                 QString("/d/20240101_080000_INF"));
        QCOMPARE(ChannelFiles::recordingKey("/d/GH010123.MP4"), QString("/d/GH010123.MP4"));
    }

    // One row per recording whatever its camera, named by start and type the camera's way,
    // in the order they were recorded.
    void rowsOfSeveralCameras() {
        const QStringList paths{
            touch("a/REC_2024_06_12_08_15_26_R.MP4"), touch("a/2024_0612_081502_001F.MP4"),
            touch("a/20240612_081530_INF_1.mp4"),     touch("Event/20240612_081614_ER.mp4"),
            touch("a/NO20240612-081514-000002F.MP4"),
        };
        touch("a/REC_2024_06_12_08_15_26_F.MP4"); // on disk, not named by the load
        touch("a/REC_2024_06_12_08_15_26_I.MP4");
        touch("a/2024_0612_081502_001R.MP4");
        touch("Event/20240612_081614_EF.mp4");
        bool rejected = true;
        const QVector<RecordingRecord> batch = RecordingBatch::fromPaths(paths, {}, &rejected);
        QVERIFY(!rejected);
        QStringList names;
        QList<int> cameras, types;
        for (const RecordingRecord& record : batch) {
            names << record.displayName;
            cameras << record.cameraCount;
            types << record.type;
        }
        QCOMPARE(names,
                 QStringList({"20240612_081502_INF", "20240612_081514_INF", "20240612_081526_INF",
                              "20240612_081530_INF", "20240612_081614_EVT"}));
        QCOMPARE(cameras, QList<int>({2, 1, 3, 1, 2}));
        QCOMPARE(types, QList<int>({1, 1, 1, 1, 2}));
        // The player is handed the front camera's file.
        QVERIFY(batch.at(2).filePath.endsWith("REC_2024_06_12_08_15_26_F.MP4"));
        QCOMPARE(RecordingBatch::filesOnDisk(batch.at(2).filePath).size(), 3);
    }

    // A numbered file has its date in its container; failing that, the file's own time.
    void numberedFilesTakeTheContainersDate() {
        const QString gopro = kCameras + "Action/GH010123.MP4";
        QCOMPARE(ContainerClock::creationTime(gopro).toString("yyyy-MM-dd HH:mm:ss"),
                 QString("2024-06-12 08:16:26"));
        QCOMPARE(RecordingName::displayName(gopro), QString("20240612_081626_USR"));

        const QString empty = touch("b/GX010999.MP4");
        QVERIFY(!ContainerClock::creationTime(empty).isValid());
        QFile file(empty);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2023, 1, 2), QTime(3, 4, 5), Qt::UTC),
                                 QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(RecordingName::displayName(empty), QString("20230102_030405_USR"));
        QVERIFY(!ContainerClock::creationTime(kCameras + "missing.MP4").isValid());
    }
};

QTEST_GUILESS_MAIN(TestForeignNames)
#include "test_foreignnames.moc"
