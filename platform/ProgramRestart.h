#pragma once

#include <string>
#include <vector>

namespace platform {

// The arguments the program is started again with after a program reset. On Windows it asks
// for the platform plugin without DPI awareness, so that the restarted program draws at the
// scale it was designed for; elsewhere the toolkit's defaults stand.
std::vector<std::string> restartArguments();

} // namespace platform
