// The stream library: the telemetry sample syntax (docs/telemetry-format.md), the C interface on
// generated recordings, good and bad, and the player's reader on top of it.
#include "AppGlobals.h"
#include "KDXData.h"
#include "TelemetrySampleParser.h"
#include "kdxstream.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <vector>

using kdx::TelemetrySampleParser;

namespace {

TelemetrySampleParser::Result parse(const QByteArray& text, KDXTextFrame& frame) {
    std::memset(&frame, 0, sizeof frame);
    return TelemetrySampleParser::parseText(text.constData(), std::size_t(text.size()), frame);
}

const QString media = QStringLiteral(TELEMETRY_MEDIA);

std::uint32_t wordAt(const void* record, int offset) {
    std::uint32_t word;
    std::memcpy(&word, static_cast<const unsigned char*>(record) + offset, sizeof word);
    return word;
}

float floatAt(const void* record, int offset) {
    float value;
    std::memcpy(&value, static_cast<const unsigned char*>(record) + offset, sizeof value);
    return value;
}

QString currentRecording;
QString currentRecordingPath() {
    return currentRecording;
}

std::vector<std::string> traceLines;
void collectTrace(const char* line) {
    traceLines.emplace_back(line);
}

// An opened recording, closed when it goes out of scope. The reader starts as garbage: a
// failed open must set it to null.
struct Opened {
    KDXReader* reader = reinterpret_cast<KDXReader*>(&result);
    int result = KDX_OK;
    explicit Opened(const QString& name) {
        const QByteArray path = QFile::encodeName(media + "/" + name);
        KDXOpenParams params{};
        params.path8 = path.constData();
        result = KDXReaderOpen(&reader, &params);
    }
    ~Opened() {
        if (result == KDX_OK)
            KDXReaderClose(reader);
    }
};

struct Frame {
    KDXFrameDescriptor descriptor{};
    KDXTextFrame text{};
    Frame() {
        descriptor.buffer = &text;
        descriptor.bufferSize = sizeof text;
        descriptor.track = KDX_TELEMETRY_TRACK;
        descriptor.kind = KDX_FRAME_TEXT;
    }
};

std::vector<KDXTextFrame> readAll(KDXReader* reader, int* endResult = nullptr) {
    std::vector<KDXTextFrame> frames;
    for (;;) {
        Frame frame;
        const int result = KDXReaderReadFrame(reader, &frame.descriptor);
        if (result != KDX_OK) {
            if (endResult != nullptr)
                *endResult = result;
            return frames;
        }
        frames.push_back(frame.text);
    }
}

} // namespace

class TestKdxStream : public QObject {
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

private slots:
    void initTestCase() {
        QVERIFY2(QFile::exists(media + "/20240101_120000_INF_1.mp4"), qPrintable(media));
        AppGlobals::dataFolder = m_dataFolder.path();
        AppGlobals::logLevel = 5;
    }
    // The player's reader takes the library's trace lines for the status log while it lives.
    void init() {
        traceLines.clear();
        KDX_SetTraceSink(&collectTrace);
        takeLog();
    }

    // ---- Telemetry samples ----

