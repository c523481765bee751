// Compares the finished program with the model. It is driven from a second process over real files.
#include "model/FinishedProgram.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include "model/Sequences.h"

namespace tarvik::end_to_end {
namespace {

constexpr int parts = 8;
constexpr int stepsOfPart = 150;
constexpr int longestSequence = 120;

// Each part has its own random seed.
class FinishedProgramModel : public ::testing::TestWithParam<std::uint64_t> {};

TEST_P(FinishedProgramModel, ShowsWhatTheModelKnowsAfterEachStep) {
  const model::Wanted wanted{.steps = stepsOfPart, .longestSequence = longestSequence, .seed = GetParam()};
  const model::Outcome outcome = model::RunSequences(wanted, [](int /*first*/, const std::vector<Action>& actions) {
    FinishedProgram program(actions);
    const std::string difference = program.Run();
    return model::Told{.steps = program.StepsDone(), .difference = difference, .log = program.Log()};
  });
  EXPECT_TRUE(outcome.failure.empty()) << outcome.failure;
  std::cout << outcome.steps << " steps\n";
}

INSTANTIATE_TEST_SUITE_P(Part, FinishedProgramModel, ::testing::Range<std::uint64_t>(1, parts + 1));

}  // namespace
}  // namespace tarvik::end_to_end
