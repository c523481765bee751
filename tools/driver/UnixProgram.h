#pragma once

#include <filesystem>
#include <string>

namespace tarvik::end_to_end {

// The result of a command of the host system.
struct UnixAnswer {
  int exitCode = -1;
  std::string output;  // standard output and standard error
};

// Runs a shell command of the host system and waits for its end. Independent programs verify the results of Tarvik this
// way: they count icons, take screenshots, make links. Throws std::runtime_error if the command cannot be started or
// does not end.
UnixAnswer RunUnix(const std::string& command);

// The path in the host system's form; and the same quoted for its shell.
std::string UnixPath(const std::filesystem::path& path);
std::string QuoteForUnix(const std::filesystem::path& path);

}  // namespace tarvik::end_to_end
