#include "TerminationSignal.h"

namespace platform {

int terminationRequestDescriptor() {
    return -1;
}

void clearTerminationRequests() {}

} // namespace platform
