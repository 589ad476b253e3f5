#include "CommandLineTool.h"

#include "AppGlobals.h"
#include "DriveGrouper.h"
#include "DriveList.h"
#include "DriveTrace.h"
#include "RecordingBatch.h"
#include "RecordingName.h"
#include "TrackWriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMutex>
#include <QSaveFile>
#include <QThreadPool>

#include <atomic>
#include <cmath>
#include <cstring>
#include <limits>
#include <unistd.h>

#define TAVORIC_TRACK_NAMESPACE "https://tavoric.org/xmlns/track/1"

namespace {

const char* typeName(int type) {
    switch (type) {
    case 1:
        return "infinity";
    case 2:
        return "event";
    case 3:
        return "parking";
    case 4:
        return "user";
    default:
        return "unknown";
    }
}

void progress(int done, int total) {
    if (isatty(fileno(stderr)) == 0)
        return;
    std::fprintf(stderr, "\rReading %d / %d", done, total);
    if (done == total)
        std::fprintf(stderr, "\n");
    std::fflush(stderr);
}

} // namespace

QString CommandLineTool::isoTime(qint64 ms) {
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC)
        .toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}

QVector<RecordingRecord> CommandLineTool::collect(const QStringList& paths) {
    QStringList files;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.isDir()) {
            QDirIterator it(info.absoluteFilePath(), QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext())
                files << it.next();
        } else if (info.isFile()) {
            files << info.absoluteFilePath();
        }
    }
    files.sort();
    files.removeDuplicates();
    bool rejected = false;
    QStringList supported;
    for (const QString& file : files)
        if (RecordingName::isSupportedName(file))
            supported << file;
    QVector<RecordingRecord> records = RecordingBatch::fromPaths(supported, {}, &rejected);
    std::stable_sort(records.begin(), records.end());
    return records;
}

CommandLineTool::Facts CommandLineTool::read(const RecordingRecord& record, bool countReadings) {
    Facts facts;
    facts.record = record;
    const RecordingName::Length length = RecordingName::readLength(record.filePath);
    facts.lengthMs = length.ms;
    facts.problem = length.problem;
    facts.cameras = record.hasChannelFiles()
                        ? int(RecordingBatch::filesOnDisk(record.filePath).size())
                        : length.videoCount;
    facts.telemetryKind = length.telemetryKind;
    if (length.problem != 0 || !countReadings)
        return facts;
    const QVector<TraceSample> samples = DriveTrace::readRecording(record.filePath);
    facts.readings = samples.size();
    for (const TraceSample& sample : samples)
        facts.positions += sample.latitude != 0 || sample.longitude != 0;
    return facts;
}

QVector<CommandLineTool::Facts> CommandLineTool::readAll(const QVector<RecordingRecord>& records,
                                                         int jobs, bool countReadings) {
    QVector<Facts> all(records.size());
    QThreadPool pool;
    pool.setMaxThreadCount(qMax(1, jobs));
    std::atomic<int> done{0};
    QMutex report;
    for (int i = 0; i < records.size(); ++i) {
        pool.start([&, i] {
            all[i] = read(records.at(i), countReadings);
            QMutexLocker lock(&report);
            progress(++done, records.size());
        });
    }
    pool.waitForDone();
    return all;
}

QJsonObject CommandLineTool::describe(const Facts& facts) {
    const qint64 start = DriveList::startOf(facts.record.displayName);
    QJsonObject made{{"path", facts.record.filePath},
                     {"name", facts.record.displayName},
                     {"type", typeName(facts.record.type)},
                     {"length_s", double(facts.lengthMs) / 1000.0},
                     {"cameras", facts.cameras},
                     {"telemetry", facts.telemetryKind.isEmpty() ? QJsonValue()
                                                                 : QJsonValue(facts.telemetryKind)},
                     {"readings", facts.readings},
                     {"positions", facts.positions}};
    made.insert("start", start >= 0 ? QJsonValue(isoTime(start)) : QJsonValue());
    made.insert("problem", facts.problem != 0
                               ? QJsonValue(RecordingName::problemText(facts.problem))
                               : QJsonValue());
    return made;
}

int CommandLineTool::info(const QStringList& paths, int jobs) {
    const QVector<RecordingRecord> records = collect(paths);
    const QVector<Facts> all = readAll(records, jobs, true);
    QJsonArray list;
    int readable = 0;
    for (const Facts& facts : all) {
        list.append(describe(facts));
        readable += facts.problem == 0;
    }
    std::fputs(QJsonDocument(QJsonObject{{"recordings", list}}).toJson().constData(), stdout);
    return readable > 0 ? Done : NothingRead;
}

