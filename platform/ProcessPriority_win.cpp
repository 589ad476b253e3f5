#include "ProcessPriority.h"

#include <windows.h>

namespace platform {

bool raiseProcessPriority() {
    return SetPriorityClass(GetCurrentProcess(), ABOVE_NORMAL_PRIORITY_CLASS) != 0;
}

} // namespace platform
