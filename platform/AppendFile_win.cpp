#include "AppendFile.h"

#include <windows.h>

namespace platform {

bool appendToFile(const char* path, const char* data, std::size_t size) {
    HANDLE file = CreateFileA(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const BOOL ok = WriteFile(file, data, static_cast<DWORD>(size), &written, nullptr);
    const BOOL closed = CloseHandle(file);
    return ok && closed && written == size;
}

} // namespace platform
