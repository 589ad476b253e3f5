#include "LengthReading.h"

#include "LengthReader.h"

#include <QThread>

LengthReading::LengthReading(QObject* parent)
    : QObject(parent), m_cancel(std::make_shared<std::atomic<bool>>(false)) {
    qRegisterMetaType<QVector<RecordingName::Length>>();
    // Reading a length is mostly parsing a file's header: one reader per core, and never
    // more than two, so that the window keeps a core when there are only two.
    m_pool.setMaxThreadCount(qBound(1, QThread::idealThreadCount(), 2));
}

LengthReading::~LengthReading() {
    m_cancel->store(true);
    m_pool.waitForDone();
}

void LengthReading::cancel() {
    m_cancel->store(true);
    m_cancel = std::make_shared<std::atomic<bool>>(false);
    ++m_batch;
    m_readersLeft = 0;
    m_done = 0;
    m_paths.clear();
}

void LengthReading::start(const QStringList& paths) {
    cancel();
    m_paths = paths;
    m_elapsed.start();
    if (paths.isEmpty())
        return;
    // The first slice holds the rows the list shows first.
    const int readers = paths.size() < kSplitFrom ? 1 : m_pool.maxThreadCount();
    const int slice = (paths.size() + readers - 1) / readers;
    for (int offset = 0; offset < paths.size(); offset += slice) {
        auto* reader = new LengthReader(paths.mid(offset, slice), offset, m_batch, m_cancel);
        connect(reader, &LengthReader::lengthsRead, this, &LengthReading::onRead,
                Qt::QueuedConnection);
        connect(reader, &LengthReader::finished, this, &LengthReading::onReaderFinished,
                Qt::QueuedConnection);
        ++m_readersLeft;
        m_pool.start(reader);
    }
}

void LengthReading::onRead(int batch, int first, const QVector<RecordingName::Length>& lengths) {
    if (batch != m_batch)
        return;
    m_done += lengths.size();
    emit lengthsRead(first, lengths);
}

void LengthReading::onReaderFinished(int batch) {
    if (batch != m_batch || --m_readersLeft > 0)
        return;
    emit finished(m_elapsed.elapsed());
}
