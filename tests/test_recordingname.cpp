// Which file names the viewer admits, its own and other cameras' layouts, what it reads from
// them, how channel files find each other, and recording lengths read from generated files.
#include "AppGlobals.h"
#include "ChannelFiles.h"
#include "ContainerClock.h"
#include "NameSchemes.h"
#include "PlaybackState.h"
#include "RecordingBatch.h"
#include "RecordingList.h"
#include "RecordingName.h"
#include "RecordingRecord.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

namespace {
const QString kCameras = QStringLiteral(FOREIGN_MEDIA) + "/cameras/";
} // namespace

class TestRecordingName : public QObject {
    Q_OBJECT

    QTemporaryDir m_dataFolder;
    QTemporaryDir m_dir;

    QString touch(const QString& relative) {
        const QString path = m_dir.filePath(relative);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        return path;
    }

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
        // The own layout is judged by its grammar alone, other cameras' layouts at hand.
        for (const char* name :
             {"20230415_083012_INF_1.MP4", "20230415_083012_EVT_1_2.mp4",
              "20230415_083012_INF_6.mp4", "20230415_083012_inf_1.mp4", "20230415_083012_INF1.mp4",
              "20230415_083012_INF_1.mkv", "20240230_081502_F.MP4", "20240612_251502_F.MP4",
              "20240612_081502_F.mkv", "20240612_081502_4.mp4", "clip_final.MOV", "notes.mp4"})
            QTest::newRow(name) << name << false;
    }
    void nameCheck() {
        QFETCH(QString, path);
        QFETCH(bool, accepted);
        QCOMPARE(RecordingName::isSupportedName(path), accepted);
    }

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

    void cardListingAdmitsSingleChannelNamesOnly() {
        QVERIFY(RecordingName::isCardRecordingName("20230415_083012_INF_1.avi"));
        QVERIFY(RecordingName::isCardRecordingName("20230415_083012_USR_2.mp4"));
        QVERIFY(!RecordingName::isCardRecordingName("20230415_083012_EVT_1_2.avi"));
        QVERIFY(!RecordingName::isCardRecordingName("20230415_083012_EVT_1.jpg"));
    }

    void typesLabelsAndIcons() {
        // The third field names the type, in capitals; a prefix shifts it away. (The four
        // types as the list shows them: test_filelist.)
        for (const char* name : {"20230415_083012_ENF_1.avi", "20230415_083012_evt_1.mp4",
                                 "rec_20230415_083012_INF_1.avi", "nothing"})
            QVERIFY2(RecordingName::typeFromName(name) == RecordingName::Unknown, name);
        QVERIFY(RecordingName::typeLabel(0).isEmpty()); // the others: test_filelist's types
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

    // Another camera's recording given by a rear file: the front file is the one played.
    // (The rows, names and camera counts of whole folders: test_filelist.)
    void foreignChannelFilesMakeOneRow() {
        const QStringList paths{touch("a/REC_2024_06_12_08_15_26_R.MP4")};
        touch("a/REC_2024_06_12_08_15_26_F.MP4");
        touch("a/REC_2024_06_12_08_15_26_I.MP4");
        bool rejected = true;
        const QVector<RecordingRecord> batch = RecordingBatch::fromPaths(paths, {}, &rejected);
        QVERIFY(!rejected);
        QCOMPARE(batch.size(), 1);
        QCOMPARE(batch.at(0).cameraCount, 3);
        QVERIFY(batch.at(0).filePath.endsWith("REC_2024_06_12_08_15_26_F.MP4"));
        QCOMPARE(RecordingBatch::filesOnDisk(batch.at(0).filePath).size(), 3);
    }

    // A numbered file has its date in its container (test_filelist lists GH010123.MP4 by it);
    // failing that, the file's own time.
    void numberedFilesTakeTheContainersDate() {
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

    // The list's recordings without a window: the type filter, the current recording and
    // the rows around it, removals.
    void recordingListFiltersAndSteps() {
        RecordingList::clear();
        RecordingList::setMask(RecordingList::kAllTypes);
        const char* const names[] = {"20240101_080000_INF_1.mp4", "20240101_080100_EVT_1.mp4",
                                     "20240101_080200_PRK_1.mp4", "20240101_080300_USR_1.mp4",
                                     "20240101_080400_PRK_1.mp4", "20240101_080500_INF_1.mp4"};
        for (const char* name : names)
            RecordingList::records.append(RecordingRecord::fromPath(
                QStringLiteral("/cards/Normal/") + name, RecordingList::records.size()));
        RecordingList::rebuildVisibleRows();
        QCOMPARE(RecordingList::visibleRows, (QVector<int>{0, 1, 2, 3, 4, 5}));

        RecordingList::setMask(1 | 2 | 8); // no Parking
        QCOMPARE(RecordingList::visibleRows, (QVector<int>{0, 1, 3, 5}));
        QVERIFY(!RecordingList::passes(2) && RecordingList::passes(3));
        // Nothing plays: both ways start at the first shown row.
        PlaybackState::currentFile.clear();
        QCOMPARE(RecordingList::nextRow(), 0);
        QCOMPARE(RecordingList::previousRow(), 0);

        // The player's file makes its row current; the hidden rows are stepped over.
        PlaybackState::currentFile = RecordingList::records.at(1).filePath;
        RecordingList::syncCurrent();
        QCOMPARE(RecordingList::currentIndex, 1);
        QCOMPARE(RecordingList::currentPosition(), 1);
        QCOMPARE(RecordingList::nextRow(), 3);
        QCOMPARE(RecordingList::previousRow(), 0);
        RecordingList::setCurrent(5);
        PlaybackState::currentFile = RecordingList::records.at(5).filePath;
        QCOMPARE(RecordingList::nextRow(), -1);
        QCOMPARE(RecordingList::previousRow(), 3);

        // The playing row hidden by the filter: no position, stepping goes on from it.
        PlaybackState::currentFile = RecordingList::records.at(2).filePath;
        RecordingList::setMask(1 | 2 | 8);
        QCOMPARE(RecordingList::currentIndex, 2);
        QCOMPARE(RecordingList::currentPosition(), -1);
        QCOMPARE(RecordingList::nextRow(), 3);
        RecordingList::setMask(0);
        QVERIFY(RecordingList::visibleRows.isEmpty());
        QCOMPARE(RecordingList::nextRow(), -1);

        // A removal numbers the rest anew; the current recording is found again by its file.
        RecordingList::setMask(RecordingList::kAllTypes);
        RecordingList::removeRecord(0);
        QCOMPARE(RecordingList::records.size(), 5);
        QCOMPARE(RecordingList::records.at(0).row, 0);
        QCOMPARE(RecordingList::currentIndex, 1);
        QCOMPARE(RecordingList::indexOf(RecordingList::records.at(3).filePath, 4), 3);
        QCOMPARE(RecordingList::indexOf(RecordingList::records.at(3).filePath, 2), -1);
        // A recording of no known type shows only with every type chosen.
        RecordingList::records[4].type = 0;
        RecordingList::setMask(1 | 2 | 4 | 8);
        QVERIFY(RecordingList::passes(4));
        RecordingList::setMask(1 | 2 | 4);
        QVERIFY(!RecordingList::passes(4));
        RecordingList::clear();
        PlaybackState::currentFile.clear();
    }
};

QTEST_GUILESS_MAIN(TestRecordingName)
#include "test_recordingname.moc"
