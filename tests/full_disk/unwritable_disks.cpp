// Saves to a disk that is mounted read-only, and to one on which no further file can be made.

#include <gmock/gmock.h>
#include <windows.h>

#include <string>

#include "driver/SeenFiles.h"
#include "driver/UnixProgram.h"
#include "end_to_end/SavingTest.h"
#include "full_disk/Disk.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::ReadAll;
using ::testing::Each;
using ::testing::ElementsAre;

struct Format {
  int command;  // that saves one icon
  const char* extension;
};
constexpr Format formats[] = {{FrmFindIcon_mnuSaveAs, ".ico"},
                              {FrmFindIcon_MnuSaveAsCursor, ".cur"},
                              {FrmFindIcon_MnuSaveAsBitmap, ".bmp"},
                              {FrmFindIcon_MnuSaveAsBitmap, ".jpg"},
                              {FrmFindIcon_MnuSaveAsBitmap, ".gif"}};

class UnwritableDisk : public Saving {
 protected:
  explicit UnwritableDisk(const char* variable) : path_(MountedDisk(variable)) {}

  std::string UnixFolder() const { return QuoteForUnix(ToWide(path_)); }
  // Everything on the disk with its content, as the host system reports it.
  std::string Contents() const {
    return RunUnix("cd " + UnixFolder() + " && ls -lA --time-style=full-iso && tail -n +1 -- *").output;
  }

 private:
  const std::string path_;
  const ExtraDrive drive_{path_, ""};
};

// The script has put files on it, some of them read-only, and links.
class ReadOnlyDisk : public UnwritableDisk {
 protected:
  ReadOnlyDisk() : UnwritableDisk("TARVIK_READ_ONLY_DISK") {}
};

TEST_F(ReadOnlyDisk, KeepsWhatIsOnItAndEachFileIsReported) {
  FindPictures();
  const std::string before = Contents();
  ASSERT_THAT(before, ::testing::HasSubstr("Images 2.jpg"));
  ExpectEachFileReportedOnDriveR();
  for (const Format& format : formats) {
    for (const char* name : {"a new file", "a file", "a read-only file", "a link"}) {
      const std::string path = std::string("R:\\") + name + format.extension;
      SCOPED_TRACE(path);
      SaveOneOver(format.command, path);
      EXPECT_THAT(ReadMessages(1), ElementsAre(FailureOf(format.command, path)));
      ExpectAsFound();
    }
  }
  EXPECT_EQ(Contents(), before);
}

class DiskWithoutInodes : public UnwritableDisk {
 protected:
  DiskWithoutInodes() : UnwritableDisk("TARVIK_DISK_WITHOUT_INODES") {}

  // Makes a file to be replaced and a link for each kind of batch, then empty files until no more can be made.
  void SetUp() override {
    const UnixAnswer made = RunUnix("cd " + UnixFolder() +
                                    " && echo kept > kept && for f in 'Icon @.ico' 'Curor @.cur' 'Images @.bmp' "
                                    "'Images @.jpg' 'Images @.gif'; do echo former > \"${f%@*}2${f#*@}\" && "
                                    "ln -s kept \"${f%@*}4${f#*@}\" || exit 1; done; i=0; "
                                    "while true > .full$i; do i=$((i + 1)); done 2>/dev/null; test $i -gt 0");
    ASSERT_EQ(made.exitCode, 0) << made.output;
    names_ = Listing();
  }
  void TearDown() override {
    Saving::TearDown();
    RunUnix("cd " + UnixFolder() + " && rm -f -- * .full*");
  }
  std::string Listing() const { return RunUnix("ls -A " + UnixFolder()).output; }

  // After a batch that could only replace the second file.
  void ExpectOnlyTheSecond(const std::string& name, const Pixels& pixels) {
    ExpectAsFound();
    EXPECT_EQ(SeeFiles("R:")[name].pixels, pixels) << name;
    EXPECT_EQ(Listing(), names_);
    EXPECT_EQ(ReadAll("R:\\kept"), "kept\n");
  }

  std::string names_;
};

TEST_F(DiskWithoutInodes, AFileThatIsThereIsReplacedAndEachOtherIsReported) {
  FindPictures();
  ChooseDriveR(FrmFindIcon_mnuSaveAll);
  EXPECT_THAT(ReadMessages(4),
              ElementsAre("Unable to save the file R:\\Icon 1.ico", "Unable to save the file R:\\Icon 3.ico",
                          "Unable to save the file R:\\Icon 4.ico", "Unable to save the file R:\\Icon 5.ico"));
  ExpectOnlyTheSecond("Icon 2.ico", IconPixels(1));
  ChooseDriveR(FrmFindIcon_mnuSaveAll3);
  EXPECT_THAT(ReadMessages(4), Each(cursorFailed));
  ExpectOnlyTheSecond("Curor 2.cur", IconPixels(1));
  ChooseDriveR(FrmFindIcon_mnuSaveAll2);
  EXPECT_THAT(ReadMessages(4), Each(imageFailed));
  ExpectOnlyTheSecond("Images 2.bmp", BitmapPixels(1));
  ChooseDriveR(FrmFindIcon_mnuSaveAll2, Jpg);
  AcceptJpegOptions();
  EXPECT_THAT(ReadMessages(4), Each(imageFailed));
  ExpectAsFound();
  EXPECT_THAT(ReadAll("R:\\Images 2.jpg"), ::testing::StartsWith("\xFF\xD8"));
  EXPECT_EQ(Listing(), names_);
  ChooseDriveR(FrmFindIcon_mnuSaveAll2, Gif);
  AcceptGifOptions();
  EXPECT_THAT(ReadMessages(4), Each(imageFailed));
  ExpectOnlyTheSecond("Images 2.gif", ComposedPixels(1));
}

TEST_F(DiskWithoutInodes, OneIconIsSavedOverAFileButNotUnderANewName) {
  FindPictures();
  for (const Format& format : formats) {
    const std::string path = std::string("R:\\new") + format.extension;
    SCOPED_TRACE(path);
    SaveOneOver(format.command, path);
    EXPECT_THAT(ReadMessages(1), ElementsAre(FailureOf(format.command, path)));
    ExpectAsFound();
  }
  EXPECT_EQ(Listing(), names_);
  SaveOneOver(formats[0].command, "R:\\Icon 2.ico");
  ExpectOnlyTheSecond("Icon 2.ico", IconPixels(0));
}

}  // namespace
}  // namespace tarvik::end_to_end
