// Other cameras' telemetry: the layouts byte by byte (NMEA, GPMF, freeGPS) as the parsers read
// and refuse them, readings of any rate made into the player's 100 ms frames, and generated
// files against the real ExifTool, lookalike and damaged files included.
#include "FreeGpsBlock.h"
#include "GpmfParser.h"
#include "NmeaParser.h"
#include "ReadingGrid.h"
#include "ResampledTelemetrySource.h"
#include "StreamReader.h"
#include "kdxstream.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

using kdx::TelemetryReading;

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<kdx::NmeaParser::Fix> fixesOf(const std::string& text) {
    std::vector<kdx::NmeaParser::Fix> fixes;
    kdx::NmeaParser::parse(text.data(), text.size(), fixes);
    return fixes;
}

// "$BODY*hh\r\n" with the checksum it should have.
std::string sentence(const std::string& body) {
    unsigned checksum = 0;
    for (char c : body)
        checksum ^= static_cast<unsigned char>(c);
    char tail[8];
    std::snprintf(tail, sizeof tail, "*%02X\r\n", checksum);
    return "$" + body + tail;
}

// --- GPMF ---

// Big-endian values of `width` bytes each.
Bytes be(int width, std::initializer_list<long long> values) {
    Bytes out;
    for (long long value : values)
        for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
            out.push_back(std::uint8_t(value >> shift));
    return out;
}
Bytes klv(const char* key, char type, unsigned structSize, unsigned repeat, const Bytes& data) {
    Bytes out(key, key + 4);
    for (unsigned byte : {unsigned(type), structSize, repeat >> 8, repeat})
        out.push_back(std::uint8_t(byte));
    out.insert(out.end(), data.begin(), data.end());
    out.resize((out.size() + 3) / 4 * 4, 0); // padded to 32 bits
    return out;
}
Bytes nest(const char* key, const std::vector<Bytes>& entries) {
    Bytes data;
    for (const Bytes& entry : entries)
        data.insert(data.end(), entry.begin(), entry.end());
    return klv(key, '\0', 1, unsigned(data.size()), data);
}
// One device with a GPS5 stream (2 positions) and an ACCL stream (2 readings).
Bytes gpmfSample(int gpsFix = 3, const char* orientation = nullptr) {
    std::vector<Bytes> accel{klv("SCAL", 's', 2, 1, be(2, {100}))};
    if (orientation != nullptr)
        accel.insert(accel.begin(), klv("ORIN", 'c', 3, 1, Bytes(orientation, orientation + 3)));
    accel.push_back(klv("ACCL", 's', 6, 2, be(2, {981, -196, 0, 0, 0, 1962})));
    return nest("DEVC",
                {klv("DVID", 'L', 4, 1, be(4, {1})), nest("STRM", accel),
                 nest("STRM", {klv("GPSF", 'L', 4, 1, be(4, {gpsFix})),
                               klv("SCAL", 'l', 4, 5, be(4, {10000000, 10000000, 1000, 1000, 100})),
                               klv("GPS5", 'l', 20, 2,
                                   be(4, {374853000, 1271162000, 30000, 10000, 1000, -374854000,
                                          -1271164000, 31000, 20000, 2000}))})});
}

// --- freeGPS ---

void putLe32(Bytes& block, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        block[at + std::size_t(i)] = std::uint8_t(value >> (8 * i));
}
void putLeFloat(Bytes& block, std::size_t at, float value) {
    std::uint32_t bits;
    std::memcpy(&bits, &value, 4);
    putLe32(block, at, bits);
}

