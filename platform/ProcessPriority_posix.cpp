#include "ProcessPriority.h"

#include <algorithm>
#include <cerrno>
#include <sys/resource.h>

namespace platform {

namespace {
// "Above normal" on Windows sits one class above the default; five nice steps is the usual
// equivalent on Linux desktops.
constexpr int kAboveNormalSteps = 5;
// "High" is two classes above the default.
constexpr int kHighSteps = 10;
} // namespace

bool raiseProcessPriority() {
    errno = 0;
    const int current = getpriority(PRIO_PROCESS, 0);
    if (current == -1 && errno != 0)
        return false;
    int target = current - kAboveNormalSteps;

    // An unprivileged process may lower its nice value only down to 20 - RLIMIT_NICE. Try the
    // full step first (root and CAP_SYS_NICE get it), then whatever the limit still allows.
    if (setpriority(PRIO_PROCESS, 0, target) == 0)
        return true;
    rlimit limit{};
    if (getrlimit(RLIMIT_NICE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return false;
    target = std::max(target, 20 - static_cast<int>(limit.rlim_cur));
    if (target >= current)
        return false;
    return setpriority(PRIO_PROCESS, 0, target) == 0;
}

bool raiseToHighPriority(long long processId) {
    if (processId <= 0)
        return false;
    const auto id = static_cast<id_t>(processId);
    errno = 0;
    const int current = getpriority(PRIO_PROCESS, id);
    if (current == -1 && errno != 0)
        return false;
    // Only a privileged user may lower a nice value; others keep the helper where it is.
    return setpriority(PRIO_PROCESS, id, current - kHighSteps) == 0;
}

} // namespace platform
