#include "platform/DroppedFiles.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "platform/DroppedBlock.h"

namespace tarvik {
namespace {

HGLOBAL MakeDrop(const std::vector<std::string>& paths) {
  const std::vector<std::byte> block = support::DroppedBlock(paths);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, block.size());
  std::memcpy(GlobalLock(memory), block.data(), block.size());
  GlobalUnlock(memory);
  return memory;
}

TEST(DroppedFiles, GiveTheFirstPathOfAnyLengthAndScript) {
  const auto take = [](const std::vector<std::string>& paths) {
    return TakeFirstDropped(static_cast<HDROP>(MakeDrop(paths)));
  };
  EXPECT_EQ(take({"C:\\图标 😀.ico", "C:\\other"}), "C:\\图标 😀.ico");
  const std::string deep = "C:\\" + std::string(5'000, 'a');
  EXPECT_EQ(take({deep}), deep);
  EXPECT_EQ(take({}), "");
}

TEST(DroppedFiles, AreReleased) {
  const HGLOBAL memory = MakeDrop({"C:\\a"});
  TakeFirstDropped(static_cast<HDROP>(memory));
  EXPECT_EQ(GlobalFlags(memory), static_cast<UINT>(GMEM_INVALID_HANDLE));
}

}  // namespace
}  // namespace tarvik