Bytes freeGpsHead() {
    Bytes block(0x8000, 0);
    block[2] = 0x80;
    std::memcpy(block.data() + 4, "freeGPS ", 8);
    block[12] = 0x4c;
    return block;
}
void freeGpsClock(Bytes& block) {
    const std::uint32_t clock[] = {8, 15, 2, 24, 6, 12};
    for (int i = 0; i < 6; ++i)
        putLe32(block, 48 + 4 * std::size_t(i), clock[i]);
    std::memcpy(block.data() + 72, "ASW", 3);
}
// 37°29.118' S, 127°06.972' W at 10 knots.
Bytes floatBlock() {
    Bytes block = freeGpsHead();
    freeGpsClock(block);
    putLeFloat(block, 76, 3729.118f);
    putLeFloat(block, 80, 12706.972f);
    putLeFloat(block, 84, 10.0f);
    return block;
}
Bytes integerBlock() {
    Bytes block = freeGpsHead();
    std::memcpy(block.data() + 16, "IQS_A7", 6);
    freeGpsClock(block);
    return block;
}
Bytes nmeaBlock() {
    Bytes block = freeGpsHead();
    std::memcpy(block.data() + 52, "20240612171502", 14);
    putLe32(block, 68, 256);
    putLe32(block, 72, std::uint32_t(-128));
    putLe32(block, 76, 0);
    const std::string sentences =
        sentence("GPRMC,081502.00,A,3729.1180,N,12706.9720,E,10.0,0.0,120624,,,A") +
        sentence("GPGGA,081502.00,3729.1180,N,12706.9720,E,1,09,0.9,30.0,M,0.0,M,,");
    std::memcpy(block.data() + 80, sentences.data(), sentences.size());
    return block;
}

TelemetryReading position(std::int64_t timeMs, double latitude, std::uint32_t fix = 2) {
    TelemetryReading reading;
    reading.timeMs = timeMs;
    reading.fields = KDX_FIELD_POSITION | KDX_FIELD_SPEED;
    reading.latitude = latitude;
    reading.longitude = 127;
    reading.speedKmh = latitude;
    reading.gpsFlags = fix;
    return reading;
}
TelemetryReading acceleration(std::int64_t timeMs, float x) {
    TelemetryReading reading;
    reading.timeMs = timeMs;
    reading.fields = KDX_FIELD_GSENSOR;
    reading.gSensor[0] = x;
    return reading;
}

std::vector<KDXTextFrame> grid(std::vector<TelemetryReading> readings, std::int32_t spanMs) {
    kdx::ReadingGrid::setDurations(readings);
    kdx::ReadingGrid frames(&readings, spanMs);
    std::vector<KDXTextFrame> out;
    KDXTextFrame frame;
    while (frames.next(frame))
        out.push_back(frame);
    return out;
}

bool hasPosition(const KDXTextFrame& frame) {
    return (frame.fields & KDX_FIELD_POSITION) != 0;
}

// --- Files ---

const QString kMedia = QStringLiteral(FOREIGN_MEDIA) + "/telemetry/";

// One reading as ExifTool reports it; speed in its own unit (m/s for GPMF, km/h otherwise).
struct Oracle {
    double latitude = 0;
    double longitude = 0;
    double speed = NAN;
    int fix = -1; // GPS9 only
    QVector<double> acceleration;
};

QStringList numbers(const QString& text) {
    return text.split(QRegularExpression(QStringLiteral("[ ,]+")), Qt::SkipEmptyParts);
}

QByteArray runExifTool(const QStringList& arguments) {
    QProcess exiftool;
    exiftool.start(QStringLiteral("exiftool"), arguments);
    if (!exiftool.waitForFinished(60000) || exiftool.exitCode() != 0)
        return QByteArray();
    return exiftool.readAllStandardOutput();
}

