// The program's real windows compared with the model, in random sequences.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "model/Driver.h"
#include "model/Sequences.h"

namespace tarvik::model {
namespace {

// Steps in one run of the tests, in all parts together, and the maximum in one sequence. TARVIK_MODEL_STEPS sets
// another total.
constexpr int usualSteps = 10000;
constexpr int parts = 4;
constexpr int longestSequence = 300;
constexpr std::uint64_t firstSeed = 1;

int WantedSteps() {
  const char* wanted = std::getenv("TARVIK_MODEL_STEPS");
  return wanted != nullptr ? std::atoi(wanted) : usualSteps;
}

// On average a sequence has half as many steps as the longest one.
rc::detail::TestParams ParametersOf(int part) {
  rc::detail::TestParams parameters = rc::detail::configuration().testParams;
  if (std::getenv("RC_PARAMS") != nullptr) return parameters;
  parameters.seed = firstSeed + static_cast<std::uint64_t>(part);
  parameters.maxSize = longestSequence;
  parameters.maxSuccess = WantedSteps() / parts * 2 / longestSequence + 1;
  return parameters;
}

class ModelTest : public ::testing::TestWithParam<int> {};

TEST_P(ModelTest, TheWindowsShowWhatTheModelKnowsAfterEachStep) {
  std::size_t steps = 0;
  const auto isAsTheModel = [&steps] {
    const int tongue = *rc::gen::inRange(0, 3);
    const auto actions = *rc::gen::container<std::vector<Action>>(rc::gen::arbitrary<Action>());
    Driver driver(static_cast<Tongue>(tongue), actions);
    const std::string difference = driver.Run();
    steps += driver.Log().size();
    if (!difference.empty()) RC_FAIL(difference + Numbered(driver.Log()));
  };
  const rc::detail::TestParams parameters = ParametersOf(GetParam());
  const auto result = rc::detail::checkTestable(isAsTheModel, rc::detail::TestMetadata{}, parameters);
  std::ostringstream told;
  rc::detail::printResultMessage(result, told);
  EXPECT_TRUE(result.template is<rc::detail::SuccessResult>())
      << told.str() << "\nagain with RC_PARAMS=\"seed=" << parameters.seed << " max_size=" << parameters.maxSize
      << " max_success=" << parameters.maxSuccess << "\"";
  std::cout << steps << " steps\n";
}

INSTANTIATE_TEST_SUITE_P(Part, ModelTest, ::testing::Range(1, parts + 1));

}  // namespace
}  // namespace tarvik::model