int CommandLineTool::drives(const QStringList& paths, int jobs) {
    const QVector<RecordingRecord> records = collect(paths);
    const QVector<Facts> all = readAll(records, jobs, false);
    QVector<DriveRecording> recordings;
    for (const Facts& facts : all) {
        RecordingRecord record = facts.record;
        record.durationMs = facts.lengthMs;
        record.problem = facts.problem;
        recordings.append(DriveList::recordingOf(record));
    }
    const QVector<Drive> grouped = DriveGrouper::group(recordings);
    QJsonArray list;
    for (const Drive& drive : grouped) {
        QJsonArray members;
        for (int index : drive.recordings)
            members.append(recordings.at(index).path);
        QJsonArray incidents;
        if (drive.kind == Drive::Driving) {
            for (const Incident& incident :
                 DriveTrace::incidents(drive, recordings, DriveTrace::read(drive, recordings),
                                       IncidentDetector::Thresholds())) {
                QJsonObject made{{"time", isoTime(drive.startMs + incident.timeMs)},
                                 {"kind", Incident::kindKey(incident.kind)},
                                 {"peak_g", std::round(incident.peakG * 1000.0) / 1000.0},
                                 {"camera_event", incident.byCamera}};
                if (incident.speedKmh >= 0)
                    made.insert("speed_kmh", std::round(incident.speedKmh * 10.0) / 10.0);
                incidents.append(made);
            }
        }
        list.append(QJsonObject{{"kind", drive.kind == Drive::Parking ? "parking" : "driving"},
                                {"start", isoTime(drive.startMs)},
                                {"end", isoTime(drive.endMs)},
                                {"length_s", double(drive.lengthMs()) / 1000.0},
                                {"recordings", members},
                                {"incidents", incidents}});
    }
    std::fputs(QJsonDocument(QJsonObject{{"drives", list}}).toJson().constData(), stdout);
    return grouped.isEmpty() ? NothingRead : Done;
}

int CommandLineTool::track(const QStringList& paths, int jobs, const TrackRequest& request) {
    TrackWriter::Format format = TrackWriter::Gpx;
    TrackWriter::formatOf(request.format, &format);
    const QVector<Facts> all = readAll(collect(paths), jobs, false);
    // The recordings one after the other on the time of the first.
    QVector<DriveRecording> recordings;
    Drive timeline;
    for (const Facts& facts : all) {
        RecordingRecord record = facts.record;
        record.durationMs = facts.lengthMs;
        record.problem = facts.problem;
        recordings.append(DriveList::recordingOf(record));
    }
    for (int i = 0; i < recordings.size(); ++i)
        if (recordings.at(i).playable())
            timeline.playList.append(i);
    std::stable_sort(timeline.playList.begin(), timeline.playList.end(), [&](int a, int b) {
        return recordings.at(a).startMs < recordings.at(b).startMs;
    });
    if (timeline.playList.isEmpty()) {
        std::fputs("tavoric-cli: no recording could be read\n", stderr);
        return NothingRead;
    }
    timeline.recordings = timeline.playList;
    timeline.startMs = recordings.at(timeline.playList.first()).startMs;
    const QVector<TraceSample> whole = DriveTrace::read(timeline, recordings);
    const qint64 from = qint64(request.fromS * 1000);
    const qint64 to =
        request.toS < 0 ? std::numeric_limits<qint64>::max() : qint64(request.toS * 1000);
    QVector<TraceSample> range;
    for (const TraceSample& sample : whole)
        if (sample.timeMs >= from && sample.timeMs <= to)
            range.append(sample);
    if (!TrackWriter::hasPositions(range)) {
        std::fputs("tavoric-cli: the recordings hold no GPS position in that range; no file "
                   "was written\n",
                   stderr);
        return NothingRead;
    }
    QVector<Incident> incidents;
    for (const Incident& incident :
         DriveTrace::incidents(timeline, recordings, whole, IncidentDetector::Thresholds()))
        if (incident.timeMs >= from && incident.timeMs <= to)
            incidents.append(incident);
    const QString name =
        QFileInfo(recordings.at(timeline.playList.first()).path).completeBaseName();
    const QByteArray contents =
        TrackWriter::write(format, range, incidents, timeline.startMs, name);
    QSaveFile file(request.output);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() ||
        !file.commit()) {
        std::fprintf(stderr, "tavoric-cli: cannot write %s: %s\n", qPrintable(request.output),
                     qPrintable(file.errorString()));
        return NothingRead;
    }
    return Done;
}