// The GPS readings of a file, in order: one per GPSLatitude (or GPS9 entry with -u), with the
// longitude, speed and acceleration reported after it in the same document.
QVector<Oracle> exifToolPositions(const QString& path, bool unknownTags = false) {
    QStringList arguments{"-ee", "-n", "-a", "-G3", "-s"};
    if (unknownTags)
        arguments << "-u";
    const QByteArray output = runExifTool(arguments << path);
    static const QRegularExpression line(QStringLiteral("^\\[(\\w+)\\]\\s+(\\S+)\\s*: (.*)$"));
    QVector<Oracle> readings;
    for (const QByteArray& text : output.split('\n')) {
        const QRegularExpressionMatch match = line.match(QString::fromUtf8(text).trimmed());
        if (!match.hasMatch() || !match.captured(1).startsWith(QLatin1String("Doc")))
            continue;
        const QString tag = match.captured(2), value = match.captured(3);
        if (tag == QLatin1String("GoPro_GPS9")) {
            // Latitude, longitude, altitude, 2-D and 3-D speed, days, seconds, DOP, fix.
            for (const QString& entry : value.split(QStringLiteral(", "))) {
                const QStringList fields = numbers(entry);
                if (fields.size() != 9)
                    continue;
                Oracle reading;
                reading.latitude = fields[0].toDouble();
                reading.longitude = fields[1].toDouble();
                reading.speed = fields[3].toDouble();
                reading.fix = fields[8].toInt();
                readings.append(reading);
            }
        } else if (tag == QLatin1String("GPSLatitude")) {
            readings.append(Oracle());
            readings.last().latitude = value.toDouble();
        } else if (readings.isEmpty()) {
            continue;
        } else if (tag == QLatin1String("GPSLongitude")) {
            readings.last().longitude = value.toDouble();
        } else if (tag == QLatin1String("GPSSpeed")) {
            readings.last().speed = value.toDouble();
        } else if (tag == QLatin1String("Accelerometer")) {
            for (const QString& number : numbers(value))
                readings.last().acceleration << number.toDouble();
        }
    }
    return readings;
}

// GPMF's accelerations, which ExifTool prints only as binary: x, y, z in m/s² as stored.
QVector<double> exifToolGpmfAccelerations(const QString& path) {
    const QByteArray output =
        runExifTool({"-ee", "-n", "-b", "-j", "-G3", "-a", "-Accelerometer", path});
    const QJsonObject file = QJsonDocument::fromJson(output).array().first().toObject();
    QVector<double> values;
    for (int doc = 1; file.contains(QStringLiteral("Doc%1:Accelerometer").arg(doc)); ++doc)
        for (const QString& number :
             numbers(file.value(QStringLiteral("Doc%1:Accelerometer").arg(doc)).toString()))
            values << number.toDouble();
    return values;
}

// The readings a source gives for a file; kind is the source's name ("" without one).
struct Read {
    kdx::StreamReader reader;
    QString kind;
    std::vector<kdx::TelemetryReading> positions;
    std::vector<kdx::TelemetryReading> accelerations;
    int result = KDX_OK;

    explicit Read(const QString& name) {
        if (reader.open(QFile::encodeName(kMedia + name).constData()) != KDX_OK ||
            reader.telemetry() == nullptr)
            return;
        kind = QString::fromLatin1(reader.telemetry()->kind());
        auto* source = dynamic_cast<kdx::ResampledTelemetrySource*>(reader.telemetry());
        if (source == nullptr)
            return;
        for (const kdx::TelemetryReading& reading : source->readings()) {
            if (reading.hasPosition())
                positions.push_back(reading);
            if (reading.hasGSensor())
                accelerations.push_back(reading);
        }
        result = source->readResult();
    }
};

// The frames the player gets through the C interface.
std::vector<KDXTextFrame> frames(const QString& name, KDXInfo* info) {
    std::vector<KDXTextFrame> out;
    const QByteArray path = QFile::encodeName(kMedia + name);
    KDXOpenParams params{};
    params.path8 = path.constData();
    KDXReader* reader = nullptr;
    if (KDXReaderOpen(&reader, &params) != KDX_OK)
        return out;
    KDXReaderGetInfo(reader, info);
    for (std::uint32_t i = 0; i < info->tracks[KDX_TELEMETRY_TRACK].frameCount; ++i) {
        KDXTextFrame frame{};
        KDXFrameDescriptor descriptor{};
        descriptor.buffer = &frame;
        descriptor.bufferSize = sizeof frame;
        descriptor.track = KDX_TELEMETRY_TRACK;
        descriptor.kind = KDX_FRAME_TEXT;
        if (KDXReaderReadFrame(reader, &descriptor) != KDX_OK)
            break;
        out.push_back(frame);
    }
    KDXReaderClose(reader);
    return out;
}

