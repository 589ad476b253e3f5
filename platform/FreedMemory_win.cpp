#include "FreedMemory.h"

#include <malloc.h>

namespace platform {

void returnFreedMemory() {
    _heapmin();
}

} // namespace platform
