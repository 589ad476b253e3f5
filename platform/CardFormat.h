#pragma once

#include "RemovableDrives.h"

#include <string>
#include <vector>

namespace platform {

// One outside program and its arguments.
struct ExternalCommand {
    std::string program;
    std::vector<std::string> arguments;
};

// How a memory card mounted at a root is formatted on this system.
struct CardFormatPlan {
    enum Problem {
        None,
        NotMounted,  // the root is no longer a mounted removable drive
        NoPermission // this user may not write the card's device
    };
    Problem problem = None;
    std::string device; // the block device (Linux); empty on Windows
    std::string target; // what the formatter is given as the volume to format
    // Run before the formatter, to take the card's file system off-line, and after it, to
    // bring it back. A card whose file system stays mounted while it is formatted would be
    // written by two parties at once.
    std::vector<ExternalCommand> before;
    std::vector<ExternalCommand> after;
};

// The plan for the card whose root the card dialog opened. Windows formats the drive by its
// letter ("E:", the root's first two characters); Linux formats the block device behind the
// mount, unmounted first (through udisksctl where it is installed, which lets a desktop user
// do it) and mounted again afterwards.
CardFormatPlan planCardFormat(const std::string& root, const DriveTables& tables);

// The mkdosfs program: shipped beside the program on Windows, the system's own on Linux.
std::string formatterPath(const std::string& programFolder);

} // namespace platform
