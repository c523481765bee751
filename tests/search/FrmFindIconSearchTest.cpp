#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "search/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconSearchTest : public testing::FindIconFixture {};

// Looks at the window whenever a search asks it for a file's icons.
class WatchingIcons final : public IconSource {
 public:
  WatchingIcons(IconSource& icons, std::function<void()> look) : icons_(icons), look_(std::move(look)) {}

  int CountIcons(const std::string& path) override {
    look_();
    return icons_.CountIcons(path);
  }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    look_();
    return icons_.Extract(path, index);
  }

 private:
  IconSource& icons_;
  std::function<void()> look_;
};

TEST_F(FrmFindIconSearchTest, DisablesWhatCouldDisturbASearchFromItsFirstFileToItsLast) {
  constexpr int controls[] = {FrmFindIcon_CmdFind, FrmFindIcon_CmdOk, FrmFindIcon_CmdClose, FrmFindIcon_mnuFile,
                              FrmFindIcon_mnuEdit};
  int looks = 0;
  WatchingIcons icons(machine, [&] {
    ++looks;
    for (const int id : controls) EXPECT_FALSE(IsEnabled(id)) << id;
  });
  OpenOver(icons, machine);
  for (int search = 0; search < 2; ++search) {
    Find(3);
    EXPECT_EQ(looks, 5) << "counted, counted again and three icons";
    looks = 0;
    for (const int id : controls) EXPECT_TRUE(IsEnabled(id)) << id;
  }
}

}  // namespace
}  // namespace tarvik
