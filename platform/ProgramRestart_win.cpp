#include "ProgramRestart.h"

namespace platform {

std::vector<std::string> restartArguments() {
    return {"-platform", "windows:dpiawareness=0"};
}

} // namespace platform
