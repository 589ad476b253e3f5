// Build tool: encrypts the map page with AES-128-CBC and ISO/IEC 7816-4 padding (0x80, then
// zeros up to the block) and writes it as a C++ source file of bytes for the program.
//
//     encrypt_page KEY_HEX IV_HEX PAGE OUTPUT.cpp
//
// The program decrypts it with the same key (telemetry/views/MapPageCipher).
#include <openssl/evp.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::vector<unsigned char> fromHex(const std::string& hex) {
    std::vector<unsigned char> bytes;
    for (size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoi(hex.substr(i, 2), nullptr, 16)));
    return bytes;
}

int fail(const char* what) {
    std::fprintf(stderr, "encrypt_page: %s\n", what);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5)
        return fail("usage: encrypt_page KEY_HEX IV_HEX PAGE OUTPUT.cpp");
    const std::vector<unsigned char> key = fromHex(argv[1]);
    const std::vector<unsigned char> iv = fromHex(argv[2]);
    if (key.size() != 16 || iv.size() != 16)
        return fail("the key and the initialisation vector are 16 bytes each");
    std::ifstream in(argv[3], std::ios::binary);
    if (!in)
        return fail("cannot read the page");
    std::vector<unsigned char> page((std::istreambuf_iterator<char>(in)),
                                    std::istreambuf_iterator<char>());
    page.push_back(0x80);
    while (page.size() % 16 != 0)
        page.push_back(0x00);

    std::vector<unsigned char> out(page.size() + 16);
    int written = 0;
    int last = 0;
    EVP_CIPHER_CTX* ctx = EVP_CIPHER_CTX_new();
    const bool ok = ctx != nullptr &&
                    EVP_EncryptInit_ex(ctx, EVP_aes_128_cbc(), nullptr, key.data(), iv.data()) &&
                    EVP_CIPHER_CTX_set_padding(ctx, 0) &&
                    EVP_EncryptUpdate(ctx, out.data(), &written, page.data(), int(page.size())) &&
                    EVP_EncryptFinal_ex(ctx, out.data() + written, &last);
    EVP_CIPHER_CTX_free(ctx);
    if (!ok)
        return fail("encryption failed");
    out.resize(size_t(written + last));

    std::ofstream cpp(argv[4], std::ios::binary);
    cpp << "// Made by tools/encrypt_page from Resources/map/map.html; do not edit.\n"
        << "#include \"MapPageData.h\"\n\n"
        << "const unsigned char kMapPageData[] = {";
    for (size_t i = 0; i < out.size(); ++i)
        cpp << (i % 16 == 0 ? "\n    " : " ") << static_cast<int>(out[i]) << ',';
    cpp << "\n};\nconst int kMapPageSize = " << out.size() << ";\n";
    return cpp ? 0 : fail("cannot write the output");
}
