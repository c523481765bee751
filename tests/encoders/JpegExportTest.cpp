#include "encoders/JpegExport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/MemorySink.h"
#include "support/TestRaster.h"

namespace tarvik {
namespace {

using support::MemorySink;
using support::TestRaster;
using ::testing::IsEmpty;

class JpegExportTest : public ::testing::Test {
 protected:
  TestRaster picture{16, 16, 0x0080FF};
  MemorySink sink;
  JpegExport jpeg{sink};
};

TEST_F(JpegExportTest, ReplacesTheTargetByThePicture) {
  jpeg.InitJpegExport(picture, "D:\\a.jpg", DialogMode::Single);
  EXPECT_TRUE(jpeg.Save());
  EXPECT_EQ(sink.openedPath, "D:\\a.jpg");
  EXPECT_EQ(sink.readOnlyFile, ReadOnlyFile::Replaced);
  EXPECT_EQ(sink.bytes[0], 0xFF);
  EXPECT_EQ(sink.bytes[1], 0xD8) << "the start of a JPEG file";
}

TEST_F(JpegExportTest, SaysThatAFileFailed) {
  for (const int failingStep : {0, 1, 2}) {
    MemorySink failing(failingStep);
    JpegExport exporting(failing);
    exporting.InitJpegExport(picture, "D:\\a.jpg", DialogMode::Single);
    EXPECT_FALSE(exporting.Save()) << failingStep;
  }
}

TEST_F(JpegExportTest, WritesNothingWithoutAPicture) {
  EXPECT_FALSE(jpeg.Save("D:\\a.jpg"));
  EXPECT_THAT(sink.steps, IsEmpty());
}

TEST_F(JpegExportTest, KeepsTheOptionsForEveryFileUntilItIsFreed) {
  jpeg.Encoder().SetQuality(90);
  jpeg.Encoder().SetComment("here");
  JpegEncoder* const made = &jpeg.Encoder();
  jpeg.InitJpegExport(picture, "D:\\1.jpg", DialogMode::NoSingle);
  ASSERT_TRUE(jpeg.Save("D:\\1.jpg"));
  const std::vector<std::uint8_t> first = sink.bytes;
  jpeg.InitJpegExport(picture, "D:\\2.jpg", DialogMode::NoSingle);
  ASSERT_TRUE(jpeg.Save("D:\\2.jpg"));
  EXPECT_EQ(sink.bytes, first);
  EXPECT_EQ(&jpeg.Encoder(), made);
  jpeg.FreeObj();
  EXPECT_EQ(jpeg.Encoder().Comment(), "");
  EXPECT_FALSE(jpeg.Save("D:\\3.jpg")) << "the picture is gone too";
}

}  // namespace
}  // namespace tarvik
