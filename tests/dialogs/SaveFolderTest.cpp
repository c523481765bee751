#include "dialogs/SaveFolder.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(SaveFolder, OffersImageTypesForAllButIconsAndCursors) {
  for (const char* extension : {".ICO", ".CUR", ".ico", ".Cur"}) EXPECT_FALSE(OffersImageTypes(extension)) << extension;
  for (const char* extension : {".bmp", ".BMP", ".jpg", "", "ICO"})
    EXPECT_TRUE(OffersImageTypes(extension)) << extension;
}

}  // namespace
}  // namespace tarvik
