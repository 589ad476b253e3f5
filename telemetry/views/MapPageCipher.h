#pragma once

#include <QByteArray>
#include <QString>

// The map page is kept in the program encrypted with AES-128 in CBC mode, padded as ISO/IEC
// 7816-4 says (0x80, then zeros up to the block), and decrypted when the map is made.
class MapPageCipher {
public:
    // The page as the program carries it, decrypted with the program's key. Empty, with a
    // reason in error, when it cannot be decrypted.
    static QByteArray builtInPage(QString* error);

    // Decrypts data with a 16-byte key and initialisation vector and removes the padding.
    // Empty, with a reason in error, when the data is not a whole number of blocks, the key
    // is not 16 bytes, or the padding is not there (the usual sign of a wrong key).
    static QByteArray decrypt(const QByteArray& data, const QByteArray& key, const QByteArray& iv,
                              QString* error);

    static QByteArray programKey();
    static QByteArray programIv();
};
