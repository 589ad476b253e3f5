// The file list with a folder of 10,000 channel files (3,334 recordings): how long the rows
// take to appear (one per recording, sorted, on screen) against a plain listing of the same
// folder; and with a folder of 10,000 one-camera recordings, how long all their lengths take
// to fill in against reading them one after another without the list.
#include "BenchMedia.h"
#include "CameraCountDelegate.h"
#include "RecordingName.h"
#include "TavFileListItem.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

// Files in each folder.
constexpr int kFiles = 10000;
// The listing folder's recordings: all but the last with three cameras, the last with one.
constexpr int kRecordings = (kFiles + 2) / 3;
constexpr int kListingRuns = 5;

// Recording names of one card without the channel: one a minute, a day's worth per month
// field, every seventh an Event.
QString recordingStem(int k) {
    return QStringLiteral("2024%1%2_%3%4%5_%6")
        .arg(1 + k / 1440 % 12, 2, 10, QChar('0'))
        .arg(1 + k / 17280, 2, 10, QChar('0'))
        .arg(k / 60 % 24, 2, 10, QChar('0'))
        .arg(k % 60, 2, 10, QChar('0'))
        .arg(0, 2, 10, QChar('0'))
        .arg(QLatin1String(k % 7 == 0 ? "EVT" : "INF"));
}

int camerasOf(int recording) {
    return recording < kRecordings - 1 ? 3 : kFiles - 3 * (kRecordings - 1);
}

// The listing folder: every camera's file of kRecordings recordings.
QStringList channelFileNames() {
    QStringList names;
    for (int k = 0; k < kRecordings; ++k)
        for (int channel = 1; channel <= camerasOf(k); ++channel)
            names << QStringLiteral("%1_%2.mp4").arg(recordingStem(k)).arg(channel);
    return names;
}

// The lengths folder: kFiles recordings of the front camera alone.
QStringList frontFileNames() {
    QStringList names;
    for (int k = 0; k < kFiles; ++k)
        names << recordingStem(k) + QStringLiteral("_1.mp4");
    return names;
}

// A folder of the named files, each a hard link to source (an empty file when source is
// empty); made once and kept while it holds exactly these names.
bool makeFolder(const QString& folder, const QStringList& names, const QString& source) {
    QDir dir(folder);
    const QStringList present = dir.entryList(QDir::Files);
    if (dir.exists() &&
        QSet<QString>(present.begin(), present.end()) == QSet<QString>(names.begin(), names.end()))
        return true;
    dir.removeRecursively();
    QDir().mkpath(folder);
    for (const QString& name : names) {
        const QString path = dir.filePath(name);
        if (source.isEmpty()) {
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly))
                return false;
            continue;
        }
        // Hard links: 10,000 paths that a reader opens one by one, without 1.3 GB of copies.
        std::error_code error;
        std::filesystem::create_hard_link(QFile::encodeName(source).constData(),
                                          QFile::encodeName(path).constData(), error);
        if (error && !QFile::copy(source, path))
            return false;
    }
    return true;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double msSince(const QElapsedTimer& timer) {
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (!BenchMedia::prepare(QStringLiteral("bench")))
        return 1;
    BenchMedia::useScratchDataFolder();
    const QStringList sources = BenchMedia::lengthRecordings();
    const QString names = BenchMedia::folder(QStringLiteral("filelist/names"));
    const QString lengths = BenchMedia::folder(QStringLiteral("filelist/lengths"));
    if (sources.isEmpty() || !makeFolder(names, channelFileNames(), QString()) ||
        !makeFolder(lengths, frontFileNames(), sources.first())) {
        std::fprintf(stderr, "bench_filelist: cannot make the recordings\n");
        return 1;
    }

    TavFileListItem list;
    list.resize(300, 656);
    list.show();
    QCoreApplication::processEvents();

    // Listing: one row per recording made, sorted and painted once, against listing the
    // folder's names.
    std::vector<double> listed, plain;
    for (int run = 0; run < kListingRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        const QDir dir(names);
        QStringList paths;
        for (const QString& name : dir.entryList(QDir::Files, QDir::Unsorted))
            paths << dir.absoluteFilePath(name);
        plain.push_back(msSince(timer));

        list.onDeleteAllFileAtList();
        QCoreApplication::processEvents();
        timer.restart();
        list.loadPaths({names});
        list.repaint();
        listed.push_back(msSince(timer));
        const int last = kRecordings - 1;
        if (list.rowCount() != kRecordings || list.item(0, 1)->text() != recordingStem(0) ||
            list.item(last, 1)->text() != recordingStem(last) ||
            list.item(0, 1)->data(CameraCountDelegate::kCameraCountRole).toInt() != 3 ||
            list.item(last, 1)->data(CameraCountDelegate::kCameraCountRole).toInt() !=
                camerasOf(last)) {
            std::fprintf(stderr, "bench_filelist: the list is not complete and sorted\n");
            return 1;
        }
    }

    // Lengths: every row's length filled in, while the event loop keeps turning.
    QStringList lengthPaths;
    for (const QString& name : QDir(lengths).entryList(QDir::Files, QDir::Name))
        lengthPaths << QDir(lengths).absoluteFilePath(name);
    for (const QString& path : lengthPaths) // warm cache, as in bench_duration
        RecordingName::durationText(path);
    QElapsedTimer timer;
    timer.start();
    for (const QString& path : lengthPaths)
        RecordingName::durationText(path);
    const double sequential = msSince(timer);

    list.onDeleteAllFileAtList();
    QCoreApplication::processEvents();
    QEventLoop loop;
    QObject::connect(&list, &TavFileListItem::onSendFinishReadFileTime, &loop, &QEventLoop::quit);
    QTimer ticker;
    ticker.setInterval(10);
    QElapsedTimer sinceTick;
    double longestPause = 0;
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        longestPause = std::max(longestPause, msSince(sinceTick));
        sinceTick.restart();
    });
    timer.restart();
    list.loadPaths({lengths});
    const double rowsShown = msSince(timer);
    sinceTick.start();
    ticker.start();
    loop.exec();
    ticker.stop();
    const double filled = msSince(timer);
    list.onFinishReadFileTime();
    for (int row = 0; row < list.rowCount(); ++row)
        if (list.item(row, 2)->text() != QLatin1String("01:00")) {
            std::fprintf(stderr, "bench_filelist: row %d has no length\n", row);
            return 1;
        }

    std::printf("\nFile list with %d channel files of %d recordings in one folder\n", kFiles,
                kRecordings);
    std::printf("  rows listed, sorted and painted   %8.1f ms (median of %d)   (goal: at most "
                "1000)\n",
                median(listed), kListingRuns);
    std::printf("  baseline: QDir listing            %8.1f ms (median of %d)\n", median(plain),
                kListingRuns);
    std::printf("File list with %d one-camera recordings in one folder\n", kFiles);
    std::printf("  lengths filled in                 %8.1f ms   (goal: at most 5000)\n", filled);
    std::printf("    of which rows shown             %8.1f ms\n", rowsShown);
    std::printf("    longest event-loop pause        %8.1f ms while reading\n", longestPause);
    std::printf("  baseline: durationText in a loop  %8.1f ms (no list, warm cache)\n", sequential);
    return 0;
}
