#pragma once

#include "ConfigGroup.h"

#include <QByteArray>
#include <QString>

// The bytes of CONFIG/config.bin: five 32-byte header blocks (identity, opaque, model,
// opaque, version), one 128-byte block per setting group, and a check byte that makes the
// 8-bit sum of every byte from offset 64 on come to zero. The identity blocks (bytes 0-63)
// are outside the check: the camera rewrites them without touching the check byte.
//
// Reading and writing are not symmetric for widths other than 1, 2 and 4: a writer stores
// any positive width byte by byte (low byte first), a reader decodes only 1, 2 and 4 and
// passes over the others, leaving their values as they were.
class ConfigImage {
public:
    static constexpr int kBlockSize = 32;
    static constexpr int kHeaderBlocks = 5;
    static constexpr int kHeaderSize = kBlockSize * kHeaderBlocks;
    static constexpr int kGroupSize = 128;
    static constexpr int kIdentityBlock = 0;
    static constexpr int kModelBlock = 2;
    static constexpr int kVersionBlock = 4;

    // 161 + 128 x groups: the header, the groups and the check byte.
    static int fileSize(int groupCount) { return kHeaderSize + kGroupSize * groupCount + 1; }

    // The ASCII text of a header block, up to its first NUL.
    static QString headerText(const QByteArray& header, int block);

    // The running sum the check starts from: blocks 3 to 5, less one.
    static quint8 headerSum(const QByteArray& header);
    static quint8 byteSum(const char* data, int size);
    // The check byte for a running sum: its bitwise complement.
    static quint8 checkByteFor(quint8 sum) { return static_cast<quint8>(~sum); }

    // Takes the group's values from its block (kGroupSize bytes). Returns the block's sum.
    static quint8 decodeGroup(const char* block, ConfigGroup& group);
    // The group's block: its items packed from the first byte, the rest zero.
    static QByteArray encodeGroup(const ConfigGroup& group);

    // The whole file for a header (kHeaderSize bytes, padded or cut to it) and groups.
    static QByteArray encode(const QByteArray& header, const ConfigGroups& groups);

    // Reads a whole file into groups laid out by the model's description (their values are
    // replaced). Bytes missing at the end read as zero. Returns whether the stored check
    // byte matches.
    static bool decode(const QByteArray& file, ConfigGroups& groups);
};
