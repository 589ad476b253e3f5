#include "CardFormat.h"

namespace platform {

CardFormatPlan planCardFormat(const std::string& root, const DriveTables&) {
    CardFormatPlan plan;
    // The drive letter and its colon, whatever follows them.
    plan.target = root.substr(0, 2);
    return plan;
}

std::string formatterPath(const std::string& programFolder) {
    return programFolder + "/../../library/windows/x86_64/mkdosfs/mkdosfs.exe";
}

} // namespace platform
