// The bounds of the main window's controls compared with the model.
#include <windows.h>

#include <cstdlib>
#include <string>

#include "model/Driver.h"
#include "model/Seen.h"
#include "resource.h"

namespace tarvik::model {
namespace {

// What an edge of a control follows as the window grows, from the left and from the top.
enum class Across { Stays, Half, Whole };
enum class Down { Stays, Lists, Window };

struct Following {
  int id;
  const char* name;
  Across left;
  Across right;
  Down top;
  Down bottom;
};

constexpr Following followings[] = {
    {FrmFindIcon_Drive1, "drives", Across::Stays, Across::Half, Down::Stays, Down::Stays},
    {FrmFindIcon_Dir1, "folders", Across::Stays, Across::Half, Down::Stays, Down::Lists},
    {FrmFindIcon_File1, "files", Across::Half, Across::Whole, Down::Stays, Down::Lists},
    {FrmFindIcon_CmdFind, "Find", Across::Whole, Across::Whole, Down::Stays, Down::Stays},
    {FrmFindIcon_OptView1, "view button", Across::Whole, Across::Whole, Down::Lists, Down::Lists},
    {FrmFindIcon_lblInfo, "label", Across::Stays, Across::Stays, Down::Lists, Down::Lists},
    {FrmFindIcon_PicFrame, "grid", Across::Stays, Across::Whole, Down::Lists, Down::Lists},
    {FrmFindIcon_Vsb, "bar", Across::Whole, Across::Whole, Down::Lists, Down::Lists},
    {FrmFindIcon_Lv, "list", Across::Stays, Across::Whole, Down::Lists, Down::Window},
    {FrmFindIcon_sbMain, "status bar", Across::Stays, Across::Whole, Down::Window, Down::Window},
};

int Shift(Across edge, const Room& room) {
  return edge == Across::Stays ? 0 : edge == Across::Half ? room.across / 2 : room.across;
}

// The upper lists share the room with the icon list if it is shown. The grid takes none.
int Shift(Down edge, const Room& room, bool listShown) {
  const int iconList = listShown ? room.down / 2 : 0;
  return edge == Down::Stays ? 0 : edge == Down::Lists ? room.down - iconList : room.down;
}

std::string Text(const RECT& bounds) {
  return std::to_string(bounds.left) + ", " + std::to_string(bounds.top) + " to " + std::to_string(bounds.right) +
         ", " + std::to_string(bounds.bottom);
}

// Half of an odd number of pixels may be rounded either way.
bool IsNear(LONG one, LONG other, Across edge) {
  return std::abs(one - other) <= (edge == Across::Half ? 1 : 0);
}

}  // namespace

std::string LayoutDifference(const Model& model, const seen::Controls& at) {
  std::string all;
  if ((IsZoomed(at.Window()) != FALSE) != model.isMaximised) all += "maximised or not\n";
  RECT whole{};
  GetWindowRect(at.Window(), &whole);
  const RECT& first = at.First();
  const POINT size{whole.right - whole.left, whole.bottom - whole.top};
  const POINT expectedSize{first.right - first.left + model.room.across, first.bottom - first.top + model.room.down};
  if (size.x != expectedSize.x || size.y != expectedSize.y)
    all += "the window is " + std::to_string(size.x) + " by " + std::to_string(size.y) + " and not " +
           std::to_string(expectedSize.x) + " by " + std::to_string(expectedSize.y) + "\n";
  for (const Following& row : followings) {
    const RECT& from = at.FirstOf(row.id);
    const RECT expected{from.left + Shift(row.left, model.room), from.top + Shift(row.top, model.room, model.listShown),
                        from.right + Shift(row.right, model.room),
                        from.bottom + Shift(row.bottom, model.room, model.listShown)};
    const RECT seen = seen::BoundsIn(at.Window(), at.Of(row.id));
    if (IsNear(seen.left, expected.left, row.left) && IsNear(seen.right, expected.right, row.right) &&
        seen.top == expected.top && seen.bottom == expected.bottom)
      continue;
    all += std::string("bounds of the ") + row.name + ": " + Text(seen) + " and not " + Text(expected) + "\n";
  }
  return all;
}

}  // namespace tarvik::model
