// Compares the finished program with the model. It is driven from a second process over real files.
#include "model/FinishedProgram.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "model/Sequences.h"

namespace tarvik::end_to_end {
namespace {

constexpr int sequences = 3;  // in each part
constexpr int longestSequence = 60;

// Each part has its own random seed.
class FinishedProgramModel : public ::testing::TestWithParam<std::uint64_t> {};

TEST_P(FinishedProgramModel, ShowsWhatTheModelKnowsAfterEachStep) {
  std::size_t steps = 0;
  const auto isAsTheModel = [&steps] {
    const auto actions = *rc::gen::container<std::vector<Action>>(rc::gen::arbitrary<Action>());
    FinishedProgram program(actions);
    const std::string difference = program.Run();
    steps += program.Log().size();
    if (!difference.empty()) RC_FAIL(difference + model::Numbered(program.Log()));
  };
  rc::detail::TestParams parameters = rc::detail::configuration().testParams;
  if (std::getenv("RC_PARAMS") == nullptr) {
    parameters.seed = GetParam();
    parameters.maxSize = longestSequence;
    parameters.maxSuccess = sequences;
  }
  const auto result = rc::detail::checkTestable(isAsTheModel, rc::detail::TestMetadata{}, parameters);
  std::ostringstream told;
  rc::detail::printResultMessage(result, told);
  EXPECT_TRUE(result.template is<rc::detail::SuccessResult>()) << told.str();
  std::cout << steps << " steps\n";
}

INSTANTIATE_TEST_SUITE_P(Part, FinishedProgramModel, ::testing::Range<std::uint64_t>(1, 5));

}  // namespace
}  // namespace tarvik::end_to_end
