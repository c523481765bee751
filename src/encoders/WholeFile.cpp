#include "encoders/WholeFile.h"

namespace tarvik {

bool WriteWholeFile(FileSink& sink, const std::string& path, std::span<const std::byte> bytes) {
  if (!sink.Open(path)) return false;
  const bool written = sink.Write(bytes);
  // Closed in any case, so that the file is not held open.
  const bool closed = sink.Close();
  return written && closed;
}

}  // namespace tarvik
