#pragma once

namespace platform {

// Hands memory the program has freed back to the operating system. Decoders of a player
// that was replaced free their buffers on their own threads; the C library keeps such
// memory for later use, so without this a replaced player's memory stays counted against
// the program.
void returnFreedMemory();

} // namespace platform
