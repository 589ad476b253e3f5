#pragma once

#include "FfmpegProgress.h"
#include "VideoExportRun.h"

#include <QList>
#include <QObject>
#include <QProcess>
#include <QStringList>

// Runs the ffmpeg copies of a video export one after the other, in the background, and
// reports how far they are.
//
// No run leaves a half-written file: a run that fails or is cancelled has its output
// removed. A file that was at an output's place before is set aside while the run writes
// and is put back unless the run completes.
class FfmpegRunner : public QObject {
    Q_OBJECT
public:
    enum class Outcome { Done, Failed, Cancelled };

    explicit FfmpegRunner(QObject* parent = nullptr);
    ~FfmpegRunner() override;

    // Put before each run's own arguments: progress on the output pipe, every log message
    // with its level, no banner and no status line.
    static QStringList reportArguments();

    void start(const QString& program, const QList<VideoExportRun>& runs);
    // Stops the run under way (its output is removed) and runs nothing more.
    void cancel();
    bool isRunning() const { return m_process != nullptr; }

    // The outputs of the completed runs.
    const QStringList& written() const { return m_written; }
    // The run under way or the one that failed (0-based); -1 before the first.
    int currentRun() const { return m_current; }
    int runCount() const { return m_runs.size(); }
    // Why the last export failed: the run's output and ffmpeg's last error line.
    const QString& failure() const { return m_failure; }
    // Progress messages received so far (each may move the bar).
    int reportCount() const { return m_reportCount; }

signals:
    // 0..1000 over the whole export.
    void progressChanged(int permille);
    void finished(FfmpegRunner::Outcome outcome);

private:
    void startNext();
    void onReport();
    void onLog();
    void onProcessFinished(int exitCode, QProcess::ExitStatus status);
    void onProcessError(QProcess::ProcessError error);
    void endRun(Outcome outcome, const QString& why);
    bool setAside(const QString& output);
    void putBack(bool keepNew);
    void emitProgress();

    QString m_program;
    QList<VideoExportRun> m_runs;
    int m_current = -1;
    QProcess* m_process = nullptr;
    FfmpegProgress m_progress;
    QString m_setAside;
    QStringList m_written;
    QString m_failure;
    int m_permille = -1;
    int m_reportCount = 0;
};