constexpr double kClose = 1e-9; // ExifTool prints 15 digits

} // namespace

class TestForeignTelemetry : public QObject {
    Q_OBJECT

private slots:
    // --- NMEA ---

    void rmcAndGgaOfOneMomentMakeOneFix() {
        const auto fixes =
            fixesOf(sentence("GNRMC,081502.50,A,3729.1206,S,12706.9738,W,25.9,45.0,120624,,,A") +
                    sentence("GNGGA,081502.50,3729.1206,S,12706.9738,W,2,11,0.8,35.2,M,0,M,,") +
                    sentence("GPRMC,081503.50,A,3729.1300,N,12706.9800,E,,,120624,,,A"));
        QCOMPARE(int(fixes.size()), 2);
        QCOMPARE(fixes[0].timeOfDayMs, ((8 * 60 + 15) * 60 + 2) * 1000 + 500);
        QVERIFY(fixes[0].hasPosition);
        QCOMPARE(fixes[0].latitude, -(37 + 29.1206 / 60));
        QCOMPARE(fixes[0].longitude, -(127 + 6.9738 / 60));
        QCOMPARE(fixes[0].speedKmh, 25.9 * 1.852);
        QCOMPARE(fixes[0].satellites, 11);
        QCOMPARE(fixes[0].fix, 3u);  // GGA quality 2: differential
        QVERIFY(!fixes[1].hasSpeed); // an empty speed field is no speed of 0
        QCOMPARE(fixes[1].clockMs() - fixes[0].clockMs(), qint64(1000));
    }

    void sentencesThatAreNoFixOrBroken() {
        // No fix (with a position), bad checksum, minutes 60, beyond the pole, another type,
        // garbage; cut sentences are in corrupt_nmea_text.mov.
        const std::string rejected[] = {
            sentence("GPRMC,081502.00,V,3729.1206,N,12706.9738,E,0.0,0.0,120624,,,N"),
            sentence("GPGGA,081502.00,3729.1206,N,12706.9738,E,0,00,,,M,,M,,"),
            "$GPRMC,081502.00,A,3729.1206,N,12706.9738,E,0.0,0.0,120624,,,A*00\r\n",
            sentence("GPRMC,081502.00,A,3760.0000,N,12706.9738,E,0.0,0.0,120624,,,A"),
            sentence("GPRMC,081502.00,A,9100.0000,N,12706.9738,E,0.0,0.0,120624,,,A"),
            sentence("GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1"),
            "$$$$,,,,*\r\n$GPRMC",
        };
        for (const std::string& text : rejected) {
            const auto fixes = fixesOf(text);
            QVERIFY2(fixes.empty() || !fixes.front().hasPosition, text.c_str());
        }
        // Without a checksum a sentence is taken as it is.
        QVERIFY(fixesOf("$GPRMC,081502,A,3729.1206,N,12706.9738,E,1.0,0.0,120624,,\n")
                    .front()
                    .hasPosition);
    }

    void cameraClockAndMidnight() {
        const auto fixes =
            fixesOf("[1718236799000]" +
                    sentence("GPRMC,235959.00,A,3729.1206,N,12706.9738,E,0.0,0.0,120624,,,A") +
                    "[1718236800000]" +
                    sentence("GPRMC,000000.00,A,3729.1206,N,12706.9738,E,0.0,0.0,130624,,,A"));
        QCOMPARE(int(fixes.size()), 2);
        QCOMPARE(fixes[0].timecodeMs, qint64(1718236799000));
        QCOMPARE(fixes[1].timecodeMs, qint64(1718236800000));
        QCOMPARE(fixes[1].clockMs() - fixes[0].clockMs(), qint64(1000));
    }

    // --- GPMF ---

