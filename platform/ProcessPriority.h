#pragma once

namespace platform {

// Asks the operating system to schedule this process ahead of ordinary programs, so that
// decoding three channels keeps up while other programs run. Failure is not an error: the
// program simply runs at its normal priority. Returns true when the request was granted.
bool raiseProcessPriority();

} // namespace platform
