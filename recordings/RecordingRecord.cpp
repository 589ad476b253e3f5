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
    record.type = RecordingName::typeFromName(record.fileName);
    return record;
}
