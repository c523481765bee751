// Two copies of the program that save into one folder at the same time, and a copy that is killed while it saves. What
// decides is the moment at which a copy is stopped, so it is suspended again and again until it is at that moment.

#include <windows.h>

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "end_to_end/SavingTest.h"
#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::EndsWith;

// A batch of icons, which do not replace read-only files, and one of JPEG files, which do.
struct Batch {
  std::string name;
  int command;
  ImageType type;
  std::string prefix;
  friend void PrintTo(const Batch& batch, std::ostream* out) { *out << batch.name; }
};

class SaveTogether : public Saving, public ::testing::WithParamInterface<Batch> {
 protected:
  static constexpr int many = 100;

  // Saves all icons once, and keeps the content of each file.
  void SetUp() override {
    CopyHundredIcons(In("many.dll"));
    tree_.MakeFolder(outName);
    Start();
    FindMany(program_);
    StartBatch(program_);
    ExpectDone(program_);
    for (const std::string& name : SavedNames()) whole_[name] = support::ReadAll(Out(name));
    ASSERT_EQ(whole_.size(), std::size_t{many});
  }
  static void FindMany(const Program& program) {
    for (const int box : {FrmFindIcon_ChkFileType0, FrmFindIcon_ChkFileType4}) program.Item(box).Send(BM_CLICK);
    program.Item(FrmFindIcon_txtMax).SetText(std::to_string(many));
    program.Item(FrmFindIcon_CmdFind).Send(BM_CLICK);
    ASSERT_EQ(ReportView(program.Item(FrmFindIcon_Lv)).RowCount(), many);
  }
  // Another copy, with the first one's settings and list.
  void StartLikeTheFirst(Program& other) const {
    ASSERT_NE(CopyFileW(program_.SettingsFile().c_str(), other.SettingsFile().c_str(), TRUE), FALSE);
    other.Start();
    FindMany(other);
  }
  static void StartBatch(const Program& program) {
    program.Command(GetParam().command);
    const FolderChooser chooser(program);
    chooser.Open(outName);
    if (GetParam().type == Jpg) chooser.ChooseType(Jpg);
    chooser.Ok();
    if (GetParam().type == Jpg) Dialog(program, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish1);
    ASSERT_TRUE(Eventually([&] { return IsSaving(program); }));
  }
  static bool IsSaving(const Program& program) {
    return StatusText(program.Item(FrmFindIcon_sbMain), 0) == "Saving...";
  }
  static void ExpectDone(const Program& program) {
    EXPECT_TRUE(Eventually([&] { return !IsSaving(program); }));
    EXPECT_FALSE(program.FindBox());
  }

  // The file that a program has open, not shared with others.
  std::optional<std::string> HeldFile() const {
    for (const std::string& name : SavedNames()) {
      const FileHandle file(CreateFileW(ToWide(Out(name)).c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        0, nullptr));
      if (!file && GetLastError() == ERROR_SHARING_VIOLATION && name.starts_with(GetParam().prefix)) return name;
    }
    return std::nullopt;
  }
  // The file that is not in its place yet.
  std::optional<std::string> NewFile() const {
    for (const std::string& name : SavedNames()) {
      if (!name.starts_with(GetParam().prefix)) return name;
    }
    return std::nullopt;
  }
  // Suspends the program, which saves all icons again and again, at a moment when `look` finds a file. Returns its
  // name.
  std::string StopWhen(const std::function<std::optional<std::string>()>& look) {
    // The program answers a question between two files only, so most looks ask none: all would be at the same moment.
    constexpr int looksOfAQuestion = 16;
    std::optional<std::string> found;
    StartBatch(program_);
    int looks = 0;
    EXPECT_TRUE(Eventually([&] {
      if (++looks % looksOfAQuestion == 0) {
        if (!IsSaving(program_)) StartBatch(program_);
        return false;
      }
      program_.Suspend();
      found = look();
      if (!found) program_.Resume();
      return found.has_value();
    }));
    return found.value_or("");
  }
  // Checks that each file is there and whole, and nothing else. If `except` is named, that file may be anything.
  void ExpectAllWhole(const std::string& except = {}) const {
    std::size_t others = 0;
    for (const std::string& name : SavedNames()) {
      ASSERT_TRUE(whole_.contains(name)) << name;
      if (name == except) continue;
      ++others;
      ASSERT_EQ(support::ReadAll(Out(name)), whole_.at(name)) << name;
    }
    EXPECT_EQ(others, whole_.size() - (except.empty() ? 0 : 1));
  }
  // As a task manager ends it; the exit code is that of a program that was asked to close.
  void Kill() {
    ASSERT_NE(TerminateProcess(program_.Process(), 0), FALSE);
    EXPECT_EQ(program_.WaitForEnd(), 0U);
  }

  std::map<std::string, std::string> whole_;  // the content of each file by its name
};

TEST_P(SaveTogether, TwoCopiesLeaveEachOthersFileAlone) {
  Program other(home_.Path(), "other.exe");
  StartLikeTheFirst(other);
  const std::string held = StopWhen([this] { return HeldFile(); });
  StartBatch(other);
  // It cannot write this one file, and leaves it to the program that does.
  const Box box = other.WaitForBox();
  EXPECT_EQ(box.Text(), GetParam().type == Jpg ? imageFailed : "Unable to save the file " + Out(held));
  box.Press(IDOK);
  ExpectDone(other);
  program_.Resume();
  ExpectDone(program_);
  ExpectAllWhole();
  EXPECT_EQ(other.Close(), 0U);
}

TEST_P(SaveTogether, TwoCopiesAtFullSpeedLoseNoFile) {
  Program other(home_.Path(), "other.exe");
  StartLikeTheFirst(other);
  StartBatch(program_);
  StartBatch(other);
  // A file that both reach at the same moment is reported by one of them.
  EXPECT_TRUE(Eventually([&] {
    for (const Program* each : {&program_, &other}) {
      if (const auto box = each->FindBox()) box->Press(IDOK);
    }
    return !IsSaving(program_) && !IsSaving(other);
  }));
  ExpectAllWhole();
  EXPECT_EQ(other.Close(), 0U);
}

// A killed save once always left an empty file of a name of its own. It still leaves it if it is killed between the two
// system calls that create the file and mark it for deletion. On a busy machine a copy is stopped there about every
// second time, because it waits for the system in the first call.
TEST_P(SaveTogether, AKilledCopyLeavesNoFileOfAnotherName) {
  constexpr int attempts = 12;
  for (int attempt = 1; attempt <= attempts; ++attempt) {
    const std::string name = StopWhen([this] { return NewFile(); });
    ASSERT_THAT(name, EndsWith(".tmp"));
    Kill();
    if (attempt == attempts || !NewFile()) break;
    ASSERT_NE(DeleteFileW(ToWide(Out(name)).c_str()), FALSE);
    program_.Start();
    FindMany(program_);
  }
  ExpectAllWhole();
}

TEST_P(SaveTogether, AKilledCopyLeavesAllFilesButTheOneThatItWrites) {
  const std::string held = StopWhen([this] { return HeldFile(); });
  Kill();
  ExpectAllWhole(held);
  EXPECT_EQ(GetFileAttributesW(L"C:\\tmp.bmp"), INVALID_FILE_ATTRIBUTES);
}

INSTANTIATE_TEST_SUITE_P(EachWay, SaveTogether,
                         ::testing::Values(Batch{"Icons", FrmFindIcon_mnuSaveAll, Bmp, "Icon "},
                                           Batch{"Jpegs", FrmFindIcon_mnuSaveAll2, Jpg, "Images "}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace tarvik::end_to_end
