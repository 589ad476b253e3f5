#include "ProcessPriority.h"

#include <windows.h>

namespace platform {

bool raiseProcessPriority() {
    return SetPriorityClass(GetCurrentProcess(), ABOVE_NORMAL_PRIORITY_CLASS) != 0;
}

bool raiseToHighPriority(long long processId) {
    if (processId <= 0)
        return false;
    HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, TRUE, static_cast<DWORD>(processId));
    if (process == nullptr)
        return false;
    const BOOL granted = SetPriorityClass(process, HIGH_PRIORITY_CLASS);
    CloseHandle(process);
    return granted != 0;
}

} // namespace platform
