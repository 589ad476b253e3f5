#pragma once

#include <cstddef>

namespace platform {

// Appends one block to the file at path (8-bit, in the local code page), creating the file
// when it does not exist. The file is opened, written with a single write and closed again,
// with sharing that lets other writers and readers use it at the same time; a single write
// in append mode keeps blocks from several threads or processes whole. Returns false when
// any step fails; callers that log treat that as a lost line.
bool appendToFile(const char* path, const char* data, std::size_t size);

} // namespace platform
