#include "FfmpegRunner.h"

#include "StatusLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

FfmpegRunner::FfmpegRunner(QObject* parent) : QObject(parent) {}

FfmpegRunner::~FfmpegRunner() {
    // Nothing half-written stays behind a closed window.
    if (m_process != nullptr)
        cancel();
}

QStringList FfmpegRunner::reportArguments() {
    return {"-nostdin",   "-hide_banner", "-nostats", "-loglevel",
            "level+info", "-progress",    "pipe:1"};
}

void FfmpegRunner::start(const QString& program, const QList<VideoExportRun>& runs) {
    if (m_process != nullptr)
        return;
    m_program = program;
    m_runs = runs;
    m_current = -1;
    m_written.clear();
    m_failure.clear();
    m_permille = -1;
    m_reportCount = 0;
    startNext();
}

void FfmpegRunner::cancel() {
    if (m_process == nullptr)
        return;
    logInfo("[FfmpegRunner]: Saving is cancelled.");
    endRun(Outcome::Cancelled, QString());
}

void FfmpegRunner::startNext() {
    ++m_current;
    if (m_current >= m_runs.size()) {
        emitProgress();
        emit finished(Outcome::Done);
        return;
    }
    const VideoExportRun& run = m_runs.at(m_current);
    m_progress = FfmpegProgress();
    if (!setAside(run.output)) {
        // ffmpeg would write over it at once; nothing runs rather than risk it.
        m_failure =
            QDir::toNativeSeparators(run.output) + QStringLiteral(": ") +
            QCoreApplication::translate("FfmpegRunner", "the file there cannot be moved aside.");
        logError("[FfmpegRunner]: %s", m_failure.toLocal8Bit().constData());
        emit finished(Outcome::Failed);
        return;
    }
    m_process = new QProcess(this);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &FfmpegRunner::onReport);
    connect(m_process, &QProcess::readyReadStandardError, this, &FfmpegRunner::onLog);
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &FfmpegRunner::onProcessFinished);
    connect(m_process, &QProcess::errorOccurred, this, &FfmpegRunner::onProcessError);
    const QStringList arguments = reportArguments() + run.arguments;
    logInfo("[FfmpegRunner]: %s %s", m_program.toLocal8Bit().constData(),
            arguments.join(' ').toLocal8Bit().constData());
    m_process->start(m_program, arguments, QIODevice::ReadOnly);
    emitProgress();
}

void FfmpegRunner::onReport() {
    if (m_process == nullptr)
        return;
    m_progress.addReport(m_process->readAllStandardOutput());
    ++m_reportCount;
    emitProgress();
}

void FfmpegRunner::onLog() {
    if (m_process != nullptr)
        m_progress.addLog(m_process->readAllStandardError());
}

void FfmpegRunner::onProcessFinished(int exitCode, QProcess::ExitStatus status) {
    if (m_process == nullptr)
        return;
    m_progress.addReport(m_process->readAllStandardOutput());
    m_progress.addLog(m_process->readAllStandardError());
    m_progress.finishLog();
    if (status == QProcess::NormalExit && exitCode == 0) {
        const VideoExportRun& run = m_runs.at(m_current);
        m_process->deleteLater();
        m_process = nullptr;
        putBack(true);
        m_written << run.output;
        logInfo("[FfmpegRunner]: %s is written.", run.output.toLocal8Bit().constData());
        startNext();
        return;
    }
    QString why = m_progress.lastError();
    if (status != QProcess::NormalExit)
        why = QCoreApplication::translate("FfmpegRunner", "ffmpeg stopped unexpectedly.");
    else if (why.isEmpty())
        why =
            QCoreApplication::translate("FfmpegRunner", "ffmpeg ended with code %1.").arg(exitCode);
    endRun(Outcome::Failed, why);
}

void FfmpegRunner::onProcessError(QProcess::ProcessError error) {
    if (m_process == nullptr || error != QProcess::FailedToStart)
        return; // the other errors end in finished()
    endRun(Outcome::Failed,
           QCoreApplication::translate("FfmpegRunner", "ffmpeg cannot be started: %1")
               .arg(m_process->errorString()));
}

void FfmpegRunner::endRun(Outcome outcome, const QString& why) {
    QProcess* process = m_process;
    m_process = nullptr;
    process->disconnect(this);
    if (process->state() != QProcess::NotRunning) {
        process->kill();
        process->waitForFinished(5000);
    }
    process->deleteLater();
    const VideoExportRun& run = m_runs.at(m_current);
    // The output is only part of a copy: it goes, and whatever was there before comes back.
    if (QFileInfo::exists(run.output) && !QFile::remove(run.output))
        logWarning("[FfmpegRunner]: %s cannot be removed.", run.output.toLocal8Bit().constData());
    putBack(false);
    if (outcome == Outcome::Failed) {
        m_failure = QDir::toNativeSeparators(run.output) + QStringLiteral(": ") + why;
        logError("[FfmpegRunner]: %s", m_failure.toLocal8Bit().constData());
    }
    emit finished(outcome);
}

bool FfmpegRunner::setAside(const QString& output) {
    m_setAside.clear();
    if (!QFileInfo::exists(output))
        return true;
    QString aside = output + QStringLiteral(".previous");
    for (int n = 2; QFileInfo::exists(aside); ++n)
        aside = output + QStringLiteral(".previous") + QString::number(n);
    if (!QFile::rename(output, aside))
        return false;
    m_setAside = aside;
    return true;
}

void FfmpegRunner::putBack(bool keepNew) {
    if (m_setAside.isEmpty())
        return;
    const VideoExportRun& run = m_runs.at(m_current);
    if (keepNew)
        QFile::remove(m_setAside);
    else if (!QFileInfo::exists(run.output))
        QFile::rename(m_setAside, run.output);
    m_setAside.clear();
}

void FfmpegRunner::emitProgress() {
    if (m_runs.isEmpty())
        return;
    const double done =
        m_current >= m_runs.size() ? m_runs.size() : m_current + m_progress.fraction();
    const int permille = int(1000.0 * done / m_runs.size());
    if (permille == m_permille)
        return;
    m_permille = permille;
    emit progressChanged(permille);
}
