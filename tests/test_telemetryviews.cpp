// The G-sensor chart read back from its picture, the map's scripts to its real web page, and
// the page's encryption.
#include "AppGlobals.h"
#include "ChartTrace.h"
#include "ChartView.h"
#include "Incident.h"
#include "MapPageCipher.h"
#include "MapView.h"
#include "PlaybackState.h"
#include "TraceSample.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWebEngineView>
#include <QtTest>

#include "WebTestMain.h"

namespace {

void setPlaying(double currentMs, double totalMs) {
    PlaybackState::playStatus = PlaybackState::PlayPaused;
    PlaybackState::telemetryPresent = true;
    PlaybackState::currentTime = currentMs;
    PlaybackState::totalTime = totalMs;
}

// count G-sensor points: X = k / 100, Y = -1, Z = 0.5.
void fillGSensor(int count) {
    PlaybackState::gSensorList.clear();
    for (int k = 0; k < count; ++k)
        PlaybackState::gSensorList.append({k, float(k / 100.0), -1.0f, 0.5f});
}

bool isColour(QRgb pixel, const char* colour) {
    return (pixel & 0xffffff) == (QColor(colour).rgb() & 0xffffff);
}

// Pixels of a colour in the chart's bar (the axis names beside it wear the same colours).
int countColour(ChartView& chart, const char* colour) {
    const QImage image = chart.grab(chart.barRect()).toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += isColour(image.pixel(x, y), colour);
    return count;
}

// The numbers of a C++ byte array as the page encryption tool writes it.
QByteArray bytesOfSource(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QString text = QString::fromLatin1(file.readAll());
    const QString body = text.section('{', 1).section('}', 0, 0);
    QByteArray bytes;
    for (const QString& number : body.split(',', Qt::SkipEmptyParts)) {
        bool ok = false;
        const int value = number.trimmed().toInt(&ok);
        if (ok)
            bytes.append(char(value));
    }
    return bytes;
}

} // namespace

class TestTelemetryViews : public QObject {
    Q_OBJECT

    QTemporaryDir m_data;

    // The scripts sent since the last call.
    static QStringList take(QSignalSpy& spy) {
        QStringList scripts;
        for (const QList<QVariant>& call : spy)
            scripts << call.at(0).toString();
        spy.clear();
        return scripts;
    }

    // The map after a tick at this time of the recording.
    static QStringList tick(MapView& map, QSignalSpy& spy, double ms) {
        PlaybackState::currentTime = ms;
        map.onUpdateMap();
        return take(spy);
    }

    // A map whose page has loaded.
    void waitForPage(MapView& map) {
        QVERIFY(map.webView() != nullptr);
        QSignalSpy loaded(map.webView(), &QWebEngineView::loadFinished);
        QVERIFY(loaded.wait(20000));
        QVERIFY(loaded.first().at(0).toBool());
    }

private slots:
    void initTestCase() { AppGlobals::dataFolder = m_data.path(); }

    void init() {
        PlaybackState::gSensorList.clear();
        PlaybackState::gpsList.clear();
        setPlaying(0, 0);
        PlaybackState::playStatus = PlaybackState::PlayIdle;
        PlaybackState::telemetryPresent = false;
    }

    // ---- Chart ----

