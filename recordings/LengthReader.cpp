#include "LengthReader.h"

#include "RecordingName.h"

#include <QElapsedTimer>
#include <QFileInfo>

LengthReader::LengthReader(const QStringList& paths, int offset, int batch,
                           std::shared_ptr<std::atomic<bool>> cancel)
    : m_paths(paths), m_offset(offset), m_batch(batch), m_cancel(std::move(cancel)) {
    setAutoDelete(true);
    // Deleted on the pool thread once run() returns; no thread's events are meant for it.
    moveToThread(nullptr);
}

void LengthReader::run() {
    QElapsedTimer sinceChunk;
    sinceChunk.start();
    QStringList chunk;
    QVector<int> videoCounts;
    int first = 0;
    for (int i = 0; i < m_paths.size(); ++i) {
        if (m_cancel->load())
            return;
        // An empty file (a copy that never finished) has no length to read.
        const QString& path = m_paths.at(i);
        const RecordingName::Length length =
            QFileInfo(path).size() > 0 ? RecordingName::readLength(path) : RecordingName::Length();
        chunk << length.text;
        videoCounts << length.videoCount;
        if (sinceChunk.elapsed() >= kChunkIntervalMs) {
            emit lengthsRead(m_batch, m_offset + first, chunk, videoCounts);
            first = i + 1;
            chunk.clear();
            videoCounts.clear();
            sinceChunk.restart();
        }
    }
    if (!chunk.isEmpty())
        emit lengthsRead(m_batch, m_offset + first, chunk, videoCounts);
    emit finished(m_batch);
}
