#pragma once

#include <QPointer>
#include <QTreeWidget>

#include <atomic>
#include <memory>

class QThreadPool;

// The list's recordings as drives: a row per drive or parking span with its date, start and
// end, length, number of recordings and of incidents, opened to show its recordings (those
// that cannot be played among them, dimmed, with the reason). The type filter applies as in
// the recordings list: a drive shows while any of its recordings passes. Incidents are
// counted in the background, drive by drive, as their telemetry is read.
class DriveListView : public QTreeWidget {
    Q_OBJECT
public:
    enum Column { NameColumn = 0, LengthColumn = 1, ColumnCount = 2 };
    // Item data: the drive's index (top rows) or the record's row (recordings).
    static constexpr int kDriveRole = Qt::UserRole + 1;
    static constexpr int kRecordRole = Qt::UserRole + 2;

    explicit DriveListView(QWidget* parent = nullptr);
    ~DriveListView() override;

    // What the user reads for an Incident::Kind.
    static QString incidentName(int kind);

    // Whether incidents are still being read.
    bool isReading() const { return m_reading > 0; }

signals:
    // Play a drive (record -1: from its start) or one of its recordings within it.
    void playDrive(int drive, int record);
    // Every drive's incidents have been read.
    void incidentsRead();

public slots:
    // Drives made again from the recording list.
    void refresh();
    // The type filter's mask changed.
    void onTypeMask(int mask);
    void onChangeLanguage();
    // The program settings' drive gap and incident thresholds (AppGlobals): the drives are
    // made and their incidents read anew.
    void applyRules();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill();
    void showCounts(int drive);
    void readIncidents();
    void choose(QTreeWidgetItem* item);

    QThreadPool* m_pool;
    std::shared_ptr<std::atomic<bool>> m_cancel;
    int m_reading = 0;
};
