#include "RemovableDrives.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

namespace {

// "CARD (E:)" gives "CARD": the display name up to the blank before its first "(". A name
// without one gives nothing.
std::string volumeName(const char* displayName) {
    const std::string text(displayName);
    const std::string::size_type bracket = text.find('(');
    if (bracket == std::string::npos || bracket == 0)
        return std::string();
    return text.substr(0, bracket - 1);
}

} // namespace

std::vector<RemovableDrive> listRemovableDrives(const DriveTables&) {
    std::vector<RemovableDrive> drives;
    DWORD mask = GetLogicalDrives();
    // Kept from one drive to the next on purpose: a drive whose display name cannot be read
    // shows the name of the drive before it, as the shell's own listing did.
    std::string name;
    for (char letter = 'A'; mask != 0 && letter <= 'Z'; ++letter, mask >>= 1) {
        if ((mask & 1) == 0)
            continue;
        const std::string drive = std::string(1, letter) + ":";
        const std::string rootPath = drive + "\\";
        if (GetDriveTypeA(rootPath.c_str()) != DRIVE_REMOVABLE)
            continue;
        ULARGE_INTEGER available{};
        ULARGE_INTEGER total{};
        ULARGE_INTEGER totalFree{};
        if (!SHGetDiskFreeSpaceExA(rootPath.c_str(), &available, &total, &totalFree))
            continue;
        SHFILEINFOA info{};
        if (SHGetFileInfoA(rootPath.c_str(), 0, &info, sizeof info, SHGFI_DISPLAYNAME) != 0)
            name = volumeName(info.szDisplayName);
        RemovableDrive found;
        found.root = drive;
        found.name = name;
        found.totalBytes = total.QuadPart;
        found.freeBytes = totalFree.QuadPart;
        drives.push_back(found);
    }
    return drives;
}

} // namespace platform
