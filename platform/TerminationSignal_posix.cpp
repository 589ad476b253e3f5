#include "TerminationSignal.h"

#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace platform {

namespace {
int g_pipe[2] = {-1, -1};

extern "C" void onTerminationSignal(int) {
    // Only async-signal-safe work here: one byte into the pipe, read by the event loop.
    const char byte = 1;
    [[maybe_unused]] const ssize_t ignored = ::write(g_pipe[1], &byte, 1);
}
} // namespace

int terminationRequestDescriptor() {
    if (g_pipe[0] >= 0)
        return g_pipe[0];
    if (::pipe(g_pipe) != 0)
        return -1;
    for (int fd : g_pipe) {
        ::fcntl(fd, F_SETFD, FD_CLOEXEC);
        ::fcntl(fd, F_SETFL, O_NONBLOCK);
    }
    struct sigaction action {};
    action.sa_handler = onTerminationSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int sig : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(sig, &action, nullptr);
    return g_pipe[0];
}

void clearTerminationRequests() {
    char buffer[16];
    while (g_pipe[0] >= 0 && ::read(g_pipe[0], buffer, sizeof buffer) > 0) {
    }
}

} // namespace platform
