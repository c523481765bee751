// The tool tip of the grid, shown by resting the pointer.

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>

#include "driver/Input.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {
namespace {

class GridTip : public EndToEnd {
 protected:
  std::optional<Control> ShownTip() const { return program_.ShownTip(); }
  bool Shows(const std::string& text) const {
    const auto tip = ShownTip();
    return tip && tip->Text() == text;
  }
  // Rests the pointer over the middle of an icon of 32 pixels, by its number; `aside` pixels to the right of it.
  void PointAt(int number, int aside = 0) const {
    const RECT grid = program_.Item(FrmFindIcon_PicIcons).Bounds();
    MovePointer({grid.left + 3 + (number - 1) % 15 * 38 + 16 + aside, grid.top + 3 + (number - 1) / 15 * 38 + 16});
  }
  // Whether this tip appears over an icon. A window that is not active when the pointer comes to rest shows none, so
  // the pointer moves again after a while.
  bool ShowsOver(int number, const std::string& text) const {
    constexpr std::chrono::seconds rest{5};
    int aside = 0;
    return Eventually([&] {
      aside = aside == 0 ? 1 : 0;
      PointAt(number, aside);
      return Eventually([&] { return Shows(text); }, rest);
    });
  }
};

TEST_F(GridTip, ShowsFileAndIndexOfTheIconUnderThePointer) {
  tree_.MakeFile("a & b.ico", support::IconFileOf(0xFF));
  CopyThreeIcons(In("图标.dll"));
  Start();
  Tick({Ico, Dll});
  Find();
  EXPECT_TRUE(ShowsOver(1, In("a & b.ico") + "\r\nIndex 0"));
  EXPECT_TRUE(ShowsOver(3, In("图标.dll") + "\r\nIndex 1"));
  PointAt(5);
  EXPECT_TRUE(Eventually([&] { return !ShownTip(); })) << "there is no fifth icon";
  EXPECT_TRUE(ShowsOver(4, In("图标.dll") + "\r\nIndex 2"));
  DoubleClick(MiddleOf(program_.Item(FrmFindIcon_PicFrame).Bounds()));  // an empty cell too
  EXPECT_TRUE(Eventually([&] { return !ShownTip(); }));
}

TEST_F(GridTip, ShowsTheWholeOfALongPathOnTheScreen) {
  const std::string name = "a folder with a long name";
  std::string folder = name;
  tree_.MakeFolder(folder);
  // As deep as a path may be below this system's temporary folder.
  while (In(folder + "\\" + name + "\\a.ico").size() < MAX_PATH) {
    folder += "\\" + name;
    tree_.MakeFolder(folder);
  }
  tree_.MakeFile(folder + "\\a.ico", support::IconFileOf(0xFF));
  Start(In(folder));
  Find();
  PointAt(1);
  ASSERT_TRUE(Eventually([&] { return ShownTip().has_value(); }));
  std::string text = ShownTip()->Text();
  for (std::size_t end = 0; (end = text.find("\r\n")) != std::string::npos;) text.erase(end, 2);
  EXPECT_EQ(text, In(folder + "\\a.ico") + "Index 0");
  const RECT bounds = ShownTip()->Bounds();
  EXPECT_GE(bounds.left, 0);
  EXPECT_LE(bounds.right, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_LT(bounds.right - bounds.left, 800);
}

}  // namespace
}  // namespace tarvik::end_to_end
