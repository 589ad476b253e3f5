#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

class ItemInfoThread;
class QTableWidget;
class QTimer;

// Asks for the thumbnails (row tool tips) of the list's rows on screen, and of the current
// one, once scrolling or resizing settles, and hands each made thumbnail to the row it
// belongs to now. The rows are the process-wide recording list's, shown in table. While
// waiting() says so (lengths are still read), nothing is asked; the end of that reading asks
// again.
class ThumbnailFeed : public QObject {
    Q_OBJECT
public:
    ThumbnailFeed(QTableWidget* table, std::function<bool()> waiting);
    ~ThumbnailFeed() override;

    // Asks once things settle.
    void schedule();
    // Thumbnails are asked for anew (a load replaced the rows).
    void clearRequests() { m_requested.clear(); }
    // Ends the worker, killing a running ffmpeg; what was not made yet is asked for again.
    void stop();
    bool isBusy() const;
    // The recording whose thumbnail is being made now, if any.
    QString currentPath() const;

    // The tool tip of a row whose thumbnail is at path.
    static QString toolTip(const QString& path);

signals:
    // The thumbnail at path was made for the recording now at row.
    void thumbnailReady(int row, const QString& path);

public slots:
    // A thumbnail the worker made for the row that was at index when it was asked for.
    void onMade(const QString& path, int index);

private:
    void request();

    QTableWidget* m_table;
    std::function<bool()> m_waiting;
    ItemInfoThread* m_worker = nullptr;
    QSet<QString> m_requested;
    QTimer* m_timer;
};
