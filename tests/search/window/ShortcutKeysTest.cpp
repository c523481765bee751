#include "search/window/ShortcutKeys.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace tarvik {
namespace {

constexpr int ctrl = 2;

TEST(ShortcutKeysTest, GiveTheirCommandsAndNoOtherKeyDoes) {
  const std::map<std::pair<int, int>, int> commands{{{0x74, 0}, FrmFindIcon_keyRefresh},
                                                    {{'A', ctrl}, FrmFindIcon_keySelectAll},
                                                    {{'C', ctrl}, FrmFindIcon_mnuCopy},
                                                    {{'S', ctrl}, FrmFindIcon_mnuSaveAs}};
  for (int key = 0; key < 256; ++key) {
    for (int shift = 0; shift < 8; ++shift) {
      const auto expected = commands.find({key, shift});
      const ShortcutKey* found = FindShortcut(key, shift);
      EXPECT_EQ(found != nullptr ? found->command : 0, expected != commands.end() ? expected->second : 0)
          << key << " with " << shift;
    }
  }
}

TEST(ShortcutKeysTest, LeaveATextBoxWhatItHasAMeaningFor) {
  EXPECT_TRUE(FindShortcut('A', ctrl)->leftToText);
  EXPECT_TRUE(FindShortcut('C', ctrl)->leftToText);
  EXPECT_FALSE(FindShortcut('S', ctrl)->leftToText);
  EXPECT_FALSE(FindShortcut(0x74, 0)->leftToText);
}

}  // namespace
}  // namespace tarvik
