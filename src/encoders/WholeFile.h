#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "export/FileSink.h"

namespace tarvik {

// Writes a file whose bytes are all known: opens the path (UTF-8), writes and closes. False where a step failed.
// Encoders make a file in memory first and write it so: a picture that cannot be encoded touches no file.
bool WriteWholeFile(FileSink& sink, const std::string& path, std::span<const std::byte> bytes);

}  // namespace tarvik
