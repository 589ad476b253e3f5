#include "AppendFile.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

bool appendToFile(const char* path, const char* data, std::size_t size) {
    const int fd = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    const ssize_t written = ::write(fd, data, size);
    const bool closed = ::close(fd) == 0;
    return closed && written == static_cast<ssize_t>(size);
}

} // namespace platform