    void chartPaintsEachAxisAndThePosition() {
        ChartView chart;
        chart.show();
        QVERIFY(QTest::qWaitForWindowExposed(&chart));
        fillGSensor(101); // last index 100: 99 samples
        setPlaying(5000, 10000);
        chart.onloadChart();
        chart.onUpdateChart();

        // Sample i = 99 * 5000 / 10000 = 49: X 0.490, Y -1.000, Z 0.500.
        QStringList values;
        for (const char* label : {"gSensorLXValue", "gSensorLYValue", "gSensorLZValue"})
            values << chart.findChild<QLabel*>(label)->text();
        QCOMPARE(values, (QStringList{"0.490", "-1.000", "0.500"}));

        const QImage image = chart.grab().toImage();
        const QRect bar = chart.barRect();
        const int middle = bar.y() + bar.height() / 2;
        const int half = bar.height() / 2;
        // Y (-1) a quarter below zero, Z (0.5) an eighth above, along; X rises to 1 g.
        for (int x : {bar.x() + 40, bar.x() + bar.width() / 3, bar.right() - 40}) {
            QVERIFY2(isColour(image.pixel(x, middle + int(half * 0.5)), ChartView::kAxisColours[1]),
                     qPrintable(QString::number(x)));
            QVERIFY(isColour(image.pixel(x, middle + int(half * -0.5 * 0.5)),
                             ChartView::kAxisColours[2]));
        }
        const int k = 90;
        const int x = ChartTrace::xOf(k, 99, bar.width());
        QVERIFY(
            isColour(image.pixel(bar.x() + x, middle + ChartTrace::yOf(k / 100.0, bar.height())),
                     ChartView::kAxisColours[0]));
        // The white position line halfway along the bar.
        const int line = bar.width() / 2;
        QCOMPARE(image.pixel(line, middle + 3) & 0xffffff, QRgb(0xffffff));
        QCOMPARE(image.pixel(line, bar.bottom()) & 0xffffff, QRgb(0xffffff));

        // At time 0 the labels keep what they show.
        PlaybackState::currentTime = 0;
        chart.onUpdateChart();
        QCOMPARE(chart.findChild<QLabel*>("gSensorLXValue")->text(), QStringLiteral("0.490"));

        // Cleared: "0.000" and nothing drawn; fewer than two samples draw no line either.
        // The coordinator empties its list; the chart lets go of its copy.
        chart.onClearData();
        QCOMPARE(chart.findChild<QLabel*>("gSensorLYValue")->text(), QStringLiteral("0.000"));
        for (const char* colour : ChartView::kAxisColours)
            QCOMPARE(countColour(chart, colour), 0);
        for (int points : {0, 2, 3}) { // no point, 0 and 1 samples
            fillGSensor(points);
            chart.onloadChart();
            for (const char* colour : ChartView::kAxisColours)
                QCOMPARE(countColour(chart, colour), 0);
        }
        fillGSensor(4); // 2 samples: one line per axis
        chart.onloadChart();
        QVERIFY(countColour(chart, ChartView::kAxisColours[1]) > 0);
    }

    // Far fewer lines for a long recording, the same picture pixel for pixel.
    void longTracesDrawTheSamePicture() {
        const QSize bar(836, 76);
        for (int n : {40, 900, 36000}) {
            QVector<double> values;
            QRandomGenerator random(n);
            double value = 0;
            for (int k = 0; k < n; ++k) {
                value = qBound(-2.0, value + (random.bounded(2000) - 1000) / 4000.0, 2.0);
                values.append(value);
            }
            QImage all(bar.width() + 1, bar.height() + 1, QImage::Format_RGB32);
            QImage columns = all;
            all.fill(Qt::black);
            columns.fill(Qt::black);
            for (auto [image, lines] :
                 {std::pair{&all, ChartTrace::allLines(values, bar)},
                  std::pair{&columns, ChartTrace::columnLines(values, bar)}}) {
                QPainter painter(image);
                painter.translate(0, bar.height() / 2);
                painter.setPen(Qt::red);
                painter.drawLines(lines);
            }
            QCOMPARE(columns, all);
            if (n == 36000)
                QVERIFY(ChartTrace::columnLines(values, bar).size() <= 2 * (bar.width() + 1));
        }
    }

