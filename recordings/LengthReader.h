#pragma once

#include "RecordingName.h"

#include <QObject>
#include <QRunnable>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <memory>

// Reads the lengths (and video track counts) of a batch of recordings on a pool thread. It owns a
// copy of the paths, touches no widget and no shared record: results travel by queued signal, in
// chunks, each tagged with the batch it belongs to so that the list can drop the results
// of a batch that a newer load has replaced.
class LengthReader : public QObject, public QRunnable {
    Q_OBJECT
public:
    // A chunk is sent at most this often, so that 10,000 lengths do not flood the GUI thread.
    static constexpr int kChunkIntervalMs = 100;

    // Reads paths, which stand at index offset of the batch.
    LengthReader(const QStringList& paths, int offset, int batch,
                 std::shared_ptr<std::atomic<bool>> cancel);

    void run() override;

signals:
    // lengths[i] is what the header of the recording at index first + i of the batch says.
    void lengthsRead(int batch, int first, const QVector<RecordingName::Length>& lengths);
    void finished(int batch);

private:
    QStringList m_paths;
    int m_offset;
    int m_batch;
    std::shared_ptr<std::atomic<bool>> m_cancel;
};
