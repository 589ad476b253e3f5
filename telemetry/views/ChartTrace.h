#pragma once

#include <QLine>
#include <QSize>
#include <QVector>

// The lines that draw one G-sensor axis across the chart's bar, with the origin in the middle
// of the bar's left edge: sample k of n at x = bar width * k / n and y = (bar height / 2) *
// (-value) * 0.5, both truncated to whole pixels, every pair of neighbouring samples joined.
// A value of +1.0 lies a quarter of the bar's height above the zero line.
class ChartTrace {
public:
    static int xOf(int k, int n, int barWidth);
    static int yOf(double value, int barHeight);

    // One line per pair of neighbouring samples, as the rule says (n - 1 lines).
    static QVector<QLine> allLines(const QVector<double>& values, QSize bar);

    // The same pixels with at most two lines per pixel column: where several samples fall
    // into one column, their lines cover every pixel between the column's lowest and highest
    // sample and nothing else in it, so one vertical line per column and one line to the
    // next column draw the same picture. An hour at 10 Hz (36,000 samples) becomes about
    // 1,600 lines on an 800-pixel bar.
    static QVector<QLine> columnLines(const QVector<double>& values, QSize bar);
};
