#include "search/icons/MountPoint.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/AppendBytes.h"

namespace tarvik {
namespace {

using support::Append;
using Bytes = std::vector<std::byte>;

constexpr std::uint32_t mountPointTag = 0xA0000003;
constexpr std::uint32_t symbolicLinkTag = 0xA000000C;
constexpr std::string_view volume = R"(\??\Volume{01234567-89ab-cdef-0123-456789abcdef}\)";

void AppendText(Bytes& bytes, std::string_view text) {
  for (const char character : text) Append(bytes, static_cast<unsigned char>(character), 2);
}

// The data of a mount point: the tag, the length of the rest, the positions of two names, the names.
Bytes MountPoint(std::string_view target, std::string_view shown = "", std::uint32_t tag = mountPointTag) {
  const auto targetSize = static_cast<std::uint32_t>(2 * target.size());
  const auto shownSize = static_cast<std::uint32_t>(2 * shown.size());
  Bytes bytes;
  Append(bytes, tag, 4);
  Append(bytes, 8 + targetSize + 2 + shownSize + 2, 2);
  Append(bytes, 0, 2);
  for (const std::uint32_t number : {0U, targetSize, targetSize + 2, shownSize}) Append(bytes, number, 2);
  AppendText(bytes, target);
  Append(bytes, 0, 2);
  AppendText(bytes, shown);
  Append(bytes, 0, 2);
  return bytes;
}

TEST(IsVolumeMount, IsTrueOfTheRootOfAVolumeNamedByItsGuid) {
  EXPECT_TRUE(IsVolumeMount(MountPoint(volume)));
}

TEST(IsVolumeMount, IsFalseOfAJunction) {
  EXPECT_FALSE(IsVolumeMount(MountPoint(R"(\??\C:\Users\All)", R"(C:\Users\All)")));
  EXPECT_FALSE(IsVolumeMount(MountPoint(R"(\??\C:\)", R"(C:\)"))) << "to a whole drive";
  EXPECT_FALSE(IsVolumeMount(MountPoint(R"(\??\C:\a path of as many characters as a volume_)"))) << "of that length";
  const std::string folder = std::string(volume) + "folder";
  EXPECT_FALSE(IsVolumeMount(MountPoint(folder))) << "to a folder of a volume named by its GUID";
  EXPECT_FALSE(IsVolumeMount(MountPoint("")));
}

TEST(IsVolumeMount, IsFalseOfASymbolicLink) {
  EXPECT_FALSE(IsVolumeMount(MountPoint(volume, "", symbolicLinkTag)));
}

TEST(IsVolumeMount, FindsTheTargetBehindAnotherName) {
  Bytes bytes = MountPoint("", volume);
  // The positions of the two names, swapped.
  std::swap_ranges(bytes.begin() + 8, bytes.begin() + 12, bytes.begin() + 12);
  EXPECT_TRUE(IsVolumeMount(bytes));
}

TEST(IsVolumeMount, IsFalseOfDataThatIsCutShortOrPointsBeyondItsEnd) {
  const Bytes whole = MountPoint(volume);
  for (std::size_t size = 0; size < whole.size() - 4; ++size) {
    EXPECT_FALSE(IsVolumeMount(std::span(whole).first(size))) << size;
  }
  for (const std::size_t offset : {8U, 9U, 10U, 11U}) {
    Bytes damaged = whole;
    damaged[offset] = std::byte{0xFF};
    EXPECT_FALSE(IsVolumeMount(damaged)) << offset;
  }
}

}  // namespace
}  // namespace tarvik
