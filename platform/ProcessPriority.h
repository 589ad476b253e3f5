#pragma once

namespace platform {

// Asks the operating system to schedule this process ahead of ordinary programs, so that
// decoding three channels keeps up while other programs run. Failure is not an error: the
// program simply runs at its normal priority. Returns true when the request was granted.
bool raiseProcessPriority();

// Puts another process (a helper the program started and waits for) in the high priority
// class, so that the user does not wait on it longer than needed. Returns true when granted;
// an unknown process (id 0 or below) is left alone.
bool raiseToHighPriority(long long processId);

} // namespace platform
