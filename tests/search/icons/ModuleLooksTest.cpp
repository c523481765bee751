#include "search/icons/ModuleLooks.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "search/icons/Modules.h"
#include "support/BytesInMemory.h"

namespace tarvik {
namespace {

using support::BytesInMemory;
using support::MakeModule;
using support::PlainIcons;
using Bytes = std::vector<std::byte>;

TEST(IsModuleName, IsTrueForFourEndingsInAnyCase) {
  for (const char* name : {"a.icl", "C:\\B\\A.EXE", "a.Dll", "a.ocX", ".icl"}) EXPECT_TRUE(IsModuleName(name)) << name;
  for (const char* name : {"", "icl", "a.ico", "a.icl.ico", "a.icll", "a.fon", "aicl", "dll", "a.exe "}) {
    EXPECT_FALSE(IsModuleName(name)) << name;
  }
}

// Files by path; counts how often each is opened.
class OpenedFiles {
 public:
  void Put(const std::string& path, Bytes bytes, std::uint64_t written = 0) {
    files_[path] = {std::move(bytes), written};
  }
  FileStamp StampOf(const std::string& path) { return {files_[path].bytes.size(), files_[path].written}; }
  ModuleLooks::Open Opener() {
    return [this](const std::string& path) {
      ++opened;
      auto file = std::make_unique<BytesInMemory>(files_[path].bytes);
      file->written = files_[path].written;
      return file;
    };
  }
  int CountBy(ModuleLooks& looks, const std::string& path) {
    return looks.Of(path, StampOf(path), Opener()).IconCount();
  }

  int opened = 0;

 private:
  struct File {
    Bytes bytes;
    std::uint64_t written = 0;
  };
  std::map<std::string, File> files_;
};

TEST(ModuleLooks, OpenAFileOnceAsLongAsItStaysAsItIs) {
  OpenedFiles files;
  ModuleLooks looks;
  files.Put("a.icl", MakeModule(PlainIcons(3)));
  EXPECT_EQ(files.CountBy(looks, "a.icl"), 3);
  EXPECT_EQ(files.CountBy(looks, "a.icl"), 3);
  EXPECT_EQ(files.opened, 1);
  files.Put("a.icl", MakeModule(PlainIcons(3)), 1);
  EXPECT_EQ(files.CountBy(looks, "a.icl"), 3);
  EXPECT_EQ(files.opened, 2) << "of another time";
  files.Put("a.icl", MakeModule(PlainIcons(9)), 1);
  EXPECT_EQ(files.CountBy(looks, "a.icl"), 9);
  EXPECT_EQ(files.opened, 3) << "of another size";
}

TEST(ModuleLooks, RememberAllFilesWithoutIcons) {
  OpenedFiles files;
  ModuleLooks looks;
  for (const char* path : {"a.dll", "b.dll", "c.dll"}) files.Put(path, Bytes(100));
  files.Put("icons.icl", MakeModule(PlainIcons(2)));
  for (int round = 0; round < 3; ++round) {
    for (const char* path : {"a.dll", "b.dll", "c.dll"}) EXPECT_EQ(files.CountBy(looks, path), 0);
    EXPECT_EQ(files.CountBy(looks, "icons.icl"), 2);
  }
  EXPECT_EQ(files.opened, 3 + 1) << "the last one with icons is kept while others are known to have none";
  files.Put("b.dll", MakeModule(PlainIcons(4)));
  EXPECT_EQ(files.CountBy(looks, "b.dll"), 4);
  EXPECT_EQ(files.CountBy(looks, "icons.icl"), 2);
  EXPECT_EQ(files.CountBy(looks, "b.dll"), 4);
}

TEST(ModuleLooks, AreNotRememberedWhereALinkLeadsElsewhere) {
  OpenedFiles files;
  ModuleLooks looks;
  const FileStamp link{.size = 0, .written = 5};
  files.Put("link.dll", Bytes(100));
  files.Put("other.dll", Bytes(100));
  EXPECT_EQ(looks.Of("link.dll", link, files.Opener()).IconCount(), 0);
  EXPECT_EQ(files.CountBy(looks, "other.dll"), 0);
  files.Put("link.dll", MakeModule(PlainIcons(1)));
  EXPECT_EQ(looks.Of("link.dll", link, files.Opener()).IconCount(), 1);
}

TEST(ModuleLooks, AreOfTheFileThatIsAskedFor) {
  OpenedFiles files;
  ModuleLooks looks;
  files.Put("one.icl", MakeModule(PlainIcons(1)));
  files.Put("three.icl", MakeModule(PlainIcons(3)));
  EXPECT_EQ(files.CountBy(looks, "one.icl"), 1);
  EXPECT_EQ(files.CountBy(looks, "three.icl"), 3);
  EXPECT_EQ(files.CountBy(looks, "one.icl"), 1);
}

}  // namespace
}  // namespace tarvik