    void clickOrDragOnTheChartMovesPlayback() {
        ChartView chart;
        chart.show();
        QVERIFY(QTest::qWaitForWindowExposed(&chart));
        fillGSensor(101);
        setPlaying(1000, 40000);
        chart.onloadChart();
        QSignalSpy seek(&chart, &ChartView::onSendSeek);
        const QRect bar = chart.barRect();
        // A click seeks where it lands (test_firstrun on the real program); a drag seeks once,
        // where it ends.
        QTest::mousePress(&chart, Qt::LeftButton, {}, QPoint(bar.x() + 10, 20));
        QMouseEvent move(QEvent::MouseMove, QPointF(bar.x() + bar.width() * 3 / 4, 20),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&chart, &move);
        QTest::mouseRelease(&chart, Qt::LeftButton, {}, QPoint(bar.x() + bar.width() * 3 / 4, 20));
        QCOMPARE(seek.count(), 1);
        QVERIFY(qAbs(seek.last().at(0).toInt() - 30000) < 100);
        // Nothing to move without a recording.
        PlaybackState::playStatus = PlaybackState::PlayIdle;
        QTest::mouseClick(&chart, Qt::LeftButton, {}, QPoint(bar.x() + 50, 20));
        QCOMPARE(seek.count(), 1);
    }

    // A drive plays: the bar shows the drive's readings two minutes wide around the play
    // time, whichever recording plays, and a click gives the recording's time of the moment.
    void chartFollowsTheDrive() {
        ChartView chart;
        chart.show();
        QVERIFY(QTest::qWaitForWindowExposed(&chart));
        // Ten minutes of a drive: X rises with time, so each window's picture differs.
        QVector<TraceSample> trace;
        for (int k = 0; k < 6000; ++k) {
            TraceSample sample;
            sample.timeMs = k * 100;
            sample.x = float(k) / 6000.0f;
            sample.y = -1;
            sample.z = 0.5f;
            trace.append(sample);
        }
        fillGSensor(10); // the recording's own, which the drive's replaces
        setPlaying(5000, 60000);
        PlaybackState::driveOffsetMs = 240000;
        PlaybackState::driveLengthMs = 600000;
        chart.onSetDriveTrace(trace);
        chart.onloadChart();
        chart.onUpdateChart();
        // 245 s into the drive: X there is 2450 / 6000.
        bool shown = false;
        for (QLabel* label : chart.findChildren<QLabel*>())
            shown = shown || label->text() == QString::number(2450.0 / 6000.0, 'f', 3);
        QVERIFY(shown);
        QVERIFY(countColour(chart, ChartView::kAxisColours[1]) > chart.barRect().width() / 2);
        QSignalSpy seek(&chart, &ChartView::onSendSeek);
        const QRect bar = chart.barRect();
        QTest::mouseClick(&chart, Qt::LeftButton, {}, QPoint(bar.x() + bar.width() / 2, 20));
        QCOMPARE(seek.count(), 1);
        // The window starts a quarter before the play time (215 s): its middle is 275 s, which
        // is 35 s into the recording that starts at 240 s.
        QVERIFY2(qAbs(seek.last().at(0).toInt() - 35000) < 500,
                 qPrintable(QString::number(seek.last().at(0).toInt())));
        PlaybackState::driveOffsetMs = -1;
        PlaybackState::driveLengthMs = 0;
        chart.onSetDriveTrace({});
    }

    // ---- Map ----

