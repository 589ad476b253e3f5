// The player's telemetry reader on generated recordings: its results, the frames it keeps,
// and the lines it leaves in the status log.
#include "AppGlobals.h"
#include "KDXData.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <vector>

namespace {

const QString media = QStringLiteral(TELEMETRY_MEDIA);

QString currentRecording;
QString currentRecordingPath() {
    return currentRecording;
}

} // namespace

class TestKdxData : public QObject {
    Q_OBJECT

    QTemporaryDir m_dataFolder;
    std::vector<unsigned char> m_info = std::vector<unsigned char>(KDXData::kInfoSize);

    // The status log's messages since the last call, without their time stamps.
    QStringList takeLog() {
        QFile file(AppGlobals::statusLogPath());
        QStringList messages;
        if (file.open(QIODevice::ReadOnly))
            for (const QByteArray& line : file.readAll().split('\n'))
                if (!line.isEmpty())
                    messages << QString::fromLocal8Bit(line.mid(12));
        QFile::remove(AppGlobals::statusLogPath());
        return messages;
    }

    static const float* at(const float* frame, int offset) { return frame + offset / 4; }
    static quint32 flagsOf(const float* frame) {
        quint32 flags;
        std::memcpy(&flags, frame + 52 / 4, sizeof flags);
        return flags;
    }

private slots:
    void initTestCase() {
        QVERIFY(m_dataFolder.isValid());
        AppGlobals::dataFolder = m_dataFolder.path();
        AppGlobals::logLevel = 5;
    }
    void init() { takeLog(); }

    void recordingWithTelemetry() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/20240101_120000_INF_1.mp4"), 0);
        QCOMPARE(data.KDX_GetTotalRange(), 4000);
        QCOMPARE(data.KDX_GetVideoTotalNum(), 1);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 40);
        QCOMPARE(data.error(), 0);

        // The fields as the player takes them from frame i.
        const float* spike = data.KDX_GetTextDataFrame(12);
        QVERIFY(spike != nullptr);
        QCOMPARE(*at(spike, 40), -1.25f);
        QCOMPARE(*at(spike, 44), -0.24f);
        QCOMPARE(*at(spike, 48), 1.012f);
        QCOMPARE(*at(spike, 56), 18.0f);
        QVERIFY(qAbs(*at(spike, 60) - 37.4865f) < 1e-5f);
        QVERIFY(qAbs(*at(spike, 64) - 127.1186f) < 1e-5f);
        QCOMPARE(flagsOf(spike) & 3u, 2u);
        QCOMPARE(flagsOf(spike) >> 2 & 3u, 3u);
        QVERIFY(data.KDX_GetTextDataFrame(40) == nullptr);
        QVERIFY(data.KDX_GetTextDataFrame(-1) == nullptr);

        data.KDX_TextDataFree();
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
        QVERIFY(data.KDX_GetTextDataFrame(0) == nullptr);
        QVERIFY(!takeLog().join('\n').contains(":: [w]"));
    }

    void recordingsWithoutTelemetry() {
        for (const char* name : {"20240101_120200_PRK_1.avi", "20240101_120300_USR_1.mp4",
                                 "subtitles.mp4", "audio_only.mp4"}) {
            KDXData data(m_info.data());
            QCOMPARE(data.KDX_Open(media + "/" + name), 1);
            QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
            QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
            QCOMPARE(data.error(), 0);
        }
        QVERIFY(!takeLog().join('\n').contains(":: [w]"));
    }

    void openFailure() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/truncated_moov.mp4"), -1);
        QCOMPARE(data.error(), -2);
        QCOMPARE(data.readerError(), KDX_ERR_OPEN);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), -1);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
        const QStringList log = takeLog();
        QVERIFY(log.contains(":: [w] KDX_Reader Can't Open!"));
        QVERIFY(log.indexOf(QRegularExpression("^:: \\[w\\] kdxstream: cannot open.*")) >= 0);
    }

    void informationFailure() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/no_streams.mp4"), 2);
        QVERIFY(takeLog().contains(":: [w] KDXReader Can't Get Info!"));
        QCOMPARE(data.KDX_GetTotalRange(), 0);
        // The reader is still open and has nothing to give.
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
    }

    void frameFailureKeepsWhatWasRead() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/malformed.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        // 20 samples listed, 12 readings: the 13th read finds the end.
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 12);
        QCOMPARE(data.error(), -4);
        QCOMPARE(data.readerError(), KDX_ERR_END);
        QCOMPARE(*at(data.KDX_GetTextDataFrame(11), 40), 0.19f);
        const QStringList log = takeLog();
        QVERIFY(log.contains(":: [w] KDXReader Can't read Frame!"));
        QVERIFY(log.contains(
            ":: [w] kdxstream: 8 telemetry samples were not readings and were skipped"));
        // A later read is refused: the error stays until the next open.
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), -1);
        QCOMPARE(data.KDX_Open(media + "/20240101_120100_EVT_4.mp4"), 0);
        QCOMPARE(data.error(), 0);
    }

    void gapInTheTrackIsNotAFrame() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/gap.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        QCOMPARE(data.error(), 0);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 8);
        // Readings 0-4, then 7-9: G-sensor X is the reading's number / 100.
        const float expected[] = {0.0f, 0.01f, 0.02f, 0.03f, 0.04f, 0.07f, 0.08f, 0.09f};
        for (int i = 0; i < 8; ++i)
            QCOMPARE(*at(data.KDX_GetTextDataFrame(i), 40), expected[i]);
        QVERIFY(!takeLog().join('\n').contains(":: [w]"));
    }

    void fileCutInsideItsData() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/truncated_data.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        QVERIFY(data.KDX_GetTextDataTotalCount() > 5 && data.KDX_GetTextDataTotalCount() < 40);
        QCOMPARE(data.error(), -4);
    }

    void emptyPathOpensTheCurrentRecording() {
        KDXData::setCurrentRecordingSource(&currentRecordingPath);
        currentRecording = media + "/20240101_120100_EVT_4.mp4";
        // The information goes into the caller's buffer, by its offsets.
        std::vector<unsigned char> info(KDXData::kInfoSize, 0xEE);
        KDXData data(info.data());
        QCOMPARE(data.KDX_Open(QString()), 0);
        QCOMPARE(data.KDX_GetVideoTotalNum(), 3);
        const int offsets[] = {4, 16, 6388}; // range, videos, telemetry frames
        const quint32 expected[] = {3000, 3, 30};
        for (int i = 0; i < 3; ++i)
            QVERIFY(std::memcmp(&expected[i], info.data() + offsets[i], 4) == 0);
        currentRecording.clear();
        QCOMPARE(data.KDX_Open(QString()), -1);
        KDXData::setCurrentRecordingSource(nullptr);
        QCOMPARE(data.KDX_Open(QString()), -1);
    }

    void otherTracksAreEmpty() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/20240101_120000_INF_1.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 1), 0);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
        QCOMPARE(data.KDX_Open(media + "/20240101_120000_INF_1.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 99), 0);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestKdxData)
#include "test_kdxdata.moc"
