#include "DriveListView.h"

#include "AppGlobals.h"
#include "DriveList.h"
#include "DriveTrace.h"
#include "RecordingList.h"
#include "RecordingName.h"
#include "TavTableWidget.h"
#include "UiDescription.h"

#include <QColor>
#include <QCoreApplication>
#include <QDateTime>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QThreadPool>

#include <algorithm>

namespace {

QString clockText(qint64 ms) {
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(QStringLiteral("HH:mm"));
}

QString lengthText(qint64 ms) {
    const qint64 seconds = ms / 1000;
    if (seconds >= 3600)
        return QStringLiteral("%1:%2:%3")
            .arg(seconds / 3600)
            .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
            .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return QStringLiteral("%1:%2")
        .arg(seconds / 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

DriveListView::DriveListView(QWidget* parent)
    : QTreeWidget(parent), m_pool(new QThreadPool(this)),
      m_cancel(std::make_shared<std::atomic<bool>>(false)) {
    m_pool->setMaxThreadCount(1);
    setColumnCount(ColumnCount);
    setHeaderHidden(true);
    setRootIsDecorated(true);
    setUniformRowHeights(false);
    setExpandsOnDoubleClick(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(LengthColumn, QHeaderView::ResizeToContents);
    UiDescription ui;
    ui.open(QStringLiteral("TavFileListItem"));
    const UiItem table = ui.item(QStringLiteral("fileList"));
    setFont(table.font);
    setStyleSheet(TavTableWidget::tableStyleSheet(table, ui.item(QStringLiteral("scrollBar")),
                                                  ui.item(QStringLiteral("toolTip")))
                      .replace(QLatin1String("QTableWidget"), QLatin1String("QTreeView")));
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { choose(item); });
    DriveList::setRules(AppGlobals::driveGapSeconds, AppGlobals::incidentScalePercent);
}

DriveListView::~DriveListView() {
    m_cancel->store(true);
    m_pool->waitForDone();
}

void DriveListView::refresh() {
    DriveList::rebuild();
    fill();
    readIncidents();
}

void DriveListView::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    refresh();
}

void DriveListView::fill() {
    clear();
    for (int i = 0; i < DriveList::drives.size(); ++i) {
        const Drive& drive = DriveList::drives.at(i);
        auto* row = new QTreeWidgetItem(this);
        row->setData(NameColumn, kDriveRole, i);
        row->setIcon(NameColumn,
                     QIcon(RecordingName::typeIconPath(drive.kind == Drive::Parking ? "P" : "I")));
        row->setText(LengthColumn, lengthText(drive.lengthMs()));
        row->setTextAlignment(LengthColumn, Qt::AlignRight | Qt::AlignVCenter);
        QVector<int> members = drive.recordings + drive.skipped;
        std::sort(members.begin(), members.end(), [](int a, int b) {
            return DriveList::recordings.at(a).startMs < DriveList::recordings.at(b).startMs;
        });
        for (int record : members) {
            const RecordingRecord& listed = RecordingList::records.at(record);
            auto* child = new QTreeWidgetItem(row);
            child->setData(NameColumn, kRecordRole, record);
            child->setIcon(NameColumn, QIcon(RecordingName::typeIconPath(
                                           RecordingName::typeLabel(listed.type))));
            child->setText(NameColumn, listed.displayName);
            child->setText(LengthColumn, listed.durationText);
            child->setTextAlignment(LengthColumn, Qt::AlignRight | Qt::AlignVCenter);
            if (drive.skipped.contains(record)) {
                const QString reason = RecordingName::problemText(listed.problem);
                child->setForeground(NameColumn, QColor(0xe0, 0x6c, 0x6c));
                child->setForeground(LengthColumn, QColor(0xe0, 0x6c, 0x6c));
                child->setText(LengthColumn, QStringLiteral("--:--"));
                child->setToolTip(NameColumn, reason);
            }
        }
        showCounts(i);
    }
    onTypeMask(RecordingList::typeMask());
}

void DriveListView::showCounts(int drive) {
    QTreeWidgetItem* row = topLevelItem(drive);
    if (row == nullptr || drive >= DriveList::drives.size())
        return;
    const Drive& shown = DriveList::drives.at(drive);
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(shown.startMs, Qt::UTC);
    const QString title = QStringLiteral("%1  %2 - %3")
                              .arg(start.toString(QStringLiteral("yyyy-MM-dd")),
                                   clockText(shown.startMs), clockText(shown.endMs));
    QString counts = tr("Recordings: %1").arg(shown.recordings.size());
    if (shown.kind == Drive::Driving)
        counts += QStringLiteral(" \u00b7 ") +
                  (DriveList::hasIncidents(shown) ? tr("Incidents: %1").arg(shown.incidents.size())
                                                  : tr("Incidents: reading"));
    // The kind, the camera's clock to the second and the incidents, for a closer look.
    QStringList details{
        shown.kind == Drive::Parking ? tr("Parking") : tr("Drive"),
        QStringLiteral("%1 - %2").arg(QDateTime::fromMSecsSinceEpoch(shown.startMs, Qt::UTC)
                                          .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                                      QDateTime::fromMSecsSinceEpoch(shown.endMs, Qt::UTC)
                                          .toString(QStringLiteral("HH:mm:ss")))};
    for (const Incident& incident : shown.incidents)
        details << QStringLiteral("%1  %2  %3 g")
                       .arg(lengthText(incident.timeMs), incidentName(incident.kind),
                            QString::number(incident.peakG, 'f', 2));
    row->setToolTip(NameColumn, details.join('\n'));
    row->setText(NameColumn, title + '\n' + counts);
}

QString DriveListView::incidentName(int kind) {
    return Incident::kindText(Incident::Kind(kind));
}

void DriveListView::readIncidents() {
    // The readings still waiting or running for the last fill report nothing any more.
    m_cancel->store(true);
    m_cancel = std::make_shared<std::atomic<bool>>(false);
    m_reading = 0;
    const std::shared_ptr<std::atomic<bool>> cancel = m_cancel;
    const QVector<DriveRecording> recordings = DriveList::recordings;
    const IncidentDetector::Thresholds thresholds = DriveList::thresholds;
    for (const Drive& drive : DriveList::drives) {
        if (drive.kind != Drive::Driving || DriveList::hasIncidents(drive))
            continue;
        ++m_reading;
        const QPointer<DriveListView> self(this);
        m_pool->start([self, cancel, drive, recordings, thresholds] {
            if (cancel->load())
                return;
            const QVector<TraceSample> trace = DriveTrace::read(drive, recordings);
            const QVector<Incident> found =
                DriveTrace::incidents(drive, recordings, trace, thresholds);
            const QString key = DriveList::key(drive, recordings);
            QMetaObject::invokeMethod(
                qApp,
                [self, cancel, key, found, trace] {
                    if (self == nullptr || cancel->load())
                        return;
                    DriveList::setIncidents(key, found, trace);
                    for (int i = 0; i < DriveList::drives.size(); ++i)
                        if (DriveList::key(DriveList::drives.at(i)) == key)
                            self->showCounts(i);
                    if (--self->m_reading == 0)
                        emit self->incidentsRead();
                },
                Qt::QueuedConnection);
        });
    }
    if (m_reading == 0)
        emit incidentsRead();
}

void DriveListView::onTypeMask(int) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = topLevelItem(i);
        const int drive = row->data(NameColumn, kDriveRole).toInt();
        row->setHidden(drive >= DriveList::drives.size() ||
                       !DriveList::passes(DriveList::drives.at(drive)));
        for (int k = 0; k < row->childCount(); ++k) {
            QTreeWidgetItem* child = row->child(k);
            child->setHidden(!RecordingList::passes(child->data(NameColumn, kRecordRole).toInt()));
        }
    }
}

void DriveListView::applyRules() {
    DriveList::setRules(AppGlobals::driveGapSeconds, AppGlobals::incidentScalePercent);
    if (isVisible())
        refresh();
}

void DriveListView::onChangeLanguage() {
    for (int i = 0; i < topLevelItemCount(); ++i)
        showCounts(i);
}

void DriveListView::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem()) {
        choose(currentItem());
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void DriveListView::choose(QTreeWidgetItem* item) {
    if (item == nullptr)
        return;
    if (item->parent() == nullptr) {
        emit playDrive(item->data(NameColumn, kDriveRole).toInt(), -1);
        return;
    }
    const int record = item->data(NameColumn, kRecordRole).toInt();
    emit playDrive(item->parent()->data(NameColumn, kDriveRole).toInt(), record);
}
