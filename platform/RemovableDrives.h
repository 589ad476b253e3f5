#pragma once

#include <string>
#include <vector>

namespace platform {

// Where Linux describes its mounts and block devices. The program reads the system's own
// tables; tests point these at trees of their own, since no removable device is plugged in
// where they run. Windows asks the system directly and ignores them.
struct DriveTables {
    std::string mountInfo = "/proc/self/mountinfo";
    std::string sysfs = "/sys";
    std::string labels = "/dev/disk/by-label";
};

// A mounted file system on a removable medium (a memory card in a reader or slot).
struct RemovableDrive {
    std::string root; // "E:" on Windows, the mount point on Linux
    std::string name; // the volume's name as the desktop shows it; may be empty
    unsigned long long totalBytes = 0;
    unsigned long long freeBytes = 0;
    std::string device; // the block device behind the mount (Linux); empty on Windows
};

// Every removable drive that is mounted and answers a free-space query, in the system's
// order (drive letters upwards on Windows, mount order on Linux).
std::vector<RemovableDrive> listRemovableDrives(const DriveTables& tables);

} // namespace platform
