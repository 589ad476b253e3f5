#pragma once

namespace platform {

// Lets the program end cleanly when the desktop session or the user asks it to terminate
// (logout, shutdown, Ctrl+C in a terminal, `kill`), so that settings are saved and the
// status log is removed as on a normal close.
//
// Returns a file descriptor that becomes readable once a termination request has arrived,
// or -1 where requests are delivered as window messages instead (Windows, where
// WM_QUERYENDSESSION reaches the main window through the toolkit).
int terminationRequestDescriptor();

// Empties the descriptor after it became readable.
void clearTerminationRequests();

} // namespace platform