    void gpmfScalesEachValueAndNamesItsAxes() {
        kdx::GpmfParser::Sample sample;
        const Bytes bytes = gpmfSample(3, "zXY");
        QVERIFY(kdx::GpmfParser::parse(bytes.data(), bytes.size(), sample));
        QCOMPARE(int(sample.positions.size()), 2);
        QCOMPARE(sample.positions[1].longitude, -127.1164); // signed, unlike the files'
        QCOMPARE(sample.positions[0].gpsFlags & 3u, 2u);
        QCOMPARE(int(sample.accelerations.size()), 2);
        // Stored -Z, X, Y: 9.81 m/s² on -Z, -1.96 on X.
        const TelemetryReading& first = sample.accelerations[0];
        QVERIFY(std::fabs(first.gSensor[2] + 9.81 / 9.80665) < 1e-6);
        QVERIFY(std::fabs(first.gSensor[0] + 1.96 / 9.80665) < 1e-6);
        QCOMPARE(sample.accelerations[1].gSensor[1], float(19.62 / 9.80665));
    }

    void gpmfWithoutFixOrDamaged() {
        kdx::GpmfParser::Sample sample;
        Bytes bytes = gpmfSample(0);
        QVERIFY(kdx::GpmfParser::parse(bytes.data(), bytes.size(), sample));
        QCOMPARE(int(sample.positions.size()), 2);
        QVERIFY(!sample.positions[0].hasFix()); // kept, but not to be shown

        // A length running past the end: the readings before it stay.
        bytes = gpmfSample();
        bytes[bytes.size() - 48 + 6] = 0xff; // the repeat of the GPS5 entry, the last one
        sample = {};
        QVERIFY(kdx::GpmfParser::parse(bytes.data(), bytes.size(), sample));
        QCOMPARE(int(sample.accelerations.size()), 2);
        QCOMPARE(int(sample.positions.size()), 0);

        // A cut sample, and no sample at all.
        bytes = gpmfSample();
        QVERIFY(!kdx::GpmfParser::parse(bytes.data(), bytes.size() / 2, sample));
        QVERIFY(!kdx::GpmfParser::parse(bytes.data(), 7, sample));
        // A scale of 0 divides nothing.
        bytes = nest("DEVC", {nest("STRM", {klv("SCAL", 's', 2, 1, be(2, {0})),
                                            klv("ACCL", 's', 6, 1, be(2, {1, 2, 3}))})});
        sample = {};
        QVERIFY(kdx::GpmfParser::parse(bytes.data(), bytes.size(), sample));
        QVERIFY(sample.accelerations.empty());
    }

    // --- freeGPS ---

    // South and west (the files are north and east), and the NMEA block's satellites.
    void freeGpsHemispheresAndSatellites() {
        TelemetryReading reading;
        Bytes block = floatBlock();
        QCOMPARE(kdx::FreeGpsBlock::layoutOf(block.data(), block.size()),
                 kdx::FreeGpsBlock::Layout::Float);
        QVERIFY(kdx::FreeGpsBlock::parse(block.data(), block.size(), reading));
        QCOMPARE(reading.latitude, -(37 + (double(3729.118f) - 3700) / 60));
        QCOMPARE(reading.longitude, -(127 + (double(12706.972f) - 12700) / 60));
        block = nmeaBlock();
        QVERIFY(kdx::FreeGpsBlock::parse(block.data(), block.size(), reading));
        QCOMPARE(reading.gpsFlags >> 2, 3u); // nine satellites
    }

