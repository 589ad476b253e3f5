#include "ProgramRestart.h"

namespace platform {

std::vector<std::string> restartArguments() {
    // "-platform windows:..." names a plugin that exists only on Windows.
    return {};
}

} // namespace platform
