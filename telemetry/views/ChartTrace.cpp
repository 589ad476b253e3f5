#include "ChartTrace.h"

#include <algorithm>

int ChartTrace::xOf(int k, int n, int barWidth) {
    return int(double(barWidth) * k / n);
}

int ChartTrace::yOf(double value, int barHeight) {
    return int((barHeight / 2) * (-value) * 0.5);
}

QVector<QLine> ChartTrace::allLines(const QVector<double>& values, QSize bar) {
    QVector<QLine> lines;
    const int n = values.size();
    if (n < 2)
        return lines;
    lines.reserve(n - 1);
    for (int k = 0; k + 1 < n; ++k)
        lines.append(QLine(xOf(k, n, bar.width()), yOf(values[k], bar.height()),
                           xOf(k + 1, n, bar.width()), yOf(values[k + 1], bar.height())));
    return lines;
}

QVector<QLine> ChartTrace::columnLines(const QVector<double>& values, QSize bar) {
    QVector<QLine> lines;
    const int n = values.size();
    if (n < 2)
        return lines;
    lines.reserve(2 * std::min(n, bar.width() + 1));
    int column = xOf(0, n, bar.width());
    int lowest = yOf(values[0], bar.height());
    int highest = lowest;
    int last = lowest;
    int inColumn = 1;
    const auto closeColumn = [&] {
        if (inColumn > 1)
            lines.append(QLine(column, lowest, column, highest));
    };
    for (int k = 1; k < n; ++k) {
        const int x = xOf(k, n, bar.width());
        const int y = yOf(values[k], bar.height());
        if (x == column) {
            lowest = std::min(lowest, y);
            highest = std::max(highest, y);
            last = y;
            ++inColumn;
            continue;
        }
        closeColumn();
        lines.append(QLine(column, last, x, y));
        column = x;
        lowest = highest = last = y;
        inColumn = 1;
    }
    closeColumn();
    return lines;
}
