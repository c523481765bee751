// The libraries of the system folder, counted also by an independent program.

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "base/FolderPath.h"
#include "driver/UnixProgram.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using Counts = std::map<std::string, int>;  // icons by file name; files without icons are left out

// What wrestool of the icoutils package counts.
Counts CountWithWrestool(const std::string& folder) {
  const UnixAnswer answer = RunUnix("cd " + QuoteForUnix(ToWide(folder)) +
                                    " && for f in *.[dD][lL][lL]; do echo \"$(wrestool -l --type=group_icon \"$f\" "
                                    "2>/dev/null | wc -l) $f\"; done");
  EXPECT_EQ(answer.exitCode, 0) << answer.output;
  Counts counts;
  std::istringstream lines(answer.output);
  int count = 0;
  std::string name;
  while (lines >> count && std::getline(lines >> std::ws, name)) {
    if (count != 0) counts[name] = count;
  }
  return counts;
}

class SystemFolderSearch : public EndToEnd {};

TEST_F(SystemFolderSearch, FindsInEachLibraryAsManyIconsAsAnotherProgram) {
  const Counts expected = CountWithWrestool(SystemFolder());
  ASSERT_FALSE(expected.empty());
  Start(SystemFolder());
  Tick({Dll});
  ChooseSize(Size16);
  SetLimit("4000");
  Find();
  Counts found;
  for (const Entry& entry : Entries()) {
    int& count = found[FolderName(entry.path)];
    EXPECT_EQ(entry.index, count) << entry.path;
    ++count;
  }
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace tarvik::end_to_end
