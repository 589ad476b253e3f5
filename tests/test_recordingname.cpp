// Which file names the viewer admits, what it reads from them, and recording lengths as the
// file list shows them, read from generated recordings.
#include "AppGlobals.h"
#include "RecordingBatch.h"
#include "RecordingName.h"
#include "RecordingRecord.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

class TestRecordingName : public QObject {
    Q_OBJECT

    QTemporaryDir m_dataFolder;

private slots:
    void initTestCase() { AppGlobals::dataFolder = m_dataFolder.path(); }

    void nameCheck_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("avi") << "20230415_083012_INF_1.avi" << true;
        QTest::newRow("mp4 rear") << "/cards/DCIM/20230415_083012_EVT_3.mp4" << true;
        QTest::newRow("two-digit avi") << "20230415_083012_EVT_1_2.avi" << true;
        QTest::newRow("month 13") << "20231331_083012_INF_1.avi" << false;
        QTest::newRow("31 February") << "20230231_083012_INF_1.avi" << true;
        QTest::newRow("upper-case ext") << "20230415_083012_INF_1.AVI" << false;
        QTest::newRow("prefix, unanchored") << "rec_20230415_083012_INF_1.avi" << true;
        QTest::newRow("mixed type letters") << "20230415_083012_ENF_1.avi" << true;
        QTest::newRow("channel 5") << "20230415_083012_PRK_5.mp4" << true;
        QTest::newRow("xmp4 ending") << "20230415_083012_INF_1xmp4" << false;
        QTest::newRow("hour 24") << "20230415_243012_INF_1.mp4" << false;
        QTest::newRow("year 21xx") << "21230415_083012_INF_1.mp4" << false;
        QTest::newRow("folder with underscores") << "/a_b_c_d/notes.mp4" << false;
    }
    void nameCheck() {
        QFETCH(QString, path);
        QFETCH(bool, accepted);
        QCOMPARE(RecordingName::isSupportedName(path), accepted);
    }

    void cardListingAdmitsSingleChannelNamesOnly() {
        QVERIFY(RecordingName::isCardRecordingName("20230415_083012_INF_1.avi"));
        QVERIFY(RecordingName::isCardRecordingName("20230415_083012_USR_2.mp4"));
        QVERIFY(!RecordingName::isCardRecordingName("20230415_083012_EVT_1_2.avi"));
        QVERIFY(!RecordingName::isCardRecordingName("20230415_083012_EVT_1.jpg"));
    }

    void typesLabelsAndIcons() {
        QCOMPARE(RecordingName::typeFromName("20230415_083012_INF_1.avi"), 1);
        QCOMPARE(RecordingName::typeFromName("20230415_083012_EVT_1.mp4"), 2);
        QCOMPARE(RecordingName::typeFromName("20230415_083012_PRK_2.mp4"), 3);
        QCOMPARE(RecordingName::typeFromName("20230415_083012_USR_1.mp4"), 4);
        QCOMPARE(RecordingName::typeFromName("20230415_083012_ENF_1.avi"), 0);
        QCOMPARE(RecordingName::typeFromName("20230415_083012_evt_1.mp4"), 0);
        // The third field counts even when a prefix shifts the date.
        QCOMPARE(RecordingName::typeFromName("rec_20230415_083012_INF_1.avi"), 0);
        QCOMPARE(RecordingName::typeFromName("nothing"), 0);

        QCOMPARE(RecordingName::typeLabel(2), QString("E"));
        QVERIFY(RecordingName::typeLabel(0).isEmpty());
        // Each type's icon is a file the build installed; an unknown label has none.
        for (const char* label : {"I", "E", "P", "U"})
            QVERIFY2(QFileInfo(RecordingName::typeIconPath(label)).isFile(), label);
        QVERIFY(!QFileInfo(RecordingName::typeIconPath("X")).isFile());
    }

    void channelFilesAndSiblings() {
        QVERIFY(RecordingName::isChannelFile("20230415_083012_INF_2.mp4"));
        QVERIFY(!RecordingName::isChannelFile("20230415_083012_INF_4.mp4"));
        QVERIFY(!RecordingName::isChannelFile("20230415_083012_INF_1.avi"));
        QVERIFY(!RecordingName::isChannelFile("20230415_083012_INF_1.MP4"));
        QCOMPARE(RecordingName::siblingChannelPath("/d/20230415_083012_INF_1.mp4", 2),
                 QString("/d/20230415_083012_INF_3.mp4"));
        QCOMPARE(RecordingName::siblingChannelPath("/d/20230415_083012_INF_3.avi", 0),
                 QString("/d/20230415_083012_INF_1.avi"));
        QVERIFY(RecordingName::siblingChannelPath("/d/clip.mp4", 1).isEmpty());
        QVERIFY(RecordingName::siblingChannelPath("/d/20230415_083012_INF_1.mp4", 3).isEmpty());
        QCOMPARE(RecordingName::channelIndex("20230415_083012_INF_3.mp4"), 2);
        QCOMPARE(RecordingName::channelIndex("20230415_083012_INF_4.mp4"), -1);
    }

    void recordsSortChronologicallyByName() {
        QTemporaryDir dir;
        const QString path = dir.filePath("20230415_083012_PRK_1.mp4");
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(1234, '\0'));
        }
        const RecordingRecord record = RecordingRecord::fromPath(path, 7);
        QCOMPARE(record.fileSize, qint64(1234));
        QCOMPARE(record.type, int(RecordingName::Parking));

        std::vector<RecordingRecord> records;
        for (const char* name : {"20230415_090000_INF_1.mp4", "20230415_083012_INF_2.mp4",
                                 "20221231_235959_USR_1.avi", "20230415_083012_EVT_1.mp4"})
            records.push_back(RecordingRecord::fromPath(QString("/x/") + name, 0));
        std::sort(records.begin(), records.end());
        QStringList order;
        for (const auto& r : records)
            order << r.fileName;
        QCOMPARE(order, QStringList({"20221231_235959_USR_1.avi", "20230415_083012_EVT_1.mp4",
                                     "20230415_083012_INF_2.mp4", "20230415_090000_INF_1.mp4"}));
    }

    void lengths_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("split channel file") << QString("20240101_120000_INF_1.mp4") << "00:04";
        QTest::newRow("single file, three cameras")
            << QString("20240101_120100_EVT_4.mp4") << "00:03";
        QTest::newRow("avi") << QString("20240101_120200_PRK_1.avi") << "00:03";
        QTest::newRow("59.999 s is still 59") << QString("length_59999ms.mp4") << "00:59";
        QTest::newRow("65 min 7 s") << QString("length_65m07s.mp4") << "65:07";
        QTest::newRow("over 100 min: three digits") << QString("length_101m05s.mp4") << "101:05";
        QTest::newRow("sound only") << QString("audio_only.mp4") << "00:02";
        // Nothing to show for files the reader cannot use.
        for (const char* name : {"empty.mp4", "truncated_moov.mp4", "not_video.mp4", "folder.mp4",
                                 "20240101_235959_INF_1.mp4", "no_streams.mp4"})
            QTest::newRow(name) << QString(name) << "";
    }
    void lengths() {
        QFETCH(QString, name);
        QFETCH(QString, text);
        const QString result =
            RecordingName::durationText(QStringLiteral(TELEMETRY_MEDIA "/") + name);
        QCOMPARE(result, text);
        QCOMPARE(result.isNull(), text.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestRecordingName)
#include "test_recordingname.moc"
