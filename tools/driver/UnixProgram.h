#pragma once

#include <filesystem>
#include <string>

namespace tarvik::end_to_end {

// What a command of the system below Wine answered.
struct UnixAnswer {
  int exitCode = -1;
  std::string output;  // standard output and standard error
};

// Runs a shell command of the system below Wine and waits for its end. Programs that nobody here wrote check what the
// program did that way: they count icons, take screenshots, make links. Throws std::runtime_error where it cannot be
// started or does not end.
UnixAnswer RunUnix(const std::string& command);

// The path as that system names it; and quoted for its shell.
std::string UnixPath(const std::filesystem::path& path);
std::string UnixQuoted(const std::filesystem::path& path);

}  // namespace tarvik::end_to_end