    // A block is read as its own layout only, never as another one.
    void blocksAreNeverReadAsAnotherLayout() {
        using Layout = kdx::FreeGpsBlock::Layout;
        QCOMPARE(kdx::FreeGpsBlock::layoutOf(integerBlock().data(), 0x8000), Layout::Integer);
        QCOMPARE(kdx::FreeGpsBlock::layoutOf(nmeaBlock().data(), 0x8000), Layout::NmeaText);
        const Bytes gpmf = gpmfSample();
        QCOMPARE(kdx::FreeGpsBlock::layoutOf(gpmf.data(), gpmf.size()), Layout::None);
        const Bytes blocks[] = {floatBlock(), integerBlock(), nmeaBlock()};
        for (const Bytes& block : blocks) {
            kdx::GpmfParser::Sample sample;
            QVERIFY(!kdx::GpmfParser::parse(block.data(), block.size(), sample));
        }
        // A float block holds no sentence for the box and track sources.
        QVERIFY(!kdx::NmeaParser::containsSentence(
            reinterpret_cast<const char*>(floatBlock().data()), 0x8000));
        // (A block without a fix: freegps_float.mp4.) A NaN latitude, alone.
        TelemetryReading reading;
        Bytes block = floatBlock();
        putLeFloat(block, 76, NAN);
        QVERIFY(!kdx::FreeGpsBlock::parse(block.data(), block.size(), reading));
        block = floatBlock();
        putLe32(block, 64, 13); // month 13
        QCOMPARE(kdx::FreeGpsBlock::layoutOf(block.data(), block.size()), Layout::None);
        QCOMPARE(kdx::FreeGpsBlock::layoutOf(floatBlock().data(), 91), Layout::None);
    }

    // --- frames ---

    void framesAverageHoldAndEnd() {
        const auto frames =
            grid({position(0, 10), acceleration(0, 1), acceleration(30, 2), acceleration(60, 6),
                  acceleration(120, 8), position(1000, 20), acceleration(1900, 0)},
                 2500);
        QCOMPARE(int(frames.size()), 25);
        QCOMPARE(frames[0].gSensorX, 3.0f);  // mean of 1, 2, 6
        QCOMPARE(frames[1].gSensorX, 8.0f);  // the one reading within
        QCOMPARE(frames[5].gSensorX, 8.0f);  // held until the next one...
        QCOMPARE(frames[19].gSensorX, 0.0f); // ...at 1.9 s
        QCOMPARE(frames[19].timeMs, qint64(1900));
        QCOMPARE(frames[9].latitude, 10.0f); // positions are not interpolated
        QCOMPARE(frames[9].speed, 10.0f);
        QCOMPARE(frames[9].gpsFlags & 3u, 2u);
        QCOMPARE(frames[10].latitude, 20.0f);
        QCOMPARE(frames[19].latitude, 20.0f); // held as long as the one before lasted
        QVERIFY(!hasPosition(frames[20]));    // and no longer
    }

    void lostFixIsNotShownAsTheLastPosition() {
        // Fixes at 0 and 8 s, none at 0.5 s; without readings a hold ends after 2 s.
        const auto frames = grid({position(0, 10), position(500, 11, 0), position(8000, 12)}, 9000);
        QVERIFY(hasPosition(frames[4]));
        QVERIFY(!hasPosition(frames[5]));
        QVERIFY(!hasPosition(frames[60]));
        QCOMPARE(frames[80].latitude, 12.0f);
        const auto sparse = grid({position(0, 10), position(8000, 12)}, 9000);
        QVERIFY(hasPosition(sparse[19]));
        QVERIFY(!hasPosition(sparse[20]));
        QCOMPARE(kdx::ReadingGrid::frameCount(0), 0u);
        QCOMPARE(kdx::ReadingGrid::frameCount(4001), 41u);
    }

    // --- Files against ExifTool ---

    void initTestCase() {
        QProcess probe;
        probe.start(QStringLiteral("exiftool"), {QStringLiteral("-ver")});
        QVERIFY2(probe.waitForFinished(30000) && probe.exitCode() == 0,
                 "exiftool (libimage-exiftool-perl) is needed");
    }

