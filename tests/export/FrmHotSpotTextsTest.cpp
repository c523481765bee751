#include "export/FrmHotSpotTexts.h"

#include <gtest/gtest.h>

#include "startup/FormTextRows.h"

namespace tarvik {
namespace {

TEST(HotSpotTexts, AreTheseInThreeLanguages) {
  support::ExpectRows(hotSpotTexts, {
                                        {formCaption, {"Select Hot Spot", "选择热区", "選擇熱區"}},
                                        {FrmHotSpot_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
                                        {FrmHotSpot_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
                                        {FrmHotSpot_lblHotX1, {"Hot X:", "热区 X:", "熱區 X:"}},
                                        {FrmHotSpot_lblHotY1, {"Hot Y:", "热区 Y:", "熱區 Y:"}},

                                        // The names of the controls for screen readers.
                                        {FrmHotSpot_PicCursor, {"Enlarged icon", "放大的图标", "放大的圖示"}},
                                        {FrmHotSpot_lblPointer, {"Pointer", "指针", "指標"}},
                                    });
}

}  // namespace
}  // namespace tarvik
