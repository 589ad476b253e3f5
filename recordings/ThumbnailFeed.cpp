#include "ThumbnailFeed.h"

#include "ItemInfoThread.h"
#include "RecordingList.h"
#include "StatusLog.h"

#include <QTableWidget>
#include <QTimer>

#include <utility>

namespace {

// Scrolling asks for thumbnails once it settles, not on every pixel.
constexpr int kThumbnailDelayMs = 150;

} // namespace

ThumbnailFeed::ThumbnailFeed(QTableWidget* table, std::function<bool()> waiting)
    : QObject(table), m_table(table), m_waiting(std::move(waiting)), m_timer(new QTimer(this)) {
    m_timer->setSingleShot(true);
    m_timer->setInterval(kThumbnailDelayMs);
    connect(m_timer, &QTimer::timeout, this, &ThumbnailFeed::request);
}

ThumbnailFeed::~ThumbnailFeed() {
    stop();
}

QString ThumbnailFeed::toolTip(const QString& path) {
    return QStringLiteral("<img src=\"%1\">").arg(path.toHtmlEscaped());
}

void ThumbnailFeed::schedule() {
    if (!RecordingList::records.isEmpty())
        m_timer->start();
}

bool ThumbnailFeed::isBusy() const {
    return m_worker != nullptr && m_worker->isBusy();
}

QString ThumbnailFeed::currentPath() const {
    return m_worker != nullptr ? m_worker->currentPath() : QString();
}

void ThumbnailFeed::request() {
    const QVector<RecordingRecord>& records = RecordingList::records;
    // Lengths go first (a column, not a tool tip); the end of their reading asks again.
    if (records.isEmpty() || m_table->rowCount() == 0 || m_waiting())
        return;
    // The rows on screen; rowAt gives -1 above the first and below the last row.
    const int first = qMax(0, m_table->rowAt(0));
    const int bottom = m_table->rowAt(m_table->viewport()->height() - 1);
    const int last = bottom < 0 ? m_table->rowCount() - 1 : bottom;
    QVector<ItemInfoThread::Job> jobs;
    auto ask = [&](int row) {
        if (row < 0 || row >= records.size() || m_table->isRowHidden(row))
            return;
        const RecordingRecord& record = records.at(row);
        if (record.thumbPath.isEmpty() && !m_requested.contains(record.filePath)) {
            m_requested.insert(record.filePath);
            jobs.append({record.filePath, row});
        }
    };
    if (RecordingList::hasCurrent())
        ask(RecordingList::currentIndex);
    for (int row = first; row <= last && row < records.size(); ++row)
        ask(row);
    if (jobs.isEmpty())
        return;
    if (m_worker == nullptr) {
        m_worker = new ItemInfoThread(this);
        connect(m_worker, &ItemInfoThread::onSendUpdateThumbnail, this, &ThumbnailFeed::onMade,
                Qt::QueuedConnection);
    }
    m_worker->addJobs(jobs);
}

void ThumbnailFeed::onMade(const QString& path, int index) {
    const QVector<RecordingRecord>& records = RecordingList::records;
    // Rows may have moved since the thumbnail was asked for; the thumbnail's name tells
    // whose it is.
    int found = -1;
    if (index >= 0 && index < records.size() &&
        ItemInfoThread::thumbnailPath(records.at(index).filePath) == path)
        found = index;
    for (int i = 0; found < 0 && i < records.size(); ++i)
        if (ItemInfoThread::thumbnailPath(records.at(i).filePath) == path)
            found = i;
    if (found < 0) {
        logWarning("[TavFileListItem]: thumbnail of a removed row.");
        return;
    }
    RecordingList::records[found].thumbPath = path;
    emit thumbnailReady(found, path);
}

void ThumbnailFeed::stop() {
    if (m_worker == nullptr)
        return;
    m_worker->stop();
    // stop() kills a running ffmpeg, so the thread ends within a few milliseconds.
    m_worker->wait();
    delete m_worker;
    m_worker = nullptr;
    m_requested.clear();
}
