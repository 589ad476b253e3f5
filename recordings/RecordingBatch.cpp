#include "RecordingBatch.h"

#include "RecordingName.h"

#include <algorithm>

QVector<RecordingRecord> RecordingBatch::fromPaths(const QStringList& paths, bool* rejected) {
    QVector<RecordingRecord> batch;
    *rejected = false;
    for (const QString& path : paths) {
        if (!RecordingName::isSupportedName(path)) {
            *rejected = true;
            continue;
        }
        if (!batch.isEmpty() && batch.last().filePath == path) {
            RecordingRecord& last = batch.last();
            if (last.suffixCount < int(last.suffixes.size()))
                last.suffixes[last.suffixCount++] = path.right(3);
            continue;
        }
        batch.append(RecordingRecord::fromPath(path, batch.size()));
    }
    std::stable_sort(batch.begin(), batch.end());
    for (int i = 0; i < batch.size(); ++i)
        batch[i].row = i;
    return batch;
}
