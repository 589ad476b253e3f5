// Saving the video of a one-minute recording of three cameras (1080p front with sound, two
// 720p rear cameras) the way a user does: the save dialog with every camera checked, its
// copies run by ffmpeg in the background while the window follows their progress. Against
// the same three ffmpeg commands run one after the other with nothing else, in the same run:
// the difference is the window's share of the cost. Also the progress updates the window
// sees per second of copying.
// Run: bash tools/bench.sh export
#include "AppGlobals.h"
#include "BenchMedia.h"
#include "FfmpegRunner.h"
#include "PlaybackState.h"
#include "SaveAsView.h"
#include "TavPrompt.h"
#include "VideoExportPlan.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRuns = 9;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct WindowRun {
    double ms = 0;
    int barUpdates = 0;
    int reports = 0;
};

// The save dialog, every camera, MP4, into a fresh folder.
WindowRun throughTheWindow(const QString& folder) {
    WindowRun run;
    QEventLoop loop;
    TavPrompt::informHook = [&loop](const QString& text) {
        if (!text.startsWith(QLatin1String("Complete File Download!")))
            std::fprintf(stderr, "the dialog said: %s\n", qPrintable(text));
        loop.quit();
    };
    SaveAsView view;
    view.show();
    QObject::connect(view.findChild<QProgressBar*>("progressBar"), &QProgressBar::valueChanged,
                     [&run] { ++run.barUpdates; });
    view.findChild<QPushButton*>("bSaveVideo")->click();
    view.findChild<QLineEdit*>("editPath")->setText(folder);
    QElapsedTimer timer;
    timer.start();
    // The answer comes from inside the event loop, as it would in the program.
    QTimer::singleShot(0, view.findChild<QPushButton*>("bSave"), &QPushButton::click);
    loop.exec();
    run.ms = timer.nsecsElapsed() / 1e6;
    run.reports = view.runner()->reportCount();
    TavPrompt::informHook = nullptr;
    return run;
}

// The dialog's runner without the dialog.
double runnerAlone(const QString& program, const QString& folder) {
    const VideoExportPlan plan(PlaybackState::currentFile, 3, {0, 1, 2}, "mp4", folder);
    FfmpegRunner runner;
    QEventLoop loop;
    QObject::connect(&runner, &FfmpegRunner::finished, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    runner.start(program, plan.runs());
    loop.exec();
    return timer.nsecsElapsed() / 1e6;
}

QString outputFolder() {
    const QFileInfo shm(QStringLiteral("/dev/shm"));
    return (shm.isDir() && shm.isWritable() ? shm.filePath() : QDir::tempPath()) +
           QStringLiteral("/tavoric-bench-XXXXXX");
}

// The same commands, one after the other, waited for.
double ffmpegAlone(const QString& program, const QString& folder) {
    const VideoExportPlan plan(PlaybackState::currentFile, 3, {0, 1, 2}, "mp4", folder);
    QElapsedTimer timer;
    timer.start();
    for (const VideoExportRun& run : plan.runs()) {
        if (!BenchMedia::runQuietly(program,
                                    QStringList{"-nostdin", "-loglevel", "error"} + run.arguments))
            std::fprintf(stderr, "ffmpeg failed on %s\n", qPrintable(run.input));
    }
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    BenchMedia::useScratchDataFolder();
    if (!BenchMedia::prepare(QStringLiteral("export")))
        return 1;
    PlaybackState::currentFile =
        BenchMedia::folder(QStringLiteral("export")) + "/20240612_120000_INF_1.mp4";
    PlaybackState::playChannelCount = 3;
    const QString program = VideoExportPlan::program(QCoreApplication::applicationDirPath());
    if (program.isEmpty()) {
        std::fprintf(stderr, "no ffmpeg\n");
        return 1;
    }

    std::vector<double> window;
    std::vector<double> alone;
    std::vector<double> runner;
    std::vector<double> updatesPerSecond;
    std::vector<double> reportsPerSecond;
    for (int i = 0; i < kRuns; ++i) {
        // The copies go to memory where there is a memory file system: the disk's write-back
        // of earlier copies would otherwise land on whichever runs next. The three take turns
        // at going first.
        QTemporaryDir first(outputFolder());
        QTemporaryDir second(outputFolder());
        QTemporaryDir third(outputFolder());
        for (int k = 0; k < 3; ++k) {
            switch ((i + k) % 3) {
            case 0:
                alone.push_back(ffmpegAlone(program, first.path()));
                break;
            case 1: {
                const WindowRun run = throughTheWindow(second.path());
                window.push_back(run.ms);
                updatesPerSecond.push_back(run.barUpdates * 1000.0 / run.ms);
                reportsPerSecond.push_back(run.reports * 1000.0 / run.ms);
                break;
            }
            default:
                runner.push_back(runnerAlone(program, third.path()));
            }
        }
    }
    const double w = median(window);
    const double a = median(alone);
    std::printf("video of a one-minute recording, three cameras (median of %d):\n", kRuns);
    std::printf("  through the save dialog:      %7.0f ms\n", w);
    std::printf("  the same ffmpeg runs alone:   %7.0f ms   (the window adds %+.0f ms, %+.1f %%)\n",
                a, w - a, 100.0 * (w - a) / a);
    std::printf("  its runner without the dialog:%7.0f ms\n", median(runner));
    std::printf("  progress bar updates:         %7.1f per second (%.1f progress reports/s)\n",
                median(updatesPerSecond), median(reportsPerSecond));
    return 0;
}