void CommandLineTool::usage(std::FILE* to, const QString& command) {
    if (command == QLatin1String("info")) {
        std::fputs("Usage: tavoric-cli info [-j N] PATH...\n"
                   "Describes each recording among PATH (files, or folders with their\n"
                   "subfolders) as one JSON document: {\"recordings\": [{\"path\", \"name\",\n"
                   "\"start\", \"type\", \"length_s\", \"cameras\", \"telemetry\", \"readings\",\n"
                   "\"positions\", \"problem\"}]}.\n"
                   "  -j N   read N recordings at a time (default 1)\n"
                   "Exit status: 0 done, 1 no recording could be read, 2 usage error.\n",
                   to);
        return;
    }
    if (command == QLatin1String("drives")) {
        std::fputs("Usage: tavoric-cli drives [-j N] PATH...\n"
                   "Groups the recordings among PATH into drives and parking spans and finds\n"
                   "each drive's incidents: {\"drives\": [{\"kind\", \"start\", \"end\",\n"
                   "\"length_s\", \"recordings\": [...], \"incidents\": [{\"time\", \"kind\",\n"
                   "\"peak_g\", \"camera_event\", \"speed_kmh\"}]}]}. Times are ISO 8601 by the\n"
                   "camera's clock, which keeps no time zone.\n"
                   "  -j N   read N recordings at a time (default 1)\n"
                   "Exit status: 0 done, 1 no drive could be made, 2 usage error.\n",
                   to);
        return;
    }
    if (command == QLatin1String("track")) {
        std::fputs("Usage: tavoric-cli track --format gpx|kml|csv|geojson [--from S] [--to S]\n"
                   "                         -o FILE [-j N] PATH...\n"
                   "Writes the track of the recordings among PATH, one after the other, as FILE:\n"
                   "GPX 1.1 (speed and G in the namespace " TAVORIC_TRACK_NAMESPACE "),\n"
                   "KML (route and incidents), CSV (time, latitude, longitude, speed_kmh, x, y,\n"
                   "z) or GeoJSON (route and incidents). S: seconds from the start of the first\n"
                   "recording. Recordings without a GPS position give a message and no file.\n"
                   "Exit status: 0 done, 1 nothing could be read or written, 2 usage error.\n",
                   to);
        return;
    }
    std::fputs("Usage: tavoric-cli COMMAND [OPTIONS] PATH...\n"
               "Commands:\n"
               "  info     each recording's length, cameras, telemetry and positions\n"
               "  drives   drives and parking spans with their incidents\n"
               "  track    the track as GPX, KML, CSV or GeoJSON\n"
               "tavoric-cli COMMAND --help tells more. Output is JSON on standard output.\n",
               to);
}

int CommandLineTool::run(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    // No status log: the tool's messages go to standard error.
    AppGlobals::logLevel = -1;
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty()) {
        usage(stderr, QString());
        return UsageError;
    }
    const QString command = args.takeFirst();
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        usage(stdout, QString());
        return Done;
    }
    if (command != QLatin1String("info") && command != QLatin1String("drives") &&
        command != QLatin1String("track")) {
        std::fprintf(stderr, "tavoric-cli: unknown command \"%s\"\n", qPrintable(command));
        usage(stderr, QString());
        return UsageError;
    }
    int jobs = 1;
    TrackRequest request;
    QStringList paths;
    // Options of track only, each with its value.
    const auto value = [&](int* i, QString* out) {
        if (command != QLatin1String("track") || *i + 1 >= args.size())
            return false;
        *out = args.at(++*i);
        return true;
    };
    for (int i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            usage(stdout, command);
            return Done;
        }
        if (arg == QLatin1String("-j")) {
            bool ok = false;
            jobs = i + 1 < args.size() ? args.at(++i).toInt(&ok) : 0;
            if (!ok || jobs < 1) {
                std::fputs("tavoric-cli: -j takes a number of 1 or more\n", stderr);
                return UsageError;
            }
            continue;
        }
        if (arg == QLatin1String("--format") || arg == QLatin1String("-o")) {
            if (!value(&i, arg == QLatin1String("-o") ? &request.output : &request.format)) {
                std::fprintf(stderr, "tavoric-cli: %s needs a value\n", qPrintable(arg));
                return UsageError;
            }
            continue;
        }
        if (arg == QLatin1String("--from") || arg == QLatin1String("--to")) {
            QString text;
            bool ok = false;
            const double seconds = value(&i, &text) ? text.toDouble(&ok) : -1;
            if (!ok || seconds < 0) {
                std::fprintf(stderr, "tavoric-cli: %s takes seconds (0 or more)\n",
                             qPrintable(arg));
                return UsageError;
            }
            (arg == QLatin1String("--from") ? request.fromS : request.toS) = seconds;
            continue;
        }
        if (arg.startsWith('-')) {
            std::fprintf(stderr, "tavoric-cli: unknown option \"%s\"\n", qPrintable(arg));
            usage(stderr, command);
            return UsageError;
        }
        paths << arg;
    }
    if (paths.isEmpty()) {
        usage(stderr, command);
        return UsageError;
    }
    if (command == QLatin1String("track")) {
        TrackWriter::Format format;
        if (!TrackWriter::formatOf(request.format, &format) || request.output.isEmpty() ||
            (request.toS >= 0 && request.toS <= request.fromS)) {
            std::fputs("tavoric-cli: track needs --format gpx|kml|csv|geojson, -o FILE and a\n"
                       "--to after --from\n",
                       stderr);
            return UsageError;
        }
        return track(paths, jobs, request);
    }
    return command == QLatin1String("info") ? info(paths, jobs) : drives(paths, jobs);
}
