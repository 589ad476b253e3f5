#include "MapPageCipher.h"

#include "MapPageData.h"

#include <openssl/evp.h>

#include <memory>

QByteArray MapPageCipher::programKey() {
    return QByteArray::fromHex(TAVORIC_PAGE_KEY);
}

QByteArray MapPageCipher::programIv() {
    return QByteArray::fromHex(TAVORIC_PAGE_IV);
}

QByteArray MapPageCipher::builtInPage(QString* error) {
    const QByteArray data =
        QByteArray::fromRawData(reinterpret_cast<const char*>(kMapPageData), kMapPageSize);
    return decrypt(data, programKey(), programIv(), error);
}

QByteArray MapPageCipher::decrypt(const QByteArray& data, const QByteArray& key,
                                  const QByteArray& iv, QString* error) {
    constexpr int kBlock = 16;
    if (key.size() != kBlock || iv.size() != kBlock) {
        *error = QStringLiteral("the key and the initialisation vector must be 16 bytes");
        return QByteArray();
    }
    if (data.isEmpty() || data.size() % kBlock != 0) {
        *error = QStringLiteral("the page is not a whole number of cipher blocks");
        return QByteArray();
    }
    std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> ctx(EVP_CIPHER_CTX_new(),
                                                                        EVP_CIPHER_CTX_free);
    QByteArray plain(data.size() + kBlock, Qt::Uninitialized);
    int written = 0;
    int last = 0;
    auto* out = reinterpret_cast<unsigned char*>(plain.data());
    // OpenSSL knows no ISO/IEC 7816-4 padding: it decrypts whole blocks and the padding is
    // taken off here.
    const bool ok = ctx &&
                    EVP_DecryptInit_ex(ctx.get(), EVP_aes_128_cbc(), nullptr,
                                       reinterpret_cast<const unsigned char*>(key.constData()),
                                       reinterpret_cast<const unsigned char*>(iv.constData())) &&
                    EVP_CIPHER_CTX_set_padding(ctx.get(), 0) &&
                    EVP_DecryptUpdate(ctx.get(), out, &written,
                                      reinterpret_cast<const unsigned char*>(data.constData()),
                                      int(data.size())) &&
                    EVP_DecryptFinal_ex(ctx.get(), out + written, &last);
    if (!ok) {
        *error = QStringLiteral("the page could not be decrypted");
        return QByteArray();
    }
    plain.resize(written + last);
    int end = plain.size();
    while (end > 0 && plain.at(end - 1) == '\0' && plain.size() - end < kBlock)
        --end;
    if (end == 0 || static_cast<unsigned char>(plain.at(end - 1)) != 0x80 ||
        plain.size() - end >= kBlock) {
        *error = QStringLiteral("the page's padding is wrong (a wrong key?)");
        return QByteArray();
    }
    plain.truncate(end - 1);
    return plain;
}
