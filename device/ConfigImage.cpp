#include "ConfigImage.h"

#include "StatusLog.h"

namespace {

quint32 readLittleEndian(const unsigned char* bytes, int width) {
    quint32 value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = (value << 8) | bytes[i];
    return value;
}

} // namespace

QString ConfigImage::headerText(const QByteArray& header, int block) {
    const QByteArray bytes = header.mid(block * kBlockSize, kBlockSize);
    const int end = bytes.indexOf('\0');
    return QString::fromLatin1(end < 0 ? bytes : bytes.left(end));
}

quint8 ConfigImage::byteSum(const char* data, int size) {
    quint8 sum = 0;
    for (int i = 0; i < size; ++i)
        sum = static_cast<quint8>(sum + static_cast<unsigned char>(data[i]));
    return sum;
}

quint8 ConfigImage::headerSum(const QByteArray& header) {
    QByteArray bytes = header.left(kHeaderSize);
    bytes.append(QByteArray(kHeaderSize - bytes.size(), '\0'));
    const char* data = bytes.constData();
    const quint8 model = byteSum(data + kModelBlock * kBlockSize, kBlockSize);
    return static_cast<quint8>(model - 1 + byteSum(data + 3 * kBlockSize, kBlockSize) +
                               byteSum(data + kVersionBlock * kBlockSize, kBlockSize));
}

quint8 ConfigImage::decodeGroup(const char* block, ConfigGroup& group) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(block);
    int position = 0;
    for (ConfigGroup::Item& item : group.items) {
        // An item reaching past the block is not read; the description is trusted to fit.
        const bool inside = item.width > 0 && position >= 0 && position + item.width <= kGroupSize;
        if (inside && item.width == 1)
            item.value = bytes[position];
        else if (inside && item.width == 2)
            item.value = readLittleEndian(bytes + position, 2);
        else if (inside && item.width == 4)
            item.value = static_cast<qint32>(readLittleEndian(bytes + position, 4));
        position += item.width;
    }
    return byteSum(block, kGroupSize);
}

QByteArray ConfigImage::encodeGroup(const ConfigGroup& group) {
    QByteArray block(kGroupSize, '\0');
    int position = 0;
    for (const ConfigGroup::Item& item : group.items) {
        if (item.width <= 0)
            continue;
        auto value = static_cast<qint64>(item.value);
        for (int i = 0; i < item.width; ++i, ++position, value >>= 8) {
            // Bytes that would fall past the block are dropped rather than written over the
            // next group.
            if (position < kGroupSize)
                block[position] = static_cast<char>(value & 0xFF);
        }
    }
    return block;
}

QByteArray ConfigImage::encode(const QByteArray& header, const ConfigGroups& groups) {
    QByteArray file = header.left(kHeaderSize);
    file.append(QByteArray(kHeaderSize - file.size(), '\0'));
    quint8 sum = headerSum(file);
    for (const ConfigGroup& group : groups) {
        const QByteArray block = encodeGroup(group);
        sum = static_cast<quint8>(sum + byteSum(block.constData(), kGroupSize));
        file.append(block);
    }
    file.append(static_cast<char>(checkByteFor(sum)));
    return file;
}

bool ConfigImage::decode(const QByteArray& file, ConfigGroups& groups) {
    QByteArray bytes = file.left(fileSize(groups.size()));
    bytes.append(QByteArray(fileSize(groups.size()) - bytes.size(), '\0'));
    quint8 sum = headerSum(bytes);
    const char* block = bytes.constData() + kHeaderSize;
    for (ConfigGroup& group : groups) {
        logDebug("ConfigAccess::setStruct");
        logInfo("[SDCardView]: Set struct data...");
        const quint8 blockSum = decodeGroup(block, group);
        logLine("set structure Complete!");
        sum = static_cast<quint8>(sum + blockSum);
        block += kGroupSize;
    }
    return static_cast<quint8>(*block) == checkByteFor(sum);
}
