#pragma once

#include "RecordingName.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QVector>

#include <atomic>
#include <memory>

// The file list's reading of lengths after a load: the batch split into one slice per pool
// thread (at most two), each read by a LengthReader. Only the newest batch reports; a new
// start or a cancel silences the one before, whose readers stop at their next file.
class LengthReading : public QObject {
    Q_OBJECT
public:
    // Below this a batch is read by one reader: splitting it would gain nothing.
    static constexpr int kSplitFrom = 64;

    explicit LengthReading(QObject* parent = nullptr);
    ~LengthReading() override;

    void start(const QStringList& paths);
    void cancel();

    bool isReading() const { return m_readersLeft > 0; }
    int done() const { return m_done; }
    int total() const { return m_paths.size(); }
    // The path at an index of the current batch.
    const QString& pathAt(int index) const { return m_paths.at(index); }

signals:
    // lengths[i] is what the header of the batch's recording first + i says.
    void lengthsRead(int first, const QVector<RecordingName::Length>& lengths);
    void finished(qint64 elapsedMs);

private:
    void onRead(int batch, int first, const QVector<RecordingName::Length>& lengths);
    void onReaderFinished(int batch);

    QThreadPool m_pool;
    std::shared_ptr<std::atomic<bool>> m_cancel;
    QStringList m_paths;
    QElapsedTimer m_elapsed;
    int m_batch = 0;
    int m_readersLeft = 0;
    int m_done = 0;
};
