#include "view/ViewKeys.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvik {
namespace {

TEST(ViewKeys, StandForButtonsAndNoOtherKeyDoes) {
  const std::map<int, int> buttons{{0x20, frmBit_tlb_control_MoveNext},
                                   {0x21, frmBit_tlb_control_MovePrev},
                                   {0x22, frmBit_tlb_control_MoveNext},
                                   {0xBB, frmBit_tlb_control_Faster},
                                   {0xBD, frmBit_tlb_control_Slower}};
  for (int key = 0; key < 256; ++key) {
    const auto expected = buttons.find(key);
    EXPECT_EQ(ButtonOfKey(key), expected == buttons.end() ? std::nullopt : std::optional(expected->second)) << key;
  }
}

}  // namespace
}  // namespace tarvik
