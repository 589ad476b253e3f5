#include "ChartView.h"

#include "ChartTrace.h"
#include "PlaybackState.h"
#include "StatusLog.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

const char* const ChartView::kAxisColours[3] = {"#ff3a00", "#318dff", "#65ca26"};

ChartView::ChartView(QWidget* parent)
    : TavWidget("ChartView", parent), m_frame(new QWidget(this)), m_bar(new QWidget(this)) {
    logInfo("[ChartView]: Enter ChartView class.");
    // The view paints the traces itself, under its children: the frame and the bar only mark
    // where (they paint nothing), and the view's own entry gives the background.
    addChild(m_frame, "chartWidget", Style::None);
    addChild(m_bar, "chartBar", Style::None);
    for (QWidget* marker : {m_frame, m_bar})
        marker->setAttribute(Qt::WA_TransparentForMouseEvents);
    const char* const names[3] = {"gSensorLX", "gSensorLY", "gSensorLZ"};
    const char* const values[3] = {"gSensorLXValue", "gSensorLYValue", "gSensorLZValue"};
    for (int axis = 0; axis < 3; ++axis) {
        m_names[axis] = new QLabel(this);
        addChild(m_names[axis], names[axis], Style::Label);
        m_values[axis] = new QLabel(QStringLiteral("0.000"), this);
        addChild(m_values[axis], values[axis], Style::Label);
        m_values[axis]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    setCursor(Qt::PointingHandCursor);
    retranslate();
}

QRect ChartView::barRect() const {
    return m_bar->geometry();
}

bool ChartView::hasRecording() const {
    return (PlaybackState::playStatus == PlaybackState::PlayRunning ||
            PlaybackState::playStatus == PlaybackState::PlayPaused) &&
           PlaybackState::totalTime > 0;
}

bool ChartView::showsDrive() const {
    return PlaybackState::inDrive() && !m_drive.isEmpty();
}

void ChartView::onSetDriveTrace(const QVector<TraceSample>& trace) {
    logDebug("ChartView::onSetDriveTrace");
    m_drive = trace;
    m_windowStart = -1;
    if (showsDrive()) {
        m_chartLoaded = true;
        fillDriveWindow(0);
    }
    update();
}

void ChartView::fillDriveWindow(qint64 windowStart) {
    m_windowStart = windowStart;
    for (auto& series : m_series)
        series.clear();
    const auto first =
        std::lower_bound(m_drive.cbegin(), m_drive.cend(), windowStart,
                         [](const TraceSample& sample, qint64 ms) { return sample.timeMs < ms; });
    for (auto it = first; it != m_drive.cend() && it->timeMs < windowStart + kWindowMs; ++it) {
        const double k = double(it->timeMs - windowStart) / 100.0;
        m_series[0].append(QPointF(k, it->x));
        m_series[1].append(QPointF(k, it->y));
        m_series[2].append(QPointF(k, it->z));
    }
    m_sampleCount = m_series[0].size();
    rebuildLines();
}

void ChartView::onloadChart() {
    logDebug("ChartView::onloadChart");
    // A drive's chart stays on the drive's trace from recording to recording.
    if (showsDrive()) {
        m_chartLoaded = true;
        return;
    }
    logInfo("[ChartView]: Load chart data completely.");
    const QList<GSensorPoint>& points = PlaybackState::gSensorList;
    if (!points.isEmpty())
        m_sampleCount = points.last().index - 1;
    for (auto& series : m_series)
        series.clear();
    for (int k = 0; k < m_sampleCount && k < points.size(); ++k) {
        const GSensorPoint& point = points.at(k);
        m_series[0].append(QPointF(k, point.x));
        m_series[1].append(QPointF(k, point.y));
        m_series[2].append(QPointF(k, point.z));
    }
    m_chartLoaded = true;
    rebuildLines();
    update();
}

void ChartView::onUpdateChart() {
    logDebug("ChartView::onUpdateChart");
    if (showsDrive() && hasRecording()) {
        m_chartActive = true;
        m_chartLoaded = true;
        // The window moves on by half its width when the play time nears its end.
        const qint64 now = qint64(PlaybackState::shownTime());
        if (m_windowStart < 0 || now < m_windowStart || now > m_windowStart + kWindowMs * 3 / 4)
            fillDriveWindow(std::max<qint64>(0, now - kWindowMs / 4));
        const auto at = std::lower_bound(
            m_drive.cbegin(), m_drive.cend(), now,
            [](const TraceSample& sample, qint64 ms) { return sample.timeMs < ms; });
        if (at != m_drive.cend()) {
            const double values[3] = {at->x, at->y, at->z};
            for (int axis = 0; axis < 3; ++axis)
                m_values[axis]->setText(QString::number(values[axis], 'f', 3));
        }
    } else if (PlaybackState::telemetryPresent && hasRecording()) {
        m_chartActive = true;
        const int size = m_series[0].size();
        const int i = int(size * PlaybackState::currentTime / PlaybackState::totalTime);
        if (i > 0 && i < size) {
            for (int axis = 0; axis < 3; ++axis) {
                const QString text = QString::number(m_series[axis].at(i).y(), 'f', 3);
                m_values[axis]->setText(text);
            }
        }
    }
    update();
}

void ChartView::onClearData() {
    logDebug("ChartView::onClearData");
    for (int axis = 0; axis < 3; ++axis) {
        m_series[axis].clear();
        m_lines[axis].clear();
        m_values[axis]->setText(QStringLiteral("0.000"));
    }
    m_sampleCount = 0;
    m_windowStart = -1;
    m_chartLoaded = false;
    m_chartActive = false;
    m_dragX = -1;
    update();
}

void ChartView::rebuildLines() {
    QSize bar = m_bar->size();
    // A drive's window is kWindowMs wide whatever part of it has readings (the drive's end).
    if (showsDrive())
        bar.setWidth(int(qint64(bar.width()) * m_series[0].size() / (kWindowMs / 100)));
    for (int axis = 0; axis < 3; ++axis) {
        QVector<double> values;
        values.reserve(m_series[axis].size());
        for (const QPointF& point : m_series[axis])
            values.append(point.y());
        m_lines[axis] = ChartTrace::columnLines(values, bar);
    }
}

void ChartView::resizeEvent(QResizeEvent* event) {
    TavWidget::resizeEvent(event);
    if (m_chartLoaded)
        rebuildLines();
}

void ChartView::paintEvent(QPaintEvent*) {
    if ((PlaybackState::gSensorList.isEmpty() && !showsDrive()) || !m_chartLoaded)
        return;
    QPainter painter(this);
    const QRect bar = barRect();
    painter.save();
    painter.translate(bar.x(), bar.y() + bar.height() / 2);
    for (int axis = 0; axis < 3; ++axis) {
        painter.setPen(QColor(kAxisColours[axis]));
        painter.drawLines(m_lines[axis]);
    }
    painter.restore();
    if (PlaybackState::totalTime <= 0)
        return;
    int x = m_dragX;
    if (x < 0)
        x = showsDrive() ? bar.x() + int(bar.width() *
                                         (PlaybackState::shownTime() - m_windowStart) / kWindowMs)
                         : int(bar.width() * PlaybackState::currentTime / PlaybackState::totalTime);
    painter.setPen(Qt::white);
    painter.drawLine(x, bar.top(), x, bar.bottom());
}

int ChartView::timeAt(int x) const {
    const QRect bar = barRect();
    const double share = std::clamp(double(x - bar.x()) / std::max(1, bar.width()), 0.0, 1.0);
    // In a drive, the recording's time of the moment under x: the panel adds where the
    // recording starts, as it does for the recording's own chart.
    if (showsDrive())
        return int(m_windowStart + share * kWindowMs - PlaybackState::driveOffsetMs);
    return int(share * PlaybackState::totalTime);
}

void ChartView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !hasRecording() || !m_chartLoaded) {
        TavWidget::mousePressEvent(event);
        return;
    }
    m_dragX = std::clamp(event->pos().x(), barRect().left(), barRect().right());
    update();
    event->accept();
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    if (m_dragX < 0) {
        TavWidget::mouseMoveEvent(event);
        return;
    }
    m_dragX = std::clamp(event->pos().x(), barRect().left(), barRect().right());
    update();
    event->accept();
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_dragX < 0 || event->button() != Qt::LeftButton) {
        TavWidget::mouseReleaseEvent(event);
        return;
    }
    const int ms = timeAt(m_dragX);
    m_dragX = -1;
    update();
    if (hasRecording())
        emit onSendSeek(ms);
    event->accept();
}
