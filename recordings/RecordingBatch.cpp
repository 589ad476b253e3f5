#include "RecordingBatch.h"

#include "ChannelFiles.h"
#include "RecordingName.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {

constexpr int kChannels = ChannelFiles::kChannels;

// The paths of one recording, as the load names them.
struct Recording {
    std::array<QString, kChannels> channels; // channel files by channel
    QString single;                          // a recording in one file
    QStringList repeats;                     // suffix entries of paths given twice running
};

// Fills in the channel files on disk that the load did not name, as the player finds them
// from member, one of the recording's files.
void addSiblingsOnDisk(Recording& recording, const QString& member) {
    for (int channel = 0; channel < kChannels; ++channel) {
        if (!recording.channels[channel].isEmpty())
            continue;
        const QString candidate = ChannelFiles::siblingPath(member, channel);
        if (QFileInfo(candidate).isFile())
            recording.channels[channel] = candidate;
    }
}

QString anyChannel(const Recording& recording) {
    for (const QString& file : recording.channels)
        if (!file.isEmpty())
            return file;
    return QString();
}

RecordingRecord recordOf(const Recording& recording, int row) {
    if (!recording.single.isEmpty())
        return RecordingRecord::fromPath(recording.single, row);
    QStringList files;
    for (const QString& file : recording.channels)
        if (!file.isEmpty())
            files << file;
    // The front camera's file when there is one, else the lowest channel: the player packs
    // the files it finds into its players in channel order either way.
    RecordingRecord record = RecordingRecord::fromPath(files.first(), row);
    record.channelFiles = files;
    record.cameraCount = files.size();
    return record;
}

} // namespace

QString RecordingBatch::recordingKey(const QString& path) {
    return ChannelFiles::recordingKey(path);
}

QStringList RecordingBatch::filesOnDisk(const QString& path) {
    QStringList files;
    for (const QString& file : ChannelFiles::onDisk(path))
        if (!file.isEmpty())
            files << file;
    return files;
}

QString RecordingBatch::folderOf(const QString& path) {
    return path.left(std::max(path.lastIndexOf('/'), path.lastIndexOf('\\')) + 1);
}

QVector<RecordingRecord> RecordingBatch::fromPaths(const QStringList& paths,
                                                   const QSet<QString>& listedFolders,
                                                   bool* rejected) {
    *rejected = false;
    QVector<Recording> recordings;
    QVector<QString> keys;
    QHash<QString, int> byKey;
    QString previous;
    int previousIndex = -1;
    for (const QString& path : paths) {
        if (!RecordingName::isSupportedName(path)) {
            *rejected = true;
            continue;
        }
        if (path == previous) {
            recordings[previousIndex].repeats << path.right(3);
            continue;
        }
        const QString key = recordingKey(path);
        auto found = byKey.constFind(key);
        if (found == byKey.constEnd()) {
            found = byKey.insert(key, recordings.size());
            recordings.append(Recording());
            keys.append(key);
        }
        Recording& recording = recordings[*found];
        const int channel = RecordingName::channelIndex(path);
        if (channel >= 0)
            recording.channels[channel] = path;
        else
            recording.single = path;
        previous = path;
        previousIndex = *found;
    }

    QVector<RecordingRecord> batch;
    batch.reserve(recordings.size());
    for (int i = 0; i < recordings.size(); ++i) {
        Recording& recording = recordings[i];
        const bool complete = std::none_of(recording.channels.cbegin(), recording.channels.cend(),
                                           [](const QString& file) { return file.isEmpty(); });
        // A folder listed whole already named every file it has.
        if (recording.single.isEmpty() && !complete &&
            !listedFolders.contains(folderOf(keys.at(i))))
            addSiblingsOnDisk(recording, anyChannel(recording));
        RecordingRecord record = recordOf(recording, batch.size());
        for (const QString& suffix : recording.repeats)
            if (record.suffixCount < int(record.suffixes.size()))
                record.suffixes[record.suffixCount++] = suffix;
        batch.append(record);
    }
    std::stable_sort(batch.begin(), batch.end());
    for (int i = 0; i < batch.size(); ++i)
        batch[i].row = i;
    return batch;
}
