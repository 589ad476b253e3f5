#include "ContainerClock.h"

#include <QFile>
#include <QtEndian>

namespace {

// A camera's file has a handful of top-level boxes and a dozen in its movie header.
constexpr int kMaxBoxes = 64;
// Seconds from 1904-01-01, the MP4 epoch, to 1970-01-01.
constexpr qint64 kEpochOffset = 2082844800;

struct Box {
    qint64 offset = 0;
    qint64 size = 0;
    int header = 8;
    QByteArray type;
};

bool readBox(QFile& file, qint64 offset, qint64 end, Box& box) {
    if (offset + 8 > end || !file.seek(offset))
        return false;
    const QByteArray head = file.read(16);
    if (head.size() < 8)
        return false;
    box.offset = offset;
    box.type = head.mid(4, 4);
    box.header = 8;
    box.size = qFromBigEndian<quint32>(head.constData());
    if (box.size == 1 && head.size() == 16) {
        box.size = qFromBigEndian<qint64>(head.constData() + 8);
        box.header = 16;
    } else if (box.size == 0) {
        box.size = end - offset;
    }
    return box.size >= box.header && box.size <= end - offset;
}

bool findChild(QFile& file, qint64 start, qint64 end, const char* type, Box& found) {
    qint64 at = start;
    for (int i = 0; i < kMaxBoxes && readBox(file, at, end, found); ++i) {
        if (found.type == type)
            return true;
        at += found.size;
    }
    return false;
}

} // namespace

QDateTime ContainerClock::creationTime(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QDateTime();
    Box moov, mvhd;
    if (!findChild(file, 0, file.size(), "moov", moov) ||
        !findChild(file, moov.offset + moov.header, moov.offset + moov.size, "mvhd", mvhd) ||
        !file.seek(mvhd.offset + mvhd.header))
        return QDateTime();
    const QByteArray header = file.read(12);
    if (header.size() < 12)
        return QDateTime();
    const quint64 seconds = header.at(0) == 1 ? qFromBigEndian<quint64>(header.constData() + 4)
                                              : qFromBigEndian<quint32>(header.constData() + 4);
    if (seconds <= quint64(kEpochOffset) || seconds > quint64(kEpochOffset) + 8000000000ULL)
        return QDateTime();
    return QDateTime::fromSecsSinceEpoch(qint64(seconds) - kEpochOffset, Qt::UTC);
}
