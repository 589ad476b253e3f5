#pragma once

#include "TavWidget.h"
#include "TraceSample.h"

#include <QLine>
#include <QPointF>
#include <QVector>

class QLabel;

// The G-sensor trace of the playing recording: its three axes drawn over the whole recording
// in the bar "chartBar", the play position as a white line, and the current X, Y and Z
// values beside it. The data is the coordinator's shared G-sensor list.
//
// A click on the bar, or a drag along it, moves playback to that moment (onSendSeek, which
// the panel routes as it does its slider's moves).
class ChartView : public TavWidget {
    Q_OBJECT
public:
    explicit ChartView(QWidget* parent = nullptr);

    // Axis colours, X, Y, Z.
    static const char* const kAxisColours[3];

    // The bar's rectangle in the view.
    QRect barRect() const;

signals:
    void onSendSeek(int ms);

public slots:
    // While a drive plays: its readings on its time (empty: none plays). The bar then shows
    // the drive's trace around the play time, kWindowMs wide.
    void onSetDriveTrace(const QVector<TraceSample>& trace);
    void onloadChart();
    void onUpdateChart();
    void onClearData();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

public:
    static constexpr int kWindowMs = 120000;

private:
    bool hasRecording() const;
    bool showsDrive() const;
    // The drive's readings from windowStart, kWindowMs wide, as the series.
    void fillDriveWindow(qint64 windowStart);
    // The moment under x (view coordinates), in ms of the recording.
    int timeAt(int x) const;
    void rebuildLines();

    QWidget* m_frame;
    QWidget* m_bar;
    QLabel* m_names[3];
    QLabel* m_values[3];
    QVector<QPointF> m_series[3];
    // The lines of each axis for the bar's present size, made when the data or the size
    // changes rather than on every repaint.
    QVector<QLine> m_lines[3];
    int m_sampleCount = 0;
    bool m_chartLoaded = false;
    bool m_chartActive = false;
    // While the user drags along the bar, the line follows the pointer; playback moves when
    // the button is let go.
    int m_dragX = -1;
    QVector<TraceSample> m_drive;
    // The drive time the bar starts at; -1 before the first window.
    qint64 m_windowStart = -1;
};
