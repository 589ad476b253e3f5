// Drives without a window: grouping recordings by time, incidents in synthetic traces, and
// the demo set read from its files.

#include "DriveGrouper.h"
#include "DriveList.h"
#include "DriveTrace.h"
#include "IncidentDetector.h"
#include "RecordingName.h"
#include "RecordingRecord.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <random>

namespace {

constexpr qint64 kSecond = 1000;

qint64 clock(const char* text) {
    QDateTime time = QDateTime::fromString(QLatin1String(text), "yyyy-MM-dd HH:mm:ss");
    time.setTimeSpec(Qt::UTC);
    return time.toMSecsSinceEpoch();
}

DriveRecording recording(const char* name, qint64 start, qint64 seconds, int type = 1,
                         int problem = 0) {
    DriveRecording made;
    made.path = QLatin1String(name);
    made.startMs = start;
    made.durationMs = problem == 0 ? seconds * kSecond : 0;
    made.type = type;
    made.problem = problem;
    return made;
}

// "a,b|c": the drives' recordings by name, drives split by "|", parking spans in brackets,
// skipped recordings after "~".
QString describe(const QVector<Drive>& drives, const QVector<DriveRecording>& recordings) {
    QStringList parts;
    for (const Drive& drive : drives) {
        QStringList names;
        for (int index : drive.recordings)
            names << recordings.at(index).path;
        QString part = names.join(',');
        if (!drive.skipped.isEmpty()) {
            QStringList skipped;
            for (int index : drive.skipped)
                skipped << recordings.at(index).path;
            part += '~' + skipped.join(',');
        }
        parts << (drive.kind == Drive::Parking ? '[' + part + ']' : part);
    }
    return parts.join('|');
}

// A drive at 10 readings a second: speed-led longitudinal G, gentle turns, sensor noise
// and the odd bump, as a calm driver's trace looks.
QVector<TraceSample> calmTrace(int seconds, unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<float> noise(0.0f, 0.02f);
    QVector<TraceSample> trace;
    for (int i = 0; i < seconds * 10; ++i) {
        const double t = i / 10.0;
        TraceSample sample;
        sample.timeMs = i * 100;
        sample.x = float(0.2 * std::sin(t / 7.0)) + noise(random);
        sample.y = float(0.3 * std::sin(t / 11.0)) + noise(random);
        sample.z = 1.0f + noise(random);
        sample.speedKmh = float(50 + 20 * std::sin(t / 30.0));
        if (i % 97 == 50)
            sample.x += 0.6f; // a bump: one reading
        trace.append(sample);
    }
    return trace;
}

// Sets axis to value for the readings from fromS for lengthS seconds.
void hold(QVector<TraceSample>& trace, double fromS, double lengthS, float TraceSample::*axis,
          float value) {
    for (TraceSample& sample : trace)
        if (sample.timeMs >= fromS * 1000 && sample.timeMs < (fromS + lengthS) * 1000)
            sample.*axis = value;
}

} // namespace

Q_DECLARE_METATYPE(DriveRecording)

