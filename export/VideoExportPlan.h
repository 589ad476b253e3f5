#pragma once

#include "VideoExportRun.h"

#include <QList>
#include <QString>

// What a video export of the playing recording will run, worked out before anything is
// written.
//
// A recording of separate camera files ("..._1.mp4", "..._2.mp4", ...) is copied file by
// file; a recording that is one file with a video track per camera is copied track by
// track. Either way the video is copied as it is, the sound (when there is any) becomes AAC,
// and ffmpeg uses one thread so that playback keeps its processors.
class VideoExportPlan {
public:
    // recordingPath: the playing recording (any of its camera files). channelCount: its
    // cameras. channels: the checked cameras (0-based). container: "mp4" or "avi", the kind
    // of file to write. folder: where the copies go.
    VideoExportPlan(const QString& recordingPath, int channelCount, const QList<int>& channels,
                    const QString& container, const QString& folder);

    const QList<VideoExportRun>& runs() const { return m_runs; }
    // Checked cameras of a separate-file recording whose file is not there (0-based).
    const QList<int>& missingChannels() const { return m_missing; }
    // A copy that would be written over the file it reads; nothing may run then.
    QString overwritesInput() const { return m_overwritesInput; }
    // Outputs that exist already.
    QStringList existingOutputs() const;

    // True when the name ends with one of the six camera-file suffixes (case-sensitive).
    static bool isSeparateFiles(const QString& name);

    // The copy of one camera file, and of track `index` of a one-file recording.
    static QStringList separateFileArguments(const QString& input, const QString& output);
    static QStringList trackArguments(const QString& input, int index, const QString& output);

    // The ffmpeg program: on Windows always the one shipped beside the program
    // (programFolder + "/library/ffmpeg/ffmpeg.exe"); elsewhere that one
    // (".../ffmpeg") when it is there, otherwise "ffmpeg" from the PATH. Empty when there is
    // none.
    static QString program(const QString& programFolder);
    static QString shippedProgram(const QString& programFolder);

private:
    QList<VideoExportRun> m_runs;
    QList<int> m_missing;
    QString m_overwritesInput;
};
