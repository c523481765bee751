#include "WholeProcesses.h"

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "Measure.h"
#include "RunAgain.h"
#include "driver/UnixProgram.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik::bench {
namespace {

constexpr const char* title = "whole processes, DLLs of the system folder";
constexpr int rounds = 7;

double Number(const std::string& text) {
  try {
    return std::stod(text);
  } catch (const std::invalid_argument&) {
    return 0;
  }
}

// Milliseconds that a command of the host system below Wine takes, by that system's own clock, without the time to
// start it from here.
double UnixMilliseconds(const std::string& command) {
  const end_to_end::UnixAnswer answer = end_to_end::RunUnix(
      "start=$(date +%s%N); { " + command + "; } >/dev/null 2>&1; echo $((($(date +%s%N) - start) / 1000))");
  return Number(answer.output) / 1000.0;
}

double OwnMilliseconds() {
  return Milliseconds({"", [] { RunAgain(searchOnce); }});
}

}  // namespace

void CompareWholeProcesses(const support::TemporaryFolder& folder) {
  if (end_to_end::RunUnix("command -v wrestool").exitCode != 0) {
    std::printf("%-44s skipped: there is no wrestool (Debian: icoutils)\n", title);
    return;
  }
  const std::string extracted = end_to_end::QuoteForUnix(ToWide(folder.MakeFolder("wrestool")));
  const std::string command =
      "cd " + end_to_end::QuoteForUnix(ToWide(SystemFolder())) + " && wrestool -x --type=14 -o " + extracted + " *.dll";
  std::vector<double> theirs;
  std::vector<double> ratios;
  std::vector<double> own;
  UnixMilliseconds(command);
  OwnMilliseconds();
  for (int round = 0; round < rounds; ++round) {
    theirs.push_back(UnixMilliseconds(command));
    own.push_back(OwnMilliseconds());
    ratios.push_back(own.back() / theirs.back());
  }
  std::printf("%-44s %-24s %9.1f ms  ratio %.3f\n", title, "wrestool", Median(theirs), 1.0);
  std::printf("%-44s %-24s %9.1f ms  ratio %.3f\n", title, "search, real window", Median(own), Median(ratios));
}

}  // namespace tarvik::bench
