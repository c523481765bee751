// When the main window lets its icons be read ahead, and when it drops what was read ahead.

#include <windows.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "platform/TemporaryFolder.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using support::FindIconFixture;
using support::SmallMachine;
using support::TemporaryFolder;
using ::testing::ElementsAre;

// The small machine's icons; logs every request.
class WatchedIcons final : public IconSource {
 public:
  explicit WatchedIcons(SmallMachine& machine) : machine_(machine) {}

  int CountIcons(const std::string& path) override {
    script.emplace_back("count");
    return machine_.CountIcons(path);
  }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    script.push_back("take " + std::to_string(index));
    return machine_.Extract(path, index);
  }
  Finally InTurn() override {
    script.emplace_back("in turn");
    if (noMemory) throw std::bad_alloc();
    return Finally([this] { script.emplace_back("end"); });
  }
  void LetGo() override { script.emplace_back("let go"); }
  void LetGoIfChanged() override { script.emplace_back("look"); }

  std::vector<std::string> script;
  bool noMemory = false;  // to read ahead

 private:
  SmallMachine& machine_;
};

class FrmFindIconAheadTest : public FindIconFixture {
 protected:
  FrmFindIconAheadTest() { OpenOver(icons, machine); }
  void StartWatching() { icons.script.clear(); }
  // Saves all icons repeatedly until `line` was logged twice: a batch checks for messages every 40 milliseconds.
  // `prepare` runs before each batch.
  void SaveAllUntilTwice(const std::string& line, const std::function<void()>& prepare) {
    StartWatching();
    const ULONGLONG start = GetTickCount64();
    while (GetTickCount64() - start < 60'000 && std::ranges::count(icons.script, line) < 2) {
      prepare();
      Click(FrmFindIcon_mnuSaveAll);
    }
    EXPECT_GE(std::ranges::count(icons.script, line), 2) << line;
  }

  WatchedIcons icons{machine};
  TemporaryFolder folder;
};

TEST_F(FrmFindIconAheadTest, ASearchReadsAheadAndLetsGoWhereItYields) {
  StartWatching();
  Find(2);
  EXPECT_THAT(icons.script, ElementsAre("in turn", "count", "let go", "count", "take 0", "take 1", "end"));
}

TEST_F(FrmFindIconAheadTest, ASearchLetsGoBeforeItsMessage) {
  StartWatching();
  Find(0);
  EXPECT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_THAT(icons.script, ElementsAre("in turn", "count", "let go", "end"));
}

TEST_F(FrmFindIconAheadTest, ASearchThatFailsReadsAheadNoLongerWhenItsErrorShows) {
  SetText(FrmFindIcon_txtMax, "many");
  StartWatching();
  Find(2);
  EXPECT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(icons.script.back(), "end");
}

TEST_F(FrmFindIconAheadTest, ABatchReadsAheadToItsEnd) {
  Find(3);
  dialogs.folder = folder.Path();
  StartWatching();
  Click(FrmFindIcon_mnuSaveAll);
  std::vector<std::string> without = icons.script;
  std::erase(without, "let go");  // each time it processes messages
  std::erase(without, "look");    // each time there are none
  EXPECT_THAT(without, ElementsAre("in turn", "take 0", "take 1", "take 2", "end"));
}

// The window once stayed in its saving state for good: no command and no key worked, and it could not even be closed.
TEST_F(FrmFindIconAheadTest, ABatchWithoutTheMemoryForItLeavesTheWindowUsable) {
  Find(3);
  dialogs.folder = folder.Path();
  icons.noMemory = true;
  Click(FrmFindIcon_mnuSaveAll);
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].text, "Out of memory");
  icons.noMemory = false;
  StartWatching();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_THAT(icons.script, ::testing::Contains("end"));
  Click(FrmFindIcon_CmdClose);
  EXPECT_FALSE(window->IsLoaded());
}

TEST_F(FrmFindIconAheadTest, ABatchLetsGoBeforeEachMessage) {
  Find(3);
  dialogs.folder = folder.In("none");
  StartWatching();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(boxes.Boxes().size(), 3U);
  for (const char* taken : {"take 0", "take 1", "take 2"}) {
    const auto found = std::ranges::find(icons.script, taken);
    ASSERT_NE(found, icons.script.end()) << taken;
    EXPECT_EQ(*(found + 1), "let go") << taken;
  }
  EXPECT_EQ(icons.script.back(), "end");
}

TEST_F(FrmFindIconAheadTest, ABatchLetsGoWhereItServesMessages) {
  Find(30);
  dialogs.folder = folder.Path();
  SaveAllUntilTwice("let go", [this] { PostMessageW(window->Window(), WM_NULL, 0, 0); });
}

// A batch of small files once threw away about as many icons as it used.
TEST_F(FrmFindIconAheadTest, ABatchOnlyLooksForChangesWhereNoMessageWaits) {
  Find(30);
  dialogs.folder = folder.Path();
  SaveAllUntilTwice("look", [this] { application.DoEvents(); });
}

TEST_F(FrmFindIconAheadTest, TheEnhancedViewReadsNothingAhead) {
  Find(3);
  StartWatching();
  window->Captured().RenderEntry(1);
  window->Captured().RenderEntry(2);
  EXPECT_THAT(icons.script, ElementsAre("take 0", "take 1"));
}

}  // namespace
}  // namespace tarvik
