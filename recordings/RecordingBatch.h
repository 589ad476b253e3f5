#pragma once

#include "RecordingRecord.h"

#include <QStringList>
#include <QVector>

// The records of a many-file load, before they reach the list.
class RecordingBatch {
public:
    // One record per path that passes RecordingName::isSupportedName, in name order and
    // numbered 0..n-1. A path given again right after itself makes no second record: its
    // last three characters go to the record's next suffix entry instead. rejected tells
    // whether any path failed the name check.
    static QVector<RecordingRecord> fromPaths(const QStringList& paths, bool* rejected);
};