    void agreesWithExifTool_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("oracleFile"); // where ExifTool can read the same values
        QTest::addColumn<QString>("kind");
        QTest::addColumn<double>("speedFactor");
        QTest::addColumn<int>("positions");
        const auto row = [](const char* tag, const char* file, const char* oracleFile,
                            const char* kind, double speedFactor, int positions) {
            QTest::newRow(tag) << QString(file) << QString(oracleFile) << QString(kind)
                               << speedFactor << positions;
        };
        row("GPMF GPS5", "gpmf_gps5.mp4", "", "GPMF", 3.6, 40);
        row("GPMF GPS9", "gpmf_gps9.mp4", "", "GPMF", 3.6, 40);
        row("freeGPS floats", "freegps_float.mp4", "", "freeGPS", 1.0, 3);
        row("freeGPS integers", "freegps_integer.mp4", "", "freeGPS", 1.0, 3);
        row("freeGPS NMEA", "freegps_nmea.mp4", "", "freeGPS", 1.0, 3);
        row("NMEA text track", "nmea_text.mov", "", "NMEA text", 1.0, 3);
        // ExifTool reads NMEA in text tracks only: the subtitle track is compared to that.
        row("NMEA subtitle track", "nmea_subtitle.mp4", "nmea_text.mov", "NMEA text", 1.0, 3);
        row("NMEA udat box", "nmea_udat.mp4", "", "NMEA box", 1.0, 3);
        row("NMEA free/gps box", "nmea_free.mp4", "", "NMEA box", 1.0, 3);
    }
    void agreesWithExifTool() {
        QFETCH(QString, file);
        QFETCH(QString, oracleFile);
        QFETCH(QString, kind);
        QFETCH(double, speedFactor);
        QFETCH(int, positions);
        const Read read(file);
        QCOMPARE(read.kind, kind);
        QCOMPARE(read.result, int(KDX_OK));
        QCOMPARE(int(read.positions.size()), positions);
        // ExifTool 12.57 knows GPS9 only as an unknown tag.
        QVector<Oracle> oracle = exifToolPositions(
            kMedia + (oracleFile.isEmpty() ? file : oracleFile), file.contains("gps9"));
        // ExifTool reports a block without a fix at 0, 0; we take no reading from it.
        oracle.erase(
            std::remove_if(oracle.begin(), oracle.end(),
                           [](const Oracle& o) { return o.latitude == 0 && o.longitude == 0; }),
            oracle.end());
        // Reading by reading; speedFactor makes ExifTool's speed km/h. Where it reports an
        // acceleration with a position, so do we.
        QCOMPARE(oracle.size(), positions);
        for (int i = 0; i < positions; ++i) {
            const kdx::TelemetryReading& ours = read.positions[std::size_t(i)];
            const QByteArray where = QByteArray::number(i);
            QVERIFY2(std::fabs(ours.latitude - oracle[i].latitude) < kClose, where);
            QVERIFY2(std::fabs(ours.longitude - oracle[i].longitude) < kClose, where);
            if (!std::isnan(oracle[i].speed))
                QVERIFY2(std::fabs(ours.speedKmh - oracle[i].speed * speedFactor) < kClose, where);
            if (oracle[i].fix >= 0)
                QCOMPARE(ours.hasFix(), oracle[i].fix != 0);
            if (oracle[i].acceleration.size() == 3) {
                QVERIFY(ours.hasGSensor());
                for (int axis = 0; axis < 3; ++axis)
                    QVERIFY(std::fabs(ours.gSensor[axis] - oracle[i].acceleration[axis]) < 1e-6);
            }
        }
    }

    // GPMF stores m/s² in the stream's axis order (ORIN); ours are g in X, Y, Z.
    void gpmfAccelerationsAgreeWithExifTool_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QVector<int>>("storedAxis"); // our axis of stored value 0, 1, 2
        QTest::newRow("stored order") << "gpmf_gps5.mp4" << QVector<int>{0, 1, 2};
        QTest::newRow("ORIN ZXY") << "gpmf_gps9.mp4" << QVector<int>{2, 0, 1};
    }
    void gpmfAccelerationsAgreeWithExifTool() {
        QFETCH(QString, file);
        QFETCH(QVector<int>, storedAxis);
        const Read read(file);
        const QVector<double> stored = exifToolGpmfAccelerations(kMedia + file);
        QCOMPARE(int(read.accelerations.size()) * 3, stored.size());
        QCOMPARE(int(read.accelerations.size()), 80);
        for (int i = 0; i < int(read.accelerations.size()); ++i)
            for (int k = 0; k < 3; ++k)
                QVERIFY2(std::fabs(read.accelerations[std::size_t(i)].gSensor[storedAxis[k]] -
                                   stored[3 * i + k] / 9.80665) < 1e-6,
                         QByteArray::number(i));
    }

    // Bytes of one layout where another is looked for are not taken by either.
    void lookalikesAreNotClaimed_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("freeGPS blocks in a gpmd track") << "lookalike_gpmd_freegps.mp4";
        QTest::newRow("GPMF in a udat box") << "lookalike_udat_gpmf.mp4";
        QTest::newRow("GPMF in the media data") << "lookalike_gap_gpmf.mp4";
        QTest::newRow("NMEA in the media data") << "lookalike_gap_nmea.mp4";
        QTest::newRow("free boxes of padding and GPMF") << "lookalike_free_padding.mp4";
    }
    void lookalikesAreNotClaimed() {
        QFETCH(QString, file);
        const Read read(file);
        QCOMPARE(read.kind, QString());
        KDXInfo info{};
        QVERIFY(frames(file, &info).empty());
        QCOMPARE(info.textDataPresent, 0);
        QCOMPARE(info.videoCount, 1); // read, and found nothing
    }

    // Damage costs the readings it touches, never the file's others, and never a crash.
    void damagedFilesGiveFewerReadings_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("positions");
        QTest::addColumn<bool>("cutShort");
        QTest::newRow("GPMF with noise") << "corrupt_gpmf.mp4" << 20 << false;
        QTest::newRow("GPMF cut short") << "truncated_gpmf.mp4" << 30 << true;
        QTest::newRow("freeGPS with noise and impossible values")
            << "corrupt_freegps.mp4" << 1 << false;
        QTest::newRow("freeGPS cut short") << "truncated_freegps.mp4" << 2 << true;
        QTest::newRow("NMEA with a bad checksum and a cut sentence")
            << "corrupt_nmea_text.mov" << 2 << false;
        QTest::newRow("NMEA log cut short") << "truncated_udat.mp4" << 2 << false;
    }
    void damagedFilesGiveFewerReadings() {
        QFETCH(QString, file);
        QFETCH(int, positions);
        QFETCH(bool, cutShort);
        const Read read(file);
        QVERIFY(!read.kind.isEmpty());
        QCOMPARE(int(read.positions.size()), positions);
        QCOMPARE(read.result, cutShort ? int(KDX_ERR_READ) : int(KDX_OK));
        for (const kdx::TelemetryReading& reading : read.positions) {
            QVERIFY(std::fabs(reading.latitude) <= 90 && std::fabs(reading.longitude) <= 180);
            QVERIFY(reading.speedKmh >= 0 && reading.speedKmh < 2000);
        }
        for (const kdx::TelemetryReading& reading : read.accelerations)
            for (float g : reading.gSensor)
                QVERIFY(std::isfinite(g) && std::fabs(g) <= 64);
        // The player still gets a frame for every 100 ms of the recording.
        KDXInfo info{};
        QCOMPARE(int(frames(file, &info).size()), 40);
    }

    // A bad checksum costs its sentence only: the GGA still places the car, without speed.
    void brokenSentenceLeavesItsPartner() {
        const Read read(QStringLiteral("corrupt_nmea_text.mov"));
        QCOMPARE(int(read.positions.size()), 2);
        QVERIFY((read.positions[0].fields & KDX_FIELD_SPEED) != 0);
        QVERIFY((read.positions[1].fields & KDX_FIELD_SPEED) == 0);
        QCOMPARE(read.positions[1].timeMs, qint64(2000));
    }
};

QTEST_GUILESS_MAIN(TestForeignTelemetry)
#include "test_foreigntelemetry.moc"
