// Other cameras' telemetry in generated files against the real ExifTool; lookalike and damaged
// files; the frames the player gets.
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

namespace {

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
            // Entries of latitude, longitude, altitude, 2-D and 3-D speed, days, seconds,
            // DOP and fix, one after another.
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
        if (reader.open(QFile::encodeName(kMedia + name).constData()) != KDX_OK)
            return;
        if (reader.telemetry() == nullptr)
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

constexpr double kDegrees = 1e-9; // ExifTool prints 15 digits
constexpr double kKmh = 1e-9;

} // namespace

class TestForeignTelemetry : public QObject {
    Q_OBJECT

    // Ours against ExifTool's, reading by reading. speedFactor brings ExifTool's speed to
    // km/h.
    void comparePositions(const Read& read, const QVector<Oracle>& oracle, double speedFactor) {
        QVERIFY2(!oracle.isEmpty(), "ExifTool read nothing");
        QCOMPARE(int(read.positions.size()), oracle.size());
        for (int i = 0; i < oracle.size(); ++i) {
            const kdx::TelemetryReading& ours = read.positions[std::size_t(i)];
            const QByteArray where = QByteArray::number(i);
            QVERIFY2(std::fabs(ours.latitude - oracle[i].latitude) < kDegrees, where);
            QVERIFY2(std::fabs(ours.longitude - oracle[i].longitude) < kDegrees, where);
            if (!std::isnan(oracle[i].speed))
                QVERIFY2(std::fabs(ours.speedKmh - oracle[i].speed * speedFactor) < kKmh, where);
            if (oracle[i].fix >= 0)
                QCOMPARE(ours.hasFix(), oracle[i].fix != 0);
        }
    }

private slots:
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
        // ExifTool reads NMEA only from QuickTime text tracks; the same sentences in a
        // subtitle track are compared with its reading of the text track.
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
        // ExifTool reports a freeGPS block without a fix as a reading at 0, 0 (and Perl's
        // warnings); we take no reading from it.
        oracle.erase(
            std::remove_if(oracle.begin(), oracle.end(),
                           [](const Oracle& o) { return o.latitude == 0 && o.longitude == 0; }),
            oracle.end());
        comparePositions(read, oracle, speedFactor);
        // Where ExifTool reports an acceleration with a position, so do we.
        for (int i = 0; i < oracle.size(); ++i) {
            if (oracle[i].acceleration.size() != 3)
                continue;
            QVERIFY(read.positions[std::size_t(i)].hasGSensor());
            for (int axis = 0; axis < 3; ++axis)
                QVERIFY(std::fabs(read.positions[std::size_t(i)].gSensor[axis] -
                                  oracle[i].acceleration[axis]) < 1e-6);
        }
    }

    // GPMF accelerations are stored in m/s² in the order the stream names (ORIN: "ZXY" in
    // the GPS9 file); ours are g in X, Y, Z.
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
        QCOMPARE(info.tracks[KDX_TELEMETRY_TRACK].frameCount, 0u);
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

    // A checksum that does not match costs that sentence only: the GGA of the same second
    // still gives the position, without the speed only RMC has.
    void brokenSentenceLeavesItsPartner() {
        const Read read(QStringLiteral("corrupt_nmea_text.mov"));
        QCOMPARE(int(read.positions.size()), 2);
        QVERIFY((read.positions[0].fields & KDX_FIELD_SPEED) != 0);
        QVERIFY((read.positions[1].fields & KDX_FIELD_SPEED) == 0);
        QCOMPARE(read.positions[1].timeMs, qint64(2000));
    }

    // What the player gets: a frame every 100 ms over the whole recording, positions in
    // km/h as read, positions without a fix left out.
    void framesCoverTheRecording() {
        KDXInfo info{};
        const std::vector<KDXTextFrame> gps9 = frames(QStringLiteral("gpmf_gps9.mp4"), &info);
        QCOMPARE(info.textDataPresent, 1);
        QCOMPARE(int(gps9.size()), 40);
        const Read read(QStringLiteral("gpmf_gps9.mp4"));
        for (int k = 0; k < 40; ++k) {
            QCOMPARE(gps9[std::size_t(k)].timeMs, qint64(k) * 100);
            const bool fix = (gps9[std::size_t(k)].fields & KDX_FIELD_POSITION) != 0;
            // Readings 25-29 (2.5-3.0 s) have no fix.
            QCOMPARE(fix, k < 25 || k >= 30);
            if (fix) {
                QCOMPARE(gps9[std::size_t(k)].latitude,
                         float(read.positions[std::size_t(k)].latitude));
                QCOMPARE(gps9[std::size_t(k)].speed,
                         float(read.positions[std::size_t(k)].speedKmh));
                QCOMPARE(gps9[std::size_t(k)].gpsFlags & 3u, 2u);
            }
            // Two accelerations a frame, averaged.
            const kdx::TelemetryReading& a = read.accelerations[std::size_t(2 * k)];
            const kdx::TelemetryReading& b = read.accelerations[std::size_t(2 * k + 1)];
            QCOMPARE(gps9[std::size_t(k)].gSensorX,
                     float((double(a.gSensor[0]) + b.gSensor[0]) / 2));
        }
    }
};

QTEST_GUILESS_MAIN(TestForeignTelemetry)
#include "test_foreigntelemetry.moc"
