#pragma once

#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "platform/Handles.h"

namespace tarvik::bench {

// One way of doing the work. The others are compared with the first one of a comparison.
struct Way {
  std::string name;
  std::function<void()> run;
  std::function<void()> prepare = {};  // runs before each run; not measured
};

// The time of one run, in milliseconds.
struct Cost {
  double wall = 0;
  double processor = 0;  // of this process and of Wine's server; less affected by other programs
};

inline double OwnProcessorTime() {
  FILETIME created{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
  const auto milliseconds = [](const FILETIME& time) {
    return (static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime) / 1e4;
  };
  return milliseconds(kernel) + milliseconds(user);
}

// Wine's server opens the file, so "self" is the server's process. 0 on Windows, which has no such server.
inline double ServerProcessorTime() {
  const FileHandle file(CreateFileW(LR"(\\?\unix\proc\self\schedstat)", GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
  std::array<char, 128> text{};
  DWORD length = 0;
  if (!file || ReadFile(file.get(), text.data(), text.size() - 1, &length, nullptr) == FALSE) return 0;
  return std::strtod(text.data(), nullptr) / 1e6;  // from nanoseconds
}

inline Cost CostOf(const Way& way) {
  if (way.prepare) way.prepare();
  const double processor = OwnProcessorTime() + ServerProcessorTime();
  const auto start = std::chrono::steady_clock::now();
  way.run();
  const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - start;
  return {wall.count(), OwnProcessorTime() + ServerProcessorTime() - processor};
}

inline double Milliseconds(const Way& way) {
  return CostOf(way).wall;
}

inline double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

using PartOfCost = double Cost::*;

// The median of a part of the costs, divided by those of `others` of the same round if there are any.
inline double MedianOf(PartOfCost part, const std::vector<Cost>& costs, const std::vector<Cost>* others = nullptr) {
  std::vector<double> values;
  for (std::size_t i = 0; i < costs.size(); ++i) {
    const double divisor = others != nullptr ? std::max((*others)[i].*part, 1e-9) : 1;
    values.push_back(costs[i].*part / divisor);
  }
  return Median(std::move(values));
}

// The times that a comparison prints. Processor time does not include the work of other processes.
enum class Times { Clock, ClockAndProcessor };

// Runs the ways in turn, so that the load of the machine affects all of them alike, and prints each one's median time
// and the median of its ratio to the first way of the same round. Returns the median wall-clock times in milliseconds,
// one for each way.
inline std::vector<double> Compare(const std::string& title, const std::vector<Way>& ways, int rounds,
                                   Times times = Times::ClockAndProcessor) {
  std::vector<std::vector<Cost>> costs(ways.size());
  for (const Way& way : ways) CostOf(way);  // warm-up, not measured
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < ways.size(); ++i) costs[i].push_back(CostOf(ways[i]));
  }
  std::vector<double> medians;
  for (std::size_t i = 0; i < ways.size(); ++i) {
    medians.push_back(MedianOf(&Cost::wall, costs[i]));
    std::printf("%-44s %-22s %9.1f ms, ratio %.3f", title.c_str(), ways[i].name.c_str(), medians.back(),
                MedianOf(&Cost::wall, costs[i], costs.data()));
    if (times == Times::ClockAndProcessor) {
      std::printf("; processor %9.1f ms, ratio %.3f", MedianOf(&Cost::processor, costs[i]),
                  MedianOf(&Cost::processor, costs[i], costs.data()));
    }
    std::printf("\n");
  }
  std::fflush(stdout);
  return medians;
}

}  // namespace tarvik::bench
