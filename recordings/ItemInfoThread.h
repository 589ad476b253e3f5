#pragma once

#include <QMutex>
#include <QString>
#include <QThread>
#include <QVector>
#include <QWaitCondition>

#include <atomic>

class QProcess;

// Makes the thumbnails that the file list shows as row tool tips: one small JPEG per
// recording in the data folder's "Thumbs", cut from the recording by the ffmpeg program.
// The list hands it rows to work on; it answers each with onSendUpdateThumbnail. A missing
// ffmpeg or a file it cannot read simply gives no thumbnail.
class ItemInfoThread : public QThread {
    Q_OBJECT
public:
    struct Job {
        QString path;
        int row = 0;
    };

    // A file that takes ffmpeg longer than this is given up.
    static constexpr int kPerFileLimitMs = 20000;
    static constexpr int kThumbnailWidth = 160;

    explicit ItemInfoThread(QObject* parent = nullptr);
    ~ItemInfoThread() override;

    static QString thumbsFolder();
    // Where the thumbnail of a recording goes; unique per full path, the same in every run.
    static QString thumbnailPath(const QString& recordingPath);
    // The ffmpeg beside the program when there is one, otherwise the one on PATH; empty
    // when there is none.
    static QString ffmpegProgram();

    // Queues work; starts the thread when it is not running.
    void addJobs(const QVector<Job>& jobs);
    // Drops the queue, kills a running ffmpeg and ends the thread soon after; busy clears
    // when it has ended.
    void stop();

    // Set while there is work in hand or queued.
    bool isBusy() const { return m_busy.load(); }
    // The recording ffmpeg is working on now; empty when idle.
    QString currentPath() const;

signals:
    void onSendUpdateThumbnail(const QString& path, int row);

protected:
    void run() override;

private:
    QString makeThumbnail(QProcess& process, const QString& path);
    bool runFfmpeg(QProcess& process, const QStringList& arguments);

    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    QVector<Job> m_jobs;
    QString m_current;
    std::atomic<bool> m_busy{false};
    std::atomic<bool> m_stop{false};
};
