#include "CardFormat.h"

#include <cstdlib>
#include <sstream>

#include <unistd.h>

namespace platform {

namespace {

// The first executable of that name on the search path, then in the administrators'
// folders, which a desktop user's path often leaves out; empty when there is none.
std::string findProgram(const std::string& name) {
    std::string folders = std::getenv("PATH") != nullptr ? std::getenv("PATH") : "";
    folders += ":/usr/sbin:/sbin";
    std::istringstream list(folders);
    std::string folder;
    while (std::getline(list, folder, ':')) {
        if (folder.empty())
            continue;
        const std::string candidate = folder + "/" + name;
        if (access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return std::string();
}

} // namespace

CardFormatPlan planCardFormat(const std::string& root, const DriveTables& tables) {
    CardFormatPlan plan;
    for (const RemovableDrive& drive : listRemovableDrives(tables)) {
        if (drive.root == root)
            plan.device = drive.device;
    }
    if (plan.device.empty()) {
        plan.problem = CardFormatPlan::NotMounted;
        return plan;
    }
    // Checked before anything is unmounted, so that a user without the right leaves the card
    // as it was.
    if (access(plan.device.c_str(), W_OK) != 0) {
        plan.problem = CardFormatPlan::NoPermission;
        return plan;
    }
    plan.target = plan.device;
    const std::string udisksctl = findProgram("udisksctl");
    if (!udisksctl.empty()) {
        plan.before.push_back({udisksctl, {"unmount", "-b", plan.device, "--no-user-interaction"}});
        plan.after.push_back({udisksctl, {"mount", "-b", plan.device, "--no-user-interaction"}});
    } else {
        plan.before.push_back({"umount", {root}});
        plan.after.push_back({"mount", {plan.device, root}});
    }
    return plan;
}

std::string formatterPath(const std::string&) {
    const std::string found = findProgram("mkdosfs");
    return found.empty() ? std::string("mkdosfs") : found;
}

} // namespace platform
