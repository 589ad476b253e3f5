#include "FfmpegProgress.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

// Hands every complete line of `rest + bytes` to `take` and keeps the unfinished tail. A
// carriage return ends a line too (ffmpeg's status lines use one).
template <typename Take> void splitLines(QByteArray& rest, const QByteArray& bytes, Take take) {
    rest += bytes;
    int start = 0;
    for (int i = 0; i < rest.size(); ++i) {
        const char c = rest.at(i);
        if (c == '\n' || c == '\r') {
            if (i > start)
                take(rest.mid(start, i - start));
            start = i + 1;
        }
    }
    rest.remove(0, start);
}

} // namespace

void FfmpegProgress::addReport(const QByteArray& bytes) {
    splitLines(m_reportRest, bytes, [this](const QByteArray& line) { reportLine(line); });
}

void FfmpegProgress::addLog(const QByteArray& bytes) {
    splitLines(m_logRest, bytes, [this](const QByteArray& line) { logLine(line); });
}

void FfmpegProgress::finishLog() {
    if (!m_logRest.isEmpty())
        logLine(m_logRest);
    m_logRest.clear();
}

double FfmpegProgress::fraction() const {
    if (m_ended)
        return 1.0;
    if (m_durationUs <= 0)
        return 0.0;
    return std::clamp(double(m_doneUs) / double(m_durationUs), 0.0, 1.0);
}

QString FfmpegProgress::lastError() const {
    return m_lastError.isEmpty() ? m_lastLine : m_lastError;
}

qint64 FfmpegProgress::parseTime(const QString& text) {
    static const QRegularExpression time(QStringLiteral("^(\\d+):(\\d\\d):(\\d\\d(?:\\.\\d+)?)$"));
    const QRegularExpressionMatch match = time.match(text.trimmed());
    if (!match.hasMatch())
        return -1;
    const double seconds = match.captured(1).toLongLong() * 3600.0 +
                           match.captured(2).toInt() * 60.0 + match.captured(3).toDouble();
    return qint64(seconds * 1e6 + 0.5);
}

void FfmpegProgress::reportLine(const QByteArray& line) {
    const int equals = line.indexOf('=');
    if (equals <= 0)
        return;
    const QByteArray key = line.left(equals).trimmed();
    const QByteArray value = line.mid(equals + 1).trimmed();
    if (key == "out_time_us") {
        bool ok = false;
        const qint64 us = value.toLongLong(&ok);
        if (ok && us >= 0)
            m_doneUs = us;
    } else if (key == "progress") {
        m_ended = value == "end";
    }
}

void FfmpegProgress::logLine(const QByteArray& bytes) {
    QString line = QString::fromLocal8Bit(bytes).trimmed();
    if (line.isEmpty())
        return;
    // "[mp4 @ 0x55d0] [error] text" or "[error] text": the context first, then the level.
    static const QRegularExpression level(
        QStringLiteral("^(?:\\[[^\\]]*@[^\\]]*\\]\\s*)?\\[(quiet|panic|fatal|error|warning|info|"
                       "verbose|debug|trace)\\]\\s*"));
    const QRegularExpressionMatch match = level.match(line);
    QString levelName;
    if (match.hasMatch()) {
        levelName = match.captured(1);
        line.remove(match.capturedStart(1) - 1, match.capturedLength(1) + 2);
        line = line.simplified();
    }
    if (line.isEmpty())
        return;
    m_lastLine = line;
    if (levelName == QLatin1String("error") || levelName == QLatin1String("fatal") ||
        levelName == QLatin1String("panic"))
        m_lastError = line;
    if (m_durationUs == 0) {
        const int at = line.indexOf(QLatin1String("Duration: "));
        if (at >= 0) {
            const QString value = line.mid(at + 10).section(',', 0, 0);
            const qint64 us = parseTime(value);
            if (us > 0)
                m_durationUs = us;
        }
    }
}
