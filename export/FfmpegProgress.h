#pragma once

#include <QByteArray>
#include <QString>

// Reads what one ffmpeg run says about itself: its progress report (the key=value lines of
// "-progress pipe:1" on its output) and its log (with "-loglevel level+info" every message
// starts with its level in brackets). Output may arrive cut anywhere; partial lines wait for
// the rest.
class FfmpegProgress {
public:
    void addReport(const QByteArray& bytes);
    void addLog(const QByteArray& bytes);
    // Ends the log: a last line without its line break counts too.
    void finishLog();

    // Length of the input in microseconds from the log's "Duration:" line; 0 when unknown.
    qint64 durationUs() const { return m_durationUs; }
    // How far the copy is, in microseconds of the input.
    qint64 doneUs() const { return m_doneUs; }
    // 0..1; 0 while the length is unknown, 1 once ffmpeg reports the end.
    double fraction() const;
    bool ended() const { return m_ended; }
    // The last error or fatal message, without its level; else the log's last line.
    QString lastError() const;

    // "HH:MM:SS.ss" as microseconds; -1 for anything else.
    static qint64 parseTime(const QString& text);

private:
    void reportLine(const QByteArray& line);
    void logLine(const QByteArray& line);

    QByteArray m_reportRest;
    QByteArray m_logRest;
    qint64 m_durationUs = 0;
    qint64 m_doneUs = 0;
    bool m_ended = false;
    QString m_lastError;
    QString m_lastLine;
};
