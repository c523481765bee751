#include "encoders/JpegExport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "export/MemorySink.h"
#include "export/TestRaster.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A file that may or may not be deleted.
class FakeTarget final : public ExistingTarget {
 public:
  bool DeleteExistingTarget(const std::string& path) override {
    deleted.push_back(path);
    return deletable;
  }

  bool deletable = true;
  std::vector<std::string> deleted;
};

class JpegExportTest : public ::testing::Test {
 protected:
  TestRaster picture{16, 16, 0x0080FF};
  MemorySink sink;
  FakeTarget target;
  JpegExport jpeg{sink, target};
};

TEST_F(JpegExportTest, ReplacesTheTargetByThePicture) {
  jpeg.InitJpegExport(picture, "D:\\a.jpg", DialogMode::Single);
  EXPECT_TRUE(jpeg.Save());
  EXPECT_THAT(target.deleted, ElementsAre("D:\\a.jpg"));
  EXPECT_EQ(sink.openedPath, "D:\\a.jpg");
  EXPECT_EQ(sink.bytes[0], 0xFF);
  EXPECT_EQ(sink.bytes[1], 0xD8) << "the start of a JPEG file";
}

TEST_F(JpegExportTest, WritesNothingOverAFileThatStays) {
  jpeg.InitJpegExport(picture, "D:\\a.jpg", DialogMode::Single);
  target.deletable = false;
  EXPECT_FALSE(jpeg.Save());
  EXPECT_THAT(sink.steps, IsEmpty());
  EXPECT_THAT(target.deleted, ElementsAre("D:\\a.jpg")) << "and tries no second time";
}

TEST_F(JpegExportTest, LeavesNothingOfAFileThatFailed) {
  for (const int failingStep : {0, 1, 2}) {
    MemorySink failing(failingStep);
    FakeTarget both;
    JpegExport exporting(failing, both);
    exporting.InitJpegExport(picture, "D:\\a.jpg", DialogMode::Single);
    EXPECT_FALSE(exporting.Save()) << failingStep;
    EXPECT_THAT(both.deleted, ElementsAre("D:\\a.jpg", "D:\\a.jpg"));
  }
}

TEST_F(JpegExportTest, WritesNothingWithoutAPicture) {
  EXPECT_FALSE(jpeg.Save("D:\\a.jpg"));
  EXPECT_THAT(target.deleted, IsEmpty());
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
