#include "IncidentListView.h"

#include "AppGlobals.h"

#include <QKeyEvent>

namespace {

constexpr int kTimeRole = Qt::UserRole + 1;

QString driveClock(qint64 ms) {
    const qint64 seconds = ms / 1000;
    return seconds >= 3600 ? QStringLiteral("%1:%2:%3")
                                 .arg(seconds / 3600)
                                 .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                                 .arg(seconds % 60, 2, 10, QLatin1Char('0'))
                           : QStringLiteral("%1:%2")
                                 .arg(seconds / 60, 2, 10, QLatin1Char('0'))
                                 .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

IncidentListView::IncidentListView(QWidget* parent) : QListWidget(parent) {
    setObjectName(QStringLiteral("incidentList"));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(
        QStringLiteral("QListWidget{background: #1f232b; color: #c9ced8; border: none; outline: 0;"
                       " font-size: 12px;} QListWidget::item{padding: 1px 4px;}"
                       " QListWidget::item:hover{background: #262b35; color: #ffffff;}"
                       " QListWidget::item:selected{background: #2f7cf6; color: #ffffff;}"));
    connect(this, &QListWidget::itemClicked, this, &IncidentListView::choose);
    hide();
}

QString IncidentListView::kindText(int kind) {
    return Incident::kindText(Incident::Kind(kind));
}

QString IncidentListView::rowText(const Incident& incident, int speedUnit) {
    QString text = QStringLiteral("%1  %2  %3 g")
                       .arg(driveClock(incident.timeMs), kindText(incident.kind),
                            QString::number(incident.peakG, 'f', 2));
    if (incident.speedKmh >= 0) {
        const bool miles = speedUnit == 2;
        text += QStringLiteral("  %1 %2")
                    .arg(qRound(miles ? incident.speedKmh * 0.621371 : incident.speedKmh))
                    .arg(miles ? QStringLiteral("Mi/h") : QStringLiteral("Km/h"));
    }
    return text;
}

void IncidentListView::setIncidents(const QVector<Incident>& incidents) {
    m_incidents = incidents;
    clear();
    for (const Incident& incident : incidents) {
        auto* row = new QListWidgetItem(rowText(incident, AppGlobals::speedUnit), this);
        row->setData(kTimeRole, qint64(incident.timeMs));
        if (incident.byCamera)
            row->setToolTip(tr("The camera recorded this moment as an event."));
    }
    setVisible(!incidents.isEmpty());
}

void IncidentListView::onChangeLanguage() {
    setIncidents(m_incidents);
}

void IncidentListView::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem()) {
        choose(currentItem());
        return;
    }
    QListWidget::keyPressEvent(event);
}

void IncidentListView::choose(QListWidgetItem* item) {
    if (item == nullptr)
        return;
    const qint64 at = item->data(kTimeRole).toLongLong();
    emit seekTo(int(qMax<qint64>(0, at - kLeadMs)));
}
