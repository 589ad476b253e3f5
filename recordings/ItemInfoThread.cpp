#include "ItemInfoThread.h"

#include "AppGlobals.h"
#include "StatusLog.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

ItemInfoThread::ItemInfoThread(QObject* parent) : QThread(parent) {}

ItemInfoThread::~ItemInfoThread() {
    stop();
    wait();
}

QString ItemInfoThread::thumbsFolder() {
    return AppGlobals::dataFolder + QStringLiteral("/Thumbs");
}

QString ItemInfoThread::thumbnailPath(const QString& recordingPath) {
    const QByteArray digest =
        QCryptographicHash::hash(recordingPath.toUtf8(), QCryptographicHash::Md5).toHex().left(8);
    return thumbsFolder() + '/' + QFileInfo(recordingPath).completeBaseName() + '_' +
           QString::fromLatin1(digest) + QStringLiteral(".jpg");
}

QString ItemInfoThread::ffmpegProgram() {
    QString folder = AppGlobals::programFolder;
    if (folder.isEmpty())
        folder = QCoreApplication::applicationDirPath();
    for (const char* name : {"/ffmpeg", "/ffmpeg.exe"}) {
        const QFileInfo beside(folder + QLatin1String(name));
        if (beside.isFile() && beside.isExecutable())
            return beside.absoluteFilePath();
    }
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
}

void ItemInfoThread::addJobs(const QVector<Job>& jobs) {
    if (jobs.isEmpty())
        return;
    // A thread that is still ending after a stop would drop the new work: let it end first.
    if (m_stop && isRunning())
        wait();
    {
        QMutexLocker lock(&m_mutex);
        m_jobs += jobs;
        m_busy = true;
    }
    m_wake.wakeAll();
    if (!isRunning()) {
        m_stop = false;
        start(QThread::LowPriority);
    }
}

void ItemInfoThread::stop() {
    {
        QMutexLocker lock(&m_mutex);
        m_jobs.clear();
        m_stop = true;
        if (!isRunning())
            m_busy = false;
    }
    m_wake.wakeAll();
}

QString ItemInfoThread::currentPath() const {
    QMutexLocker lock(&m_mutex);
    return m_current;
}

void ItemInfoThread::run() {
    logInfo("[ItemInfoThread]: start.");
    QProcess process;
    for (;;) {
        Job job;
        {
            QMutexLocker lock(&m_mutex);
            while (m_jobs.isEmpty() && !m_stop) {
                m_busy = false;
                m_wake.wait(&m_mutex);
            }
            if (m_stop)
                break;
            job = m_jobs.takeFirst();
            m_current = job.path;
        }
        const QString thumbnail = makeThumbnail(process, job.path);
        {
            QMutexLocker lock(&m_mutex);
            m_current.clear();
        }
        if (!thumbnail.isEmpty() && !m_stop)
            emit onSendUpdateThumbnail(thumbnail, job.row);
    }
    m_busy = false;
    logInfo("[ItemInfoThread]: end.");
}

QString ItemInfoThread::makeThumbnail(QProcess& process, const QString& path) {
    const QString thumbnail = thumbnailPath(path);
    if (QFileInfo(thumbnail).size() > 0)
        return thumbnail;
    const QString program = ffmpegProgram();
    if (program.isEmpty() || !QFileInfo::exists(path))
        return QString();
    QDir().mkpath(thumbsFolder());
    // Written under a temporary name and renamed, so that a killed ffmpeg never leaves a
    // half-written picture that a later run would take for a thumbnail.
    const QString partial = thumbnail + QStringLiteral(".part.jpg");
    process.setProgram(program);
    // One second in shows the road rather than the camera's first, often dark, picture;
    // a recording shorter than that gives its first picture instead.
    for (const char* offset : {"1", "0"}) {
        const QStringList arguments{"-nostdin",
                                    "-hide_banner",
                                    "-loglevel",
                                    "error",
                                    "-y",
                                    "-ss",
                                    offset,
                                    "-i",
                                    path,
                                    "-frames:v",
                                    "1",
                                    "-vf",
                                    QStringLiteral("scale=%1:-2").arg(kThumbnailWidth),
                                    "-q:v",
                                    "5",
                                    "-f",
                                    "image2",
                                    partial};
        const bool finished = runFfmpeg(process, arguments);
        if (m_stop)
            break;
        if (finished && QFileInfo(partial).size() > 0) {
            QFile::remove(thumbnail);
            if (QFile::rename(partial, thumbnail))
                return thumbnail;
            break;
        }
    }
    QFile::remove(partial);
    return QString();
}

bool ItemInfoThread::runFfmpeg(QProcess& process, const QStringList& arguments) {
    process.setArguments(arguments);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start();
    if (!process.waitForStarted()) {
        logWarning("[ItemInfoThread]: ffmpeg did not start.");
        return false;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    // Short waits, so that a stop request ends ffmpeg at once.
    while (!process.waitForFinished(50)) {
        if (m_stop || elapsed.elapsed() > kPerFileLimitMs) {
            process.kill();
            process.waitForFinished(1000);
            return false;
        }
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