class DrivesTest : public QObject {
    Q_OBJECT

private slots:
    void groupingFollowsTheCamerasTimeline_data() {
        QTest::addColumn<QVector<DriveRecording>>("recordings");
        QTest::addColumn<QString>("drives");
        const qint64 t0 = clock("2024-06-12 08:15:00");
        QTest::newRow("loop files one after the other")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("b", t0 + 61 * kSecond, 60),
                                       recording("c", t0 + 121 * kSecond, 60)}
            << "a,b,c";
        QTest::newRow("the order given does not matter")
            << QVector<DriveRecording>{recording("c", t0 + 120 * kSecond, 60),
                                       recording("a", t0, 60),
                                       recording("b", t0 + 60 * kSecond, 60)}
            << "a,b,c";
        QTest::newRow("a gap of the threshold joins")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("b", t0 + 70 * kSecond, 60)}
            << "a,b";
        QTest::newRow("a millisecond more parts")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("b", t0 + 70 * kSecond + 1, 60)}
            << "a|b";
        const qint64 late = clock("2024-06-12 23:59:00");
        QTest::newRow("over midnight")
            << QVector<DriveRecording>{recording("a", late, 60),
                                       recording("b", late + 60 * kSecond, 60)}
            << "a,b";
        QTest::newRow("the clock jumps back 90 s")
            << QVector<DriveRecording>{recording("a1", t0, 60),
                                       recording("a2", t0 + 60 * kSecond, 60),
                                       recording("a3", t0 + 120 * kSecond, 60),
                                       recording("b1", t0 + 90 * kSecond, 60),
                                       recording("b2", t0 + 150 * kSecond, 60)}
            << "a1,a2,a3|b1,b2";
        QTest::newRow("parking parts drives, parking recordings are one span")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("p1", t0 + 61 * kSecond, 20, 3),
                                       recording("p2", t0 + 3600 * kSecond, 20, 3),
                                       recording("b", t0 + 3630 * kSecond, 60)}
            << "a|[p1,p2]|b";
        QTest::newRow("an event inside the drive belongs to it")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("e", t0 + 30 * kSecond, 20, 2),
                                       recording("b", t0 + 60 * kSecond, 60)}
            << "a,e,b";
        QTest::newRow("event and manual recordings bridge the loop")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("e", t0 + 60 * kSecond, 20, 2),
                                       recording("u", t0 + 80 * kSecond, 20, 4),
                                       recording("b", t0 + 100 * kSecond, 60)}
            << "a,e,u,b";
        QTest::newRow("an unreadable recording is left out, the drive goes on")
            << QVector<DriveRecording>{recording("a", t0, 60),
                                       recording("x", t0 + 60 * kSecond, 0, 1, 3),
                                       recording("b", t0 + 120 * kSecond, 60)}
            << "a,b~x";
        QTest::newRow("nothing readable is no drive")
            << QVector<DriveRecording>{recording("x", t0, 0, 1, 1)} << "";
    }

    void groupingFollowsTheCamerasTimeline() {
        QFETCH(QVector<DriveRecording>, recordings);
        QFETCH(QString, drives);
        QCOMPARE(describe(DriveGrouper::group(recordings), recordings), drives);
    }

    // The list's records, as the viewer has them for other cameras' names and for one-file
    // recordings, start where their shown names say; the files need not exist for that.
    void listedRecordsOfOtherCamerasMakeDrives() {
        const QTemporaryDir folder;
        QVector<RecordingRecord> records;
        const char* const names[] = {"2024_0612_235900_001F.MP4", "2024_0612_236000_002F.MP4",
                                     "20240613_000000_0003_NOR_F.MP4", "20240613_000100_4.mp4",
                                     "REC_2024_06_13_00_10_00_F.MP4"};
        for (const char* name : names) {
            RecordingRecord record =
                RecordingRecord::fromPath(folder.filePath(name), records.size());
            record.displayName = RecordingName::displayName(record.filePath);
            record.type = RecordingName::typeOf(record.filePath);
            record.durationMs = 60000;
            records.append(record);
        }
        QVector<DriveRecording> recordings;
        for (const RecordingRecord& record : records)
            recordings.append(DriveList::recordingOf(record));
        // The second name's minute 60 is no time: it is left out. The others: a drive over
        // midnight of three (one of them a one-file recording) and, after a gap, one more.
        QCOMPARE(recordings.at(1).problem, -1);
        QCOMPARE(describe(DriveGrouper::group(recordings), recordings),
                 QString("%1,%2,%3|%4")
                     .arg(recordings.at(0).path, recordings.at(2).path, recordings.at(3).path,
                          recordings.at(4).path));
    }

    void thePlayListSkipsMomentsItHasPlayed() {
        const qint64 t0 = clock("2024-06-12 08:15:00");
        const QVector<DriveRecording> recordings{
            recording("a", t0, 60), recording("inside", t0 + 30 * kSecond, 20, 2),
            recording("b", t0 + 60 * kSecond, 60), recording("beyond", t0 + 110 * kSecond, 30, 2)};
        const QVector<Drive> drives = DriveGrouper::group(recordings);
        QCOMPARE(drives.size(), 1);
        QStringList played;
        for (int index : drives.first().playList)
            played << recordings.at(index).path;
        QCOMPARE(played, QStringList({"a", "b", "beyond"}));
        QCOMPARE(drives.first().lengthMs(), 140 * kSecond);
    }

    void aCalmDriveHasNoIncident() {
        for (unsigned seed : {1u, 2u, 3u}) {
            const QVector<Incident> found = IncidentDetector::detect(calmTrace(1800, seed));
            QVERIFY2(found.isEmpty(), qPrintable(QString("seed %1: %2 found, first %3 at %4 ms")
                                                     .arg(seed)
                                                     .arg(found.size())
                                                     .arg(found.value(0).kind)
                                                     .arg(found.value(0).timeMs)));
        }
    }

    void eachKindIsFoundAtItsMoment() {
        QVector<TraceSample> trace = calmTrace(200, 7);
        hold(trace, 30.0, 1.5, &TraceSample::x, -0.62f);  // braking
        hold(trace, 60.0, 2.0, &TraceSample::x, 0.41f);   // a rapid start
        hold(trace, 90.0, 2.0, &TraceSample::y, 0.58f);   // a right turn
        hold(trace, 120.0, 2.0, &TraceSample::y, -0.55f); // a left turn
        hold(trace, 150.0, 1.0, &TraceSample::x, -0.5f);  // braking, then a blow
        hold(trace, 150.5, 0.1, &TraceSample::x, -2.4f);
        const QVector<Incident> found = IncidentDetector::detect(trace);
        QCOMPARE(found.size(), 5);
        const struct {
            Incident::Kind kind;
            qint64 fromMs, toMs;
            float peak;
        } expected[] = {{Incident::HarshBraking, 30000, 31500, 0.62f},
                        {Incident::HarshAcceleration, 60000, 62000, 0.41f},
                        {Incident::SharpTurn, 90000, 92000, 0.58f},
                        {Incident::SharpTurn, 120000, 122000, 0.55f},
                        {Incident::Impact, 150500, 150600, 2.4f}};
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(found.at(i).kind, expected[i].kind);
            QVERIFY2(found.at(i).timeMs >= expected[i].fromMs &&
                         found.at(i).timeMs < expected[i].toMs,
                     qPrintable(QString("incident %1 at %2 ms").arg(i).arg(found.at(i).timeMs)));
            QVERIFY2(std::fabs(found.at(i).peakG - expected[i].peak) < 0.05f,
                     qPrintable(QString("incident %1 peak %2 g").arg(i).arg(found.at(i).peakG)));
            QVERIFY(found.at(i).speedKmh > 0);
        }
    }

    void thresholdsDecide() {
        QVector<TraceSample> below = calmTrace(60, 9);
        hold(below, 20.0, 2.0, &TraceSample::x, -0.43f);
        QVERIFY(IncidentDetector::detect(below).isEmpty());
        IncidentDetector::Thresholds stricter;
        stricter.brakingG = 0.40f;
        QCOMPARE(IncidentDetector::detect(below, stricter).size(), 1);
        QVector<TraceSample> above = calmTrace(60, 9);
        hold(above, 20.0, 2.0, &TraceSample::x, -0.47f);
        QCOMPARE(IncidentDetector::detect(above).size(), 1);
    }

    void theDemoSetIsOneDriveWithItsBraking() {
        const QDir folder(QStringLiteral(DEMO_MEDIA));
        QVector<DriveRecording> recordings;
        // One recording per front file, as the list has them; its start from its name.
        for (const QString& name : folder.entryList({"*_1.mp4", "*_4.mp4", "*.avi"}, QDir::Files)) {
            DriveRecording made;
            made.path = folder.filePath(name);
            QDateTime start = QDateTime::fromString(name.left(15), "yyyyMMdd_HHmmss");
            start.setTimeSpec(Qt::UTC);
            made.startMs = start.toMSecsSinceEpoch();
            const RecordingName::Length length = RecordingName::readLength(made.path);
            made.durationMs = length.ms;
            made.problem = length.problem;
            made.type = RecordingName::typeFromName(name);
            recordings.append(made);
        }
        QCOMPARE(recordings.size(), 8);
        const QVector<Drive> drives = DriveGrouper::group(recordings);
        QCOMPARE(drives.size(), 2);
        const Drive& drive = drives.first();
        QCOMPARE(drive.kind, Drive::Driving);
        QCOMPARE(drive.recordings.size(), 6);
        QCOMPARE(drive.playList.size(), 6);
        QVERIFY(std::abs(drive.lengthMs() - 180 * kSecond) < 2 * kSecond);
        QCOMPARE(drives.last().kind, Drive::Parking);
        QCOMPARE(drives.last().recordings.size(), 2);

        const QVector<TraceSample> trace = DriveTrace::read(drive, recordings);
        QVERIFY(trace.size() > 1700);
        for (int i = 1; i < trace.size(); ++i)
            QVERIFY(trace.at(i).timeMs > trace.at(i - 1).timeMs);
        // The drive brakes hard 88 s in, inside the camera's event recording (80-100 s).
        const QVector<Incident> incidents =
            DriveTrace::incidents(drive, recordings, trace, IncidentDetector::Thresholds());
        QCOMPARE(incidents.size(), 1);
        QCOMPARE(incidents.first().kind, Incident::HarshBraking);
        QVERIFY(incidents.first().timeMs >= 88000 && incidents.first().timeMs <= 89600);
        QVERIFY(incidents.first().byCamera);
        QVERIFY(incidents.first().peakG > 0.9f);
        // Where and how fast: the drive's speed plan brakes from 56 km/h, on its route.
        QVERIFY(incidents.first().speedKmh > 20 && incidents.first().speedKmh <= 56.5f);
        QVERIFY(std::fabs(incidents.first().latitude) > 1 &&
                std::fabs(incidents.first().longitude) > 1);
    }
};

QTEST_GUILESS_MAIN(DrivesTest)
#include "test_drives.moc"
