// The telemetry sample syntax (docs/telemetry-format.md): readings and refused texts.
#include "TelemetrySampleParser.h"

#include <QtTest>

#include <cstring>
#include <vector>

using kdx::TelemetrySampleParser;

namespace {

TelemetrySampleParser::Result parse(const QByteArray& text, KDXTextFrame& frame) {
    std::memset(&frame, 0, sizeof frame);
    return TelemetrySampleParser::parseText(text.constData(), std::size_t(text.size()), frame);
}

} // namespace

class TestTelemetrySample : public QObject {
    Q_OBJECT

private slots:
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
};

QTEST_APPLESS_MAIN(TestTelemetrySample)
#include "test_telemetrysample.moc"
