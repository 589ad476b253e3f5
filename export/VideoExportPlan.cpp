#include "VideoExportPlan.h"

#include "RecordingName.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

bool sameFile(const QString& a, const QString& b) {
    const QFileInfo first(a);
    const QFileInfo second(b);
    if (first.exists() && second.exists())
        return first.canonicalFilePath() == second.canonicalFilePath();
    return first.absoluteFilePath() == second.absoluteFilePath();
}

} // namespace

VideoExportPlan::VideoExportPlan(const QString& recordingPath, int channelCount,
                                 const QList<int>& channels, const QString& container,
                                 const QString& folder) {
    const QFileInfo recording(recordingPath);
    const QString name = recording.fileName();
    const bool separate = isSeparateFiles(name);
    for (int channel = 0; channel < channelCount; ++channel) {
        if (!channels.contains(channel))
            continue;
        VideoExportRun run;
        run.channel = channel;
        if (separate) {
            // The camera files sit side by side and differ only in their "_N" part; each is
            // copied under its own name (with the chosen extension). The recording's own
            // kind of file is looked for, whatever kind is written.
            run.input = RecordingName::siblingChannelPath(recordingPath, channel);
            const QFileInfo input(run.input);
            if (run.input.isEmpty() || !input.isFile()) {
                m_missing.append(channel);
                continue;
            }
            run.input = QDir::toNativeSeparators(run.input);
            run.output = folder + '/' + input.completeBaseName() + '.' + container;
            run.arguments = separateFileArguments(run.input, run.output);
        } else {
            run.input = recordingPath;
            run.output = folder + '/' + name.left(name.size() - 4) + '_' +
                         QString::number(channel + 1) + '.' + container;
            run.arguments = trackArguments(run.input, channel, run.output);
        }
        if (m_overwritesInput.isEmpty() && sameFile(run.input, run.output))
            m_overwritesInput = run.output;
        m_runs.append(run);
    }
}

QStringList VideoExportPlan::existingOutputs() const {
    QStringList existing;
    for (const VideoExportRun& run : m_runs) {
        if (QFileInfo::exists(run.output))
            existing << run.output;
    }
    return existing;
}

bool VideoExportPlan::isSeparateFiles(const QString& name) {
    for (const auto* suffixes :
         {RecordingName::kMp4ChannelSuffixes, RecordingName::kAviChannelSuffixes}) {
        for (int i = 0; i < 3; ++i) {
            if (name.endsWith(QLatin1String(suffixes[i])))
                return true;
        }
    }
    return false;
}

QStringList VideoExportPlan::separateFileArguments(const QString& input, const QString& output) {
    return {"-y",      "-i",  input,  "-vcodec", "copy",     "-map", "0:v:0",
            "-acodec", "aac", "-map", "0:a?",    "-threads", "1",    output};
}

QStringList VideoExportPlan::trackArguments(const QString& input, int index,
                                            const QString& output) {
    return {
        "-y",      "-i",  input,  "-vcodec", "copy",     "-map", "0:v:" + QString::number(index),
        "-acodec", "aac", "-map", "0:a?",    "-threads", "1",    output};
}

QString VideoExportPlan::shippedProgram(const QString& programFolder) {
#ifdef Q_OS_WIN
    return programFolder + QStringLiteral("/library/ffmpeg/ffmpeg.exe");
#else
    return programFolder + QStringLiteral("/library/ffmpeg/ffmpeg");
#endif
}

QString VideoExportPlan::program(const QString& programFolder) {
    const QString shipped = shippedProgram(programFolder);
    const QFileInfo info(shipped);
    if (info.isFile() && info.isExecutable())
        return shipped;
#ifdef Q_OS_WIN
    return QString();
#else
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
#endif
}