    // While a drive plays the map keeps the drive's route and pins from recording to
    // recording; the next recording only moves the car.
    void mapKeepsTheDriveAcrossItsRecordings() {
        MapView map;
        waitForPage(map);
        QSignalSpy scripts(&map, &MapView::scriptSent);
        PlaybackState::driveOffsetMs = 0;
        PlaybackState::driveLengthMs = 20000;
        QVector<TraceSample> route;
        for (int i = 0; i < 20; ++i) {
            TraceSample point;
            point.timeMs = i * 1000;
            point.latitude = 37.5f;
            point.longitude = 127.0f + i * 0.0001f;
            point.speedKmh = 40;
            route.append(point);
        }
        Incident braking;
        braking.timeMs = 12000;
        braking.peakG = 0.62f;
        braking.latitude = 37.5f;
        braking.longitude = 127.0012f;
        PlaybackState::gpsList = {{0, 37.5f, 127.0f, 40.0f, 0, 0},
                                  {1, 37.5f, 127.0001f, 40.0f, 0, 0}};
        setPlaying(0, 10000);
        map.onSetDrive(route, {braking});
        map.onLoadMap();
        QStringList sent = take(scripts);
        QVERIFY(sent.contains("initMap()"));
        const auto routeSent = std::find_if(sent.cbegin(), sent.cend(), [](const QString& script) {
            return script.startsWith("setRoute(");
        });
        QVERIFY(routeSent != sent.cend() && routeSent->count("],[") == 19);
        QVERIFY(sent.contains("setIncidents([[37.50000,127.00120,\"00:12 0.62 g\"]])"));
        // The drive's next recording: no new map, no new route.
        map.onClearData();
        PlaybackState::driveOffsetMs = 10000;
        PlaybackState::gpsList = {{0, 37.5f, 127.001f, 40.0f, 0, 0},
                                  {1, 37.5f, 127.0011f, 40.0f, 0, 0}};
        map.onLoadMap();
        sent = take(scripts);
        QVERIFY2(
            !sent.contains("initMap()") &&
                std::none_of(sent.cbegin(), sent.cend(),
                             [](const QString& script) { return script.startsWith("setRoute("); }),
            qPrintable(sent.join(" | ")));
        // The drive ends: the next recording gets a map of its own.
        PlaybackState::driveOffsetMs = -1;
        PlaybackState::driveLengthMs = 0;
        map.onSetDrive({}, {});
        map.onClearData();
        map.onLoadMap();
        sent = take(scripts);
        QVERIFY(sent.contains("initMap()"));
    }

    void mapSendsNothingButInitMapBeforeItsPageIsUp() {
        PlaybackState::gpsList = {{0, 37.5f, 127.0f, 40.0f, 0, 0},
                                  {1, 37.5f, 127.001f, 41.0f, 0, 0}};
        MapView map;
        QSignalSpy scripts(&map, &MapView::scriptSent);
        setPlaying(500, 1000);
        map.onLoadMap();
        map.onUpdateMap();
        QVERIFY(scripts.isEmpty());
        waitForPage(map);
        // The page came up with the recording's points known: a new map and its route.
        const QStringList sent = take(scripts);
        QVERIFY(!sent.isEmpty());
        QCOMPARE(sent.first(), QStringLiteral("initMap()"));
        QCOMPARE(sent.at(1), QStringLiteral("setSpeedUnit(false)"));
        QVERIFY(sent.size() == 2 || sent.at(2).startsWith("setRoute(["));
    }

    // Miles per hour chosen while a recording shows: the unit, and the car again so that its
    // label changes at once (the page's labels in either unit: test_map_page.js).
    void mapShowsSpeedsInTheChosenUnit() {
        PlaybackState::gpsList = {{0, 37.5f, 127.0f, 80.0f, 0, 0},
                                  {1, 37.5f, 127.001f, 80.0f, 0, 0}};
        MapView map;
        waitForPage(map);
        setPlaying(0, 1000);
        map.onLoadMap();
        QSignalSpy scripts(&map, &MapView::scriptSent);
        AppGlobals::speedUnit = 2;
        map.onSetSpeedUnit(2);
        AppGlobals::speedUnit = 1;
        QCOMPARE(take(scripts),
                 (QStringList{"setSpeedUnit(true)", "setLatLng(37.50000, 127.00000, 80, false)"}));
    }

