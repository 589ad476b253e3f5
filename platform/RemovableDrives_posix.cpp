#include "RemovableDrives.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include <sys/statvfs.h>

namespace platform {

namespace fs = std::filesystem;

namespace {

struct Mount {
    std::string deviceNumber; // "major:minor"
    std::string root;         // the part of the file system mounted; "/" for a whole one
    std::string mountPoint;
    std::string source;
};

// Undoes an escape of the form marker + digits (mountinfo writes a blank as "\040" in octal,
// udev names labels with "\x20" in hexadecimal).
std::string unescape(const std::string& text, const std::string& marker, int base) {
    const std::size_t digits = base == 8 ? 3 : 2;
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t first = i + marker.size();
        bool escape = text.compare(i, marker.size(), marker) == 0 && first + digits <= text.size();
        for (std::size_t d = first; escape && d < first + digits; ++d)
            escape = base == 8 ? text[d] >= '0' && text[d] <= '7'
                               : std::isxdigit(static_cast<unsigned char>(text[d])) != 0;
        if (escape) {
            out.push_back(static_cast<char>(std::stoi(text.substr(first, digits), nullptr, base)));
            i = first + digits - 1;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

std::string unescapeOctal(const std::string& text) {
    return unescape(text, "\\", 8);
}

std::vector<Mount> readMounts(const std::string& path) {
    std::vector<Mount> mounts;
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        std::istringstream fields(line);
        std::string id, parent, number, root, point, options, field;
        if (!(fields >> id >> parent >> number >> root >> point >> options))
            continue;
        // Optional fields run up to a lone "-"; the file system type and the source follow.
        while (fields >> field && field != "-") {
        }
        std::string type, source;
        if (field != "-" || !(fields >> type >> source))
            continue;
        mounts.push_back(
            {number, unescapeOctal(root), unescapeOctal(point), unescapeOctal(source)});
    }
    return mounts;
}

std::string readFirstLine(const fs::path& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

// Whether the block device numbered "major:minor" sits on a removable medium. A partition's
// flag is kept by its disk. Card slots built into a computer (mmcblk) report their medium as
// fixed, though the card in them is as removable as one in a USB reader.
bool isRemovable(const DriveTables& tables, const std::string& deviceNumber) {
    std::error_code error;
    fs::path device = fs::canonical(fs::path(tables.sysfs) / "dev" / "block" / deviceNumber, error);
    if (error)
        return false;
    if (fs::exists(device / "partition", error))
        device = device.parent_path();
    if (device.filename().string().rfind("mmcblk", 0) == 0)
        return true;
    return readFirstLine(device / "removable") == "1";
}

std::string volumeLabel(const DriveTables& tables, const std::string& source) {
    std::error_code error;
    const fs::path device = fs::canonical(source, error);
    if (error)
        return std::string();
    for (fs::directory_iterator it(tables.labels, error), end; !error && it != end;
         it.increment(error)) {
        std::error_code linkError;
        if (fs::canonical(it->path(), linkError) == device && !linkError)
            return unescape(it->path().filename().string(), "\\x", 16);
    }
    return std::string();
}

} // namespace

std::vector<RemovableDrive> listRemovableDrives(const DriveTables& tables) {
    std::vector<RemovableDrive> drives;
    std::set<std::string> seen;
    for (const Mount& mount : readMounts(tables.mountInfo)) {
        // Only whole file systems: a folder of one mounted elsewhere again is not a drive.
        if (mount.root != "/" || mount.source.empty() || mount.source[0] != '/')
            continue;
        if (seen.count(mount.deviceNumber) != 0 || !isRemovable(tables, mount.deviceNumber))
            continue;
        struct statvfs space {};
        if (statvfs(mount.mountPoint.c_str(), &space) != 0)
            continue;
        seen.insert(mount.deviceNumber);
        RemovableDrive drive;
        drive.root = mount.mountPoint;
        drive.name = volumeLabel(tables, mount.source);
        drive.totalBytes = static_cast<unsigned long long>(space.f_blocks) * space.f_frsize;
        drive.freeBytes = static_cast<unsigned long long>(space.f_bfree) * space.f_frsize;
        drive.device = mount.source;
        drives.push_back(drive);
    }
    return drives;
}

} // namespace platform
