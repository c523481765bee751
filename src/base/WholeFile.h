#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "base/FileSink.h"

namespace tarvik {

// Writes a file whose bytes are all known: opens the path (UTF-8), writes and closes. Returns false if a step failed; a
// partial file is then left. All writers build their file in memory first and write it with this function, so no file
// is touched if a picture cannot be encoded.
inline bool WriteWholeFile(FileSink& sink, const std::string& path, std::span<const std::byte> bytes,
                           ReadOnlyFile readOnly) {
  if (!sink.Open(path, readOnly)) return false;
  const bool written = sink.Write(bytes);
  // Closed in any case, so that the file does not stay open.
  const bool closed = sink.Close();
  return written && closed;
}

}  // namespace tarvik