    void mapFollowsTheRecordingFromTheDefaultPosition() {
        // Ten points without a fix, then a drive east at 42.5 km/h.
        for (int i = 0; i < 100; ++i) {
            const bool fix = i >= 10;
            PlaybackState::gpsList.append(
                {i, fix ? 37.40012f : 0.0f, fix ? float(127.1 + i * 0.0001) : 0.0f, 42.5f, 0, 0});
        }
        MapView map;
        waitForPage(map);
        QSignalSpy scripts(&map, &MapView::scriptSent);
        setPlaying(0, 9900);
        map.onLoadMap();
        QStringList sent = take(scripts);
        QCOMPARE(sent.size(), 3);
        QCOMPARE(sent.at(0), QStringLiteral("initMap()"));
        QVERIFY(sent.at(1).startsWith("setRoute([[0.00000,0.00000,42.5],"));
        QCOMPARE(sent.at(2), QStringLiteral("setLatLng(37.48534, 127.11623, 0, true)"));
        // At time 0 and at the very end nothing is sent.
        QVERIFY(tick(map, scripts, 0).isEmpty() && tick(map, scripts, 9900).isEmpty());
        // Still no fix at point 5: the default position, as a move.
        QCOMPARE(tick(map, scripts, 500),
                 QStringList{"setLatLng(37.48534, 127.11623, 42.5, false)"});
        // The first point with a fix: a new map with the route, then the real position.
        sent = tick(map, scripts, 2000);
        QCOMPARE(sent.size(), 3);
        QCOMPARE(sent.at(0), QStringLiteral("initMap()"));
        QVERIFY(sent.at(1).startsWith("setRoute(["));
        QCOMPARE(sent.at(2), QStringLiteral("setLatLng(37.40012, 127.10200, 42.5, false)"));
        // Later points only move the car; not playing, or cleared, nothing.
        QCOMPARE(tick(map, scripts, 3000),
                 QStringList{"setLatLng(37.40012, 127.10300, 42.5, false)"});
        PlaybackState::playStatus = PlaybackState::PlayIdle;
        QVERIFY(tick(map, scripts, 4000).isEmpty());
        QSignalSpy keyboard(&map, &MapView::onSendBlockKeyboardEvent);
        map.onClearData();
        QCOMPARE(keyboard.count(), 1);
        setPlaying(3000, 9900);
        QVERIFY(tick(map, scripts, 3000).isEmpty());
    }

    // ---- The page's encryption ----

    void pageIsKeptEncryptedAndComesBackWhole() {
        QFile source(QStringLiteral(MAP_PAGE));
        QVERIFY(source.open(QIODevice::ReadOnly));
        QString error;
        QCOMPARE(MapPageCipher::builtInPage(&error), source.readAll());

        // The build's tool and the decryption agree, a page filling its last block too.
        QTemporaryDir dir;
        for (int size : {1, 15, 16, 1000}) {
            const QByteArray page(size, 'p');
            QFile in(dir.filePath("page.html"));
            QVERIFY(in.open(QIODevice::WriteOnly));
            in.write(page);
            in.close();
            QCOMPARE(QProcess::execute(QStringLiteral(ENCRYPT_PAGE),
                                       {QString::fromLatin1(MapPageCipher::programKey().toHex()),
                                        QString::fromLatin1(MapPageCipher::programIv().toHex()),
                                        in.fileName(), dir.filePath("page.cpp")}),
                     0);
            const QByteArray encrypted = bytesOfSource(dir.filePath("page.cpp"));
            QCOMPARE(encrypted.size(), (size / 16 + 1) * 16);
            QCOMPARE(MapPageCipher::decrypt(encrypted, MapPageCipher::programKey(),
                                            MapPageCipher::programIv(), &error),
                     page);
        }
    }

    void damagedPageFailsCleanly() {
        // A damaged page in the program: the map area says so, and there is no web view.
        MapView map(nullptr, QByteArray(4096, '\x5a'));
        QVERIFY(map.pageFailed());
        QVERIFY(map.webView() == nullptr);
        auto* message = map.findChild<QLabel*>("mapError");
        QVERIFY(message != nullptr && !message->text().isEmpty());
        // Not a whole number of blocks, or a key of the wrong length.
        QString error;
        QVERIFY(MapPageCipher::decrypt(QByteArray(100, 'x'), MapPageCipher::programKey(),
                                       MapPageCipher::programIv(), &error)
                    .isEmpty());
        QVERIFY(!error.isEmpty());
        QVERIFY(MapPageCipher::decrypt(QByteArray(96, 'x'), QByteArray(8, 'k'),
                                       MapPageCipher::programIv(), &error)
                    .isEmpty());
    }
};

TAVORIC_WEB_TEST_MAIN(TestTelemetryViews)

#include "test_telemetryviews.moc"
