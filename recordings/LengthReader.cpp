#include "LengthReader.h"

#include "RecordingName.h"

#include <QElapsedTimer>

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
    QVector<RecordingName::Length> chunk;
    int first = 0;
    for (int i = 0; i < m_paths.size(); ++i) {
        if (m_cancel->load())
            return;
        chunk << RecordingName::readLength(m_paths.at(i));
        if (sinceChunk.elapsed() >= kChunkIntervalMs) {
            emit lengthsRead(m_batch, m_offset + first, chunk);
            first = i + 1;
            chunk.clear();
            sinceChunk.restart();
        }
    }
    if (!chunk.isEmpty())
        emit lengthsRead(m_batch, m_offset + first, chunk);
    emit finished(m_batch);
}
