#include "base/Finally.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace tarvik {
namespace {

TEST(Finally, RunsItsActionOnceAtTheEndOfTheScope) {
  int runs = 0;
  {
    const Finally counts([&] { ++runs; });
    EXPECT_EQ(runs, 0);
  }
  EXPECT_EQ(runs, 1);
}

TEST(Finally, RunsItsActionAlsoWhereAnExceptionEndsTheScope) {
  int runs = 0;
  EXPECT_THROW(
      {
        const Finally counts([&] { ++runs; });
        throw std::runtime_error("early");
      },
      std::runtime_error);
  EXPECT_EQ(runs, 1);
}

TEST(Finally, LetsTheFirstExceptionThroughWhereItsActionThrowsAnother) {
  EXPECT_THROW(
      {
        const Finally throws([] { throw std::logic_error("second"); });
        throw std::runtime_error("first");
      },
      std::runtime_error);
}

TEST(Finally, RunsItsActionEarlierWhenAskedTo) {
  int runs = 0;
  Finally counts([&] { ++runs; });
  counts.Now();
  EXPECT_EQ(runs, 1);
  counts.Now();
  EXPECT_EQ(runs, 1);
}

TEST(Finally, RunsItsActionWhereItWasMovedTo) {
  int runs = 0;
  Finally last;
  {
    Finally first([&] { ++runs; });
    last = std::move(first);
  }
  EXPECT_EQ(runs, 0);
  last = Finally([&] { runs += 10; });
  EXPECT_EQ(runs, 1) << "the former action is due when another one takes its place";
  const Finally end(std::move(last));
  last.Now();  // NOLINT(bugprone-use-after-move): nothing is left to do
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace tarvik
