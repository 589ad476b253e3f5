#include "RecordingRecord.h"

#include "RecordingName.h"

#include <QFileInfo>

RecordingRecord RecordingRecord::fromPath(const QString& path, int row) {
    const QFileInfo info(path);
    RecordingRecord record;
    record.row = row;
    record.fileName = info.fileName();
    record.filePath = path;
    record.fileSize = info.size();
    record.suffixes[0] = info.completeSuffix();
    record.type = RecordingName::typeOf(path);
    record.channelFiles = QStringList{path};
    record.cameraCount = record.hasChannelFiles() ? 1 : 0;
    record.displayName = RecordingName::displayName(path);
    record.sortKey = RecordingName::sortKey(path, record.displayName);
    return record;
}

bool RecordingRecord::hasChannelFiles() const {
    return RecordingName::isChannelFile(fileName);
}