    // Any order, blanks, unknown fields; FIX left out: 3-D with a position; range ends.
    void readings_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QVector<float>>("values"); // G x, y, z, latitude, longitude, speed
        QTest::addColumn<uint>("flags");
        QTest::addColumn<uint>("fields");
        const uint all = KDX_FIELD_GSENSOR | KDX_FIELD_POSITION | KDX_FIELD_SPEED;
        QTest::newRow("with fix")
            << QByteArray("G=+0.012,-0.034,+0.998 GPS=37.485312,127.116204 SPD=42.5 FIX=2,3")
            << QVector<float>{0.012f, -0.034f, 0.998f, 37.485312f, 127.116204f, 42.5f}
            << (2u | (3u << 2)) << all;
        QTest::newRow("without fix")
            << QByteArray("G=-1.250,+0.300,+1.020 GPS=- FIX=0,0")
            << QVector<float>{-1.25f, 0.3f, 1.02f, 0, 0, 0} << 0u << uint(KDX_FIELD_GSENSOR);
        QTest::newRow("defaults, order, blanks, unknown fields")
            << QByteArray("  GPS=-33.9,18.4\tALT=35.2  G=0,0,1 HDG=271 \r\n")
            << QVector<float>{0, 0, 1, -33.9f, 18.4f, 0} << 2u
            << uint(KDX_FIELD_GSENSOR | KDX_FIELD_POSITION);
        QTest::newRow("no position, no fix")
            << QByteArray("GPS=- G=0,0,1") << QVector<float>{0, 0, 1, 0, 0, 0} << 0u
            << uint(KDX_FIELD_GSENSOR);
        QTest::newRow("lower ends") << QByteArray("G=-64,64,0 GPS=-90,180 SPD=1000")
                                    << QVector<float>{-64, 64, 0, -90, 180, 1000} << 2u << all;
        QTest::newRow("upper ends") << QByteArray("G=0,0,0 GPS=90.000000000,-180 SPD=0 FIX=3,3")
                                    << QVector<float>{0, 0, 0, 90, -180, 0} << 15u << all;
    }
    void readings() {
        QFETCH(QByteArray, text);
        QFETCH(QVector<float>, values);
        QFETCH(uint, flags);
        QFETCH(uint, fields);
        KDXTextFrame frame;
        QCOMPARE(parse(text, frame), TelemetrySampleParser::Reading);
        QCOMPARE((QVector<float>{frame.gSensorX, frame.gSensorY, frame.gSensorZ, frame.latitude,
                                 frame.longitude, frame.speed}),
                 values);
        QCOMPARE(uint(frame.gpsFlags), flags);
        QCOMPARE(uint(frame.fields), fields);
    }

    void malformed() {
        // Between the bars: missing or repeated fields, out of range, number forms, lines.
        const QByteArray texts =
            "   |garbage text|GPS=37.0,127.0 SPD=3|G=0,0,1 SPD=3|G=0.1,0.2 GPS=-|"
            "G=0.1,0.2,0.3,0.4 GPS=-|G=0,0,0 G=0,0,0 GPS=-|G=0,0,0 GPS=91.0,127.0|"
            "G=0,0,0 GPS=37,-180.5|G=0,0,0 GPS=37.5|G=1e3,0,0 GPS=-|G=nan,0,0 GPS=-|"
            "G=inf,0,0 GPS=-|G=64.5,0,0 GPS=-|G=0,5;0;1 GPS=-|G=1.,0,0 GPS=-|G=.5,0,0 GPS=-|"
            "G=--1,0,0 GPS=-|G=0,0,0 GPS=- SPD=1000000|G=0.0000000001,0,0 GPS=-|"
            "G=0,0,0 GPS=37,127 SPD=-1|G=0,0,0 GPS=37,127 SPD=1000.1|"
            "G=0,0,0 GPS=37.1,127.1 FIX=4,0|G=0,0,0 GPS=37.1,127.1 FIX=2|G=0,0,0 GPS=- ALT=|"
            "g=0,0,0 GPS=-|G=0,0,0 GPS=- tunnel|G=0,0,0\nGPS=-|G=0,,0 GPS=-|G=0,0,0, GPS=-";
        for (const QByteArray& text : texts.split('|')) {
            KDXTextFrame frame;
            QVERIFY2(parse(text, frame) == TelemetrySampleParser::Malformed, text.constData());
        }
    }

    void movTextFraming() {
        KDXTextFrame frame;
        const QByteArray text = "G=0.5,0,1 GPS=-";
        QByteArray sample;
        sample.append(char(0)).append(char(text.size())).append(text);
        // A style box after the text is not part of the reading.
        const QByteArray styled = sample + QByteArray::fromHex("0000000c7374796c00000000");
        for (const QByteArray& whole : {sample, styled}) {
            std::memset(&frame, 0, sizeof frame);
            QCOMPARE(TelemetrySampleParser::parseMovTextSample(
                         reinterpret_cast<const std::uint8_t*>(whole.constData()),
                         std::size_t(whole.size()), frame),
                     TelemetrySampleParser::Reading);
            QCOMPARE(frame.gSensorX, 0.5f);
        }

        const std::uint8_t gap[] = {0, 0};
        QCOMPARE(TelemetrySampleParser::parseMovTextSample(gap, 2, frame),
                 TelemetrySampleParser::Empty);
        // A length running past the sample, and samples too short for a length.
        QCOMPARE(TelemetrySampleParser::parseMovTextSample(
                     reinterpret_cast<const std::uint8_t*>(sample.constData()),
                     std::size_t(sample.size() - 1), frame),
                 TelemetrySampleParser::Malformed);
        QCOMPARE(TelemetrySampleParser::parseMovTextSample(gap, 1, frame),
                 TelemetrySampleParser::Malformed);
        QCOMPARE(TelemetrySampleParser::parseMovTextSample(nullptr, 0, frame),
                 TelemetrySampleParser::Malformed);
    }

    void overlongTextIsRefusedWithoutReadingIt() {
        // Only the declared length is looked at; a huge one is refused before reading.
        std::vector<char> text(TelemetrySampleParser::kMaxTextLength + 1, ' ');
        const char reading[] = "G=0,0,1 GPS=-";
        std::memcpy(text.data(), reading, sizeof reading - 1);
        KDXTextFrame frame;
        QCOMPARE(TelemetrySampleParser::parseText(text.data(), text.size(), frame),
                 TelemetrySampleParser::Malformed);
        QCOMPARE(TelemetrySampleParser::parseText(text.data(), text.size() - 1, frame),
                 TelemetrySampleParser::Reading);
    }

    // ---- The C interface ----

    void frameDescriptorAndFrameByOffset() {
        Opened file("20240101_120000_INF_1.mp4");
        QCOMPARE(file.result, KDX_OK);
        // Raw bytes, as a caller that predates the header would lay them out.
        unsigned char descriptor[KDX_FRAME_DESCRIPTOR_SIZE];
        std::memset(descriptor, 0, sizeof descriptor);
        std::vector<unsigned char> buffer(200, 0xCD);
        void* bufferPointer = buffer.data();
        const std::uint32_t size = 200, track = 0, kind = 3;
        std::memcpy(descriptor + 0, &bufferPointer, sizeof bufferPointer);
        std::memcpy(descriptor + 12, &size, 4);
        std::memcpy(descriptor + 36, &track, 4);
        std::memcpy(descriptor + 40, &kind, 4);
        auto* raw = reinterpret_cast<KDXFrameDescriptor*>(descriptor);
        for (int i = 0; i <= 12; ++i)
            QCOMPARE(KDXReaderReadFrame(file.reader, raw), KDX_OK);
        // (Frame 12's values by their offsets: recordingWithTelemetry, through the player.)
        QCOMPARE(buffer[128], static_cast<unsigned char>(0xCD)); // nothing past the frame
        QCOMPARE(wordAt(descriptor, 8), 128u);                   // bytes written
        QCOMPARE(raw->sequence, 13u);
    }

    void readingsMatchWhatTheToolWrote() {
        Opened file("20240101_120000_INF_1.mp4");
        QCOMPARE(file.result, KDX_OK);
        const std::vector<KDXTextFrame> frames = readAll(file.reader);
        QCOMPARE(int(frames.size()), 40);
        for (int i = 0; i < 40; ++i) {
            QCOMPARE(frames[i].timeMs, qint64(i * 100));
            QCOMPARE(frames[i].durationMs, 100u);
        }
        QCOMPARE(frames[0].fields, KDX_FIELD_GSENSOR | KDX_FIELD_POSITION | KDX_FIELD_SPEED);

        // 20-24: in a tunnel, no fix.
        for (int i = 20; i <= 24; ++i) {
            QCOMPARE(frames[i].latitude, 0.0f);
            QCOMPARE(frames[i].longitude, 0.0f);
            QCOMPARE(frames[i].gpsFlags, 0u);
            QCOMPARE(frames[i].fields, KDX_FIELD_GSENSOR);
            QCOMPARE(frames[i].gSensorY, -0.02f * i);
        }
        QVERIFY(frames[19].latitude != 0.0f && frames[25].latitude != 0.0f);

        // 30: a weak 2-D fix.
        QCOMPARE(frames[30].gpsFlags, 1u | (1u << 2));
        QCOMPARE(frames[30].speed, 45.0f);
        QVERIFY(qAbs(frames[30].latitude - 37.4883f) < 1e-5f);
        QVERIFY(qAbs(frames[30].longitude - 127.1222f) < 1e-5f);
        QCOMPARE(frames[39].gSensorX, 0.39f);
    }

    void recordingKinds_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rangeMs");
        QTest::addColumn<int>("videos");
        QTest::addColumn<int>("audios");
        QTest::addColumn<int>("samples");
        QTest::newRow("channel file with telemetry")
            << "20240101_120000_INF_1.mp4" << 4000 << 1 << 1 << 40;
        QTest::newRow("all cameras in one file")
            << "20240101_120100_EVT_4.mp4" << 3000 << 3 << 1 << 30;
        QTest::newRow("rear channel file") << "20240101_120000_INF_2.mp4" << 4000 << 1 << 0 << 0;
        QTest::newRow("avi") << "20240101_120200_PRK_1.avi" << 3000 << 1 << 1 << 0;
        QTest::newRow("mp4 without telemetry")
            << "20240101_120300_USR_1.mp4" << 3000 << 1 << 0 << 0;
        QTest::newRow("ordinary subtitles") << "subtitles.mp4" << 1000 << 1 << 0 << 0;
        QTest::newRow("sound only") << "audio_only.mp4" << 2000 << 0 << 1 << 0;
        QTest::newRow("65 minutes") << "length_65m07s.mp4" << 3907000 << 1 << 0 << 0;
        QTest::newRow("59.999 s") << "length_59999ms.mp4" << 59999 << 1 << 0 << 1;
    }
    void recordingKinds() {
        QFETCH(QString, name);
        QFETCH(int, rangeMs);
        QFETCH(int, videos);
        QFETCH(int, audios);
        QFETCH(int, samples);
        Opened file(name);
        QCOMPARE(file.result, KDX_OK);
        // Every byte is set by the library, whatever the buffer held.
        KDXInfo info;
        std::memset(&info, 0xAB, sizeof info);
        QCOMPARE(KDXReaderGetInfo(file.reader, &info), KDX_OK);
        QCOMPARE(reinterpret_cast<unsigned char*>(&info)[sizeof info - 1], 0);
        QCOMPARE(info.tracks[1].frameCount, 0u);
        QCOMPARE(info.tracks[0].frameSize, 128u);
        // AAC and PCM audio run a few milliseconds past the pictures.
        QVERIFY2(qAbs(info.totalRangeMs - rangeMs) <= 30,
                 qPrintable(QString::number(info.totalRangeMs)));
        QCOMPARE(info.videoCount, videos);
        QCOMPARE(info.audioCount, audios);
        QCOMPARE(info.textDataPresent != 0, samples > 0);
        QCOMPARE(int(info.tracks[0].frameCount), samples);
        QCOMPARE(int(readAll(file.reader).size()), samples);
    }

    void badFilesDoNotOpen_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("zero bytes") << "empty.mp4";
        QTest::newRow("header cut off") << "truncated_moov.mp4";
        QTest::newRow("text") << "not_video.mp4";
        QTest::newRow("random bytes") << "random.mp4";
        QTest::newRow("folder") << "folder.mp4";
        QTest::newRow("missing") << "20240101_999999_INF_1.mp4";
    }
    void badFilesDoNotOpen() {
        QFETCH(QString, name);
        Opened file(name);
        QCOMPARE(file.result, KDX_ERR_OPEN);
        QVERIFY(file.reader == nullptr);
        QVERIFY(!traceLines.empty());
        QVERIFY(QString::fromStdString(traceLines.back())
                    .startsWith("kdxstream: cannot open the recording ("));
    }

    void fileCutInsideItsDataEndsEarly() {
        Opened file("truncated_data.mp4");
        QCOMPARE(file.result, KDX_OK);
        KDXInfo info;
        QCOMPARE(KDXReaderGetInfo(file.reader, &info), KDX_OK);
        QCOMPARE(info.tracks[0].frameCount, 40u); // the header still lists them all
        int end = 0;
        const std::vector<KDXTextFrame> frames = readAll(file.reader, &end);
        QVERIFY(end == KDX_ERR_END || end == KDX_ERR_READ);
        QVERIFY2(frames.size() > 5 && frames.size() < 40,
                 qPrintable(QString::number(frames.size())));
        for (std::size_t i = 0; i < frames.size(); ++i)
            QCOMPARE(frames[i].timeMs, qint64(i * 100)); // what was read is intact
    }

    void callerMistakes() {
        KDXReader* reader = nullptr;
        QCOMPARE(KDXReaderOpen(&reader, nullptr), KDX_ERR_ARGUMENT);
        QCOMPARE(KDXReaderOpen(nullptr, nullptr), KDX_ERR_ARGUMENT);
        KDXOpenParams noPath{};
        QCOMPARE(KDXReaderOpen(&reader, &noPath), KDX_ERR_ARGUMENT);
        QCOMPARE(KDXReaderGetInfo(nullptr, nullptr), KDX_ERR_ARGUMENT);
        QCOMPARE(KDXReaderReadFrame(nullptr, nullptr), KDX_ERR_ARGUMENT);
        QCOMPARE(KDXReaderClose(nullptr), KDX_OK);

        Opened file("20240101_120000_INF_1.mp4");
        QCOMPARE(file.result, KDX_OK);
        Frame wrongTrack;
        wrongTrack.descriptor.track = 1;
        QCOMPARE(KDXReaderReadFrame(file.reader, &wrongTrack.descriptor), KDX_ERR_TRACK);
        Frame wrongKind;
        wrongKind.descriptor.kind = 1;
        QCOMPARE(KDXReaderReadFrame(file.reader, &wrongKind.descriptor), KDX_ERR_TRACK);
        Frame small;
        small.descriptor.bufferSize = 68;
        QCOMPARE(KDXReaderReadFrame(file.reader, &small.descriptor), KDX_ERR_BUFFER);
        Frame noBuffer;
        noBuffer.descriptor.buffer = nullptr;
        QCOMPARE(KDXReaderReadFrame(file.reader, &noBuffer.descriptor), KDX_ERR_ARGUMENT);
        // None of the refused calls used up a frame.
        Frame first;
        QCOMPARE(KDXReaderReadFrame(file.reader, &first.descriptor), KDX_OK);
        QCOMPARE(first.descriptor.sequence, 1u);
        QCOMPARE(first.text.timeMs, qint64(0));
    }

    void utf16PathWithNonAsciiName() {
        QTemporaryDir dir;
        const QString path =
            dir.filePath(QString::fromUtf8("주행 기록 Ü/20240101_120000_INF_1.mp4"));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(QFile::copy(media + "/20240101_120000_INF_1.mp4", path));
        KDXOpenParams params{};
        params.pathUtf16 = reinterpret_cast<const uint16_t*>(path.utf16());
        KDXReader* reader = nullptr;
        QCOMPARE(KDXReaderOpen(&reader, &params), KDX_OK);
        KDXInfo info;
        QCOMPARE(KDXReaderGetInfo(reader, &info), KDX_OK);
        QCOMPARE(info.tracks[0].frameCount, 40u);
        KDXReaderClose(reader);
    }

    // ---- The player's reader ----

    void recordingWithTelemetry() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/20240101_120000_INF_1.mp4"), 0);
        QCOMPARE(data.KDX_GetTextData(nullptr, 0), 0);
        QCOMPARE(data.KDX_GetTextDataTotalCount(), 40);
        QCOMPARE(data.error(), 0);

        // The fields as the player takes them from frame i, by their offsets.
        const float* spike = data.KDX_GetTextDataFrame(12);
        QVERIFY(spike != nullptr);
        QCOMPARE((QVector<float>{floatAt(spike, 40), floatAt(spike, 44), floatAt(spike, 48),
                                 floatAt(spike, 56)}),
                 (QVector<float>{-1.25f, -0.24f, 1.012f, 18.0f}));
        QVERIFY(qAbs(floatAt(spike, 60) - 37.4865f) < 1e-5f);
        QVERIFY(qAbs(floatAt(spike, 64) - 127.1186f) < 1e-5f);
        QCOMPARE(wordAt(spike, 52) & 15u, 2u | (3u << 2)); // 3-D fix, satellite class 3
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
            QCOMPARE(floatAt(data.KDX_GetTextDataFrame(i), 40), kept[i] / 100.0f);
    }

    void readerErrorsStayUntilTheNextOpen() {
        KDXData data(m_info.data());
        QCOMPARE(data.KDX_Open(media + "/truncated_moov.mp4"), -1);
        QCOMPARE(data.readerError(), KDX_ERR_OPEN);
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

QTEST_GUILESS_MAIN(TestKdxStream)
#include "test_kdxstream.moc"
