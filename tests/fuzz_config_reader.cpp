// libFuzzer entry for config.bin: any bytes are read in bounds, and what is read is written
// back as a file the reader takes again with the same values.
#include "AppGlobals.h"
#include "ConfigImage.h"
#include "JsonToConfig.h"

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

namespace {

const char* const kModels[] = {"RAVEN1_2CH", "RAVEN2_3CH", "HERON07_D21", "OSPREY_1CH"};

JsonToConfig& description() {
    static JsonToConfig* json = [] {
        JsonToConfig::descriptionPath = QStringLiteral(CONFIG_DESCRIPTION);
        AppGlobals::logLevel = -1; // no status log while fuzzing
        return new JsonToConfig;
    }();
    return *json;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    // The first byte picks the layout; the rest is the file, copied to exactly its size.
    JsonToConfig& json = description();
    if (!json.setModel(QString::fromLatin1(kModels[data[0] % 4])))
        std::abort();
    const QByteArray file(reinterpret_cast<const char*>(data + 1), int(size - 1));
    ConfigGroups groups = json.getItem();
    ConfigImage::decode(file, groups);

    const QByteArray written = ConfigImage::encode(file.left(ConfigImage::kHeaderSize), groups);
    if (written.size() != ConfigImage::fileSize(groups.size()))
        std::abort();
    ConfigGroups again = json.getItem();
    if (!ConfigImage::decode(written, again))
        std::abort();
    for (int g = 0; g < groups.size(); ++g) {
        for (int i = 0; i < groups[g].items.size(); ++i) {
            if (again[g].items[i].value != groups[g].items[i].value)
                std::abort();
        }
    }
    return 0;
}
