#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace tarvik::bench {

// One way of doing the work; the first of a comparison is the bare one that the others are held against.
struct Way {
  std::string name;
  std::function<void()> run;
  std::function<void()> prepare = {};  // before each run, and not counted
};

inline double Milliseconds(const Way& way) {
  if (way.prepare) way.prepare();
  const auto start = std::chrono::steady_clock::now();
  way.run();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

// Runs the ways in turn, so that the machine's mood falls on all of them alike, and prints each one's median time and
// the median of its ratio to the bare way of the same round. Returns the median times in milliseconds, one for each
// way.
inline std::vector<double> Compare(const std::string& title, const std::vector<Way>& ways, int rounds) {
  std::vector<std::vector<double>> times(ways.size());
  std::vector<std::vector<double>> ratios(ways.size());
  for (const Way& way : ways) Milliseconds(way);  // a warm-up that is not counted
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < ways.size(); ++i) {
      times[i].push_back(Milliseconds(ways[i]));
      ratios[i].push_back(times[i].back() / times[0].back());
    }
  }
  for (std::size_t i = 0; i < ways.size(); ++i) {
    std::printf("%-44s %-24s %9.1f ms  ratio %.3f\n", title.c_str(), ways[i].name.c_str(), Median(times[i]),
                Median(ratios[i]));
  }
  std::fflush(stdout);
  std::vector<double> medians;
  for (const std::vector<double>& time : times) medians.push_back(Median(time));
  return medians;
}

}  // namespace tarvik::bench
