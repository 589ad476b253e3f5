// The player's telemetry reader on generated recordings: results, frames and logged warnings.
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
        // Other tracks have no frames.
        for (int track : {1, 99}) {
            QCOMPARE(data.KDX_Open(media + "/20240101_120000_INF_1.mp4"), 0);
            QCOMPARE(data.KDX_GetTextData(nullptr, track), 0);
            QCOMPARE(data.KDX_GetTextDataTotalCount(), 0);
        }
    }

    // What opening and reading give for each kind of file, and the warning logged.
    void openAndRead_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("opened");
        QTest::addColumn<int>("read");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("warning");
        for (const char* name : {"20240101_120200_PRK_1.avi", "20240101_120300_USR_1.mp4",
                                 "subtitles.mp4", "audio_only.mp4"})
            QTest::newRow(name) << name << 1 << 0 << 0 << 0 << "";
        QTest::newRow("header cut off")
            << "truncated_moov.mp4" << -1 << -1 << 0 << -2 << "KDX_Reader Can't Open!";
        // The reader is open but has nothing to give.
        QTest::newRow("no streams")
            << "no_streams.mp4" << 2 << 0 << 0 << 0 << "KDXReader Can't Get Info!";
        // 20 samples listed, 12 readings: the 13th read finds the end.
        QTest::newRow("malformed samples")
            << "malformed.mp4" << 0 << 0 << 12 << -4 << "KDXReader Can't read Frame!";
        QTest::newRow("gap in the track") << "gap.mp4" << 0 << 0 << 8 << 0 << "";
    }
    void openAndRead() {
        QFETCH(QString, name);
        QFETCH(int, opened);
        QFETCH(int, read);
        QFETCH(int, frames);
        QFETCH(int, error);
        QFETCH(QString, warning);
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/" + name), opened);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), read);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), frames);
        QCOMPARE(data.error(), error);
        const QStringList warnings = takeLog().filter(":: [w] ");
        QCOMPARE(warnings.isEmpty(), warning.isEmpty());
        if (!warning.isEmpty())
            QVERIFY2(warnings.contains(":: [w] " + warning), qPrintable(warnings.join('\n')));
        // G-sensor X of the readings kept is the reading's number / 100.
        const QVector<float> kept = name == "gap.mp4"
                                        ? QVector<float>{0, 1, 2, 3, 4, 7, 8, 9}
                                        : QVector<float>{0, 1, 3, 5, 8, 11, 13, 15, 16, 17, 18, 19};
        for (int i = 0; i < frames; ++i)
            QCOMPARE(*at(data.KDX_GetTextDataFrame(i), 40), kept[i] / 100.0f);
    }

    void failureLogsTheStreamsWordAndStaysUntilTheNextOpen() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/truncated_moov.mp4"), -1);
        QCOMPARE(data.readerError(), KDX_ERR_OPEN);
        QVERIFY(takeLog().indexOf(QRegularExpression("^:: \\[w\\] kdxstream: cannot open.*")) >= 0);
        QCOMPARE(data.KDX_Open(media + "/malformed.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        QCOMPARE(data.readerError(), KDX_ERR_END);
        QVERIFY(takeLog().contains(
            ":: [w] kdxstream: 8 telemetry samples were not readings and were skipped"));
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), -1);
        QCOMPARE(data.KDX_Open(media + "/20240101_120100_EVT_4.mp4"), 0);
        QCOMPARE(data.error(), 0);
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
};

QTEST_GUILESS_MAIN(TestKdxData)
#include "test_kdxdata.moc"
