#include "platform/SaveTargets.h"

#include <windows.h>

#include <gmock/gmock.h>

#include <array>

#include "base/FolderPath.h"
#include "driver/UnixProgram.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik::support {
namespace {

using end_to_end::QuoteForUnix;
using end_to_end::RunUnix;

enum class Kind { Free, File, Link, LinkToNothing, LinkToItself, LinkToFolder, LinkToPipe, SecondName, Folder, Pipe };

constexpr DWORD notHeld = ~DWORD{0};
constexpr DWORD readable = FILE_SHARE_READ;
constexpr DWORD writable = FILE_SHARE_WRITE;
constexpr DWORD removable = FILE_SHARE_DELETE;

struct Row {
  const char* what;
  Kind kind;
  bool readOnly;
  DWORD heldWith;  // the sharing mode of another program that has it open
  bool takes;      // whether a format that refuses read-only files replaces it
  bool takesOverReadOnly;
  DWORD heldTo = GENERIC_READ;  // what the other program does with it
};

// Under Wine a link has the attributes of its target, so a link to a read-only file is read-only.
constexpr std::array rows{
    Row{"nothing", Kind::Free, false, notHeld, true, true},
    Row{"a file", Kind::File, false, notHeld, true, true},
    Row{"a read-only file", Kind::File, true, notHeld, false, true},
    Row{"a link to a file", Kind::Link, false, notHeld, true, true},
    Row{"a link to a read-only file", Kind::Link, true, notHeld, false, true},
    Row{"a link to nothing", Kind::LinkToNothing, false, notHeld, true, true},
    Row{"a link to itself", Kind::LinkToItself, false, notHeld, true, true},
    Row{"a link to a folder", Kind::LinkToFolder, false, notHeld, false, false},
    Row{"a link to a pipe", Kind::LinkToPipe, false, notHeld, false, false},
    Row{"a second name of a file", Kind::SecondName, false, notHeld, true, true},
    Row{"a folder", Kind::Folder, false, notHeld, false, false},
    Row{"a pipe", Kind::Pipe, false, notHeld, false, false},
    Row{"a file held alone", Kind::File, false, 0, false, false},
    Row{"a file held, to be read", Kind::File, false, readable, false, false},
    Row{"a file held, to be written", Kind::File, false, writable, true, true},
    Row{"a file held, to be read and written", Kind::File, false, readable | writable, true, true},
    Row{"a file held, to be removed", Kind::File, false, removable, false, false},
    Row{"a file held, to be read and removed", Kind::File, false, readable | removable, false, false},
    Row{"a file held, to be written and removed", Kind::File, false, writable | removable, true, true},
    Row{"a file held, for all", Kind::File, false, readable | writable | removable, true, true},
    Row{"a read-only file held, to be read and removed", Kind::File, true, readable | removable, false, false},
    Row{"a file that another program writes, for all", Kind::File, false, readable | writable | removable, true, true,
        GENERIC_READ | GENERIC_WRITE},
    Row{"a link to a file held, to be read and written", Kind::Link, false, readable | writable, false, false},
};

// What a file that must not change contains. It is longer than any file that is saved over it.
const std::string& KeptText() {
  static const std::string text = std::string(20'000, 'k') + "kept";
  return text;
}

const Row& RowOf(int number) {
  return rows.at(static_cast<std::size_t>(number) - 1);
}

void WriteKept(const std::string& path) {
  const FileHandle file(CreateFileW(LiteralPath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  const std::string& text = KeptText();
  DWORD written = 0;
  EXPECT_NE(WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr), 0) << path;
}

bool LeadsElsewhere(Kind kind) {
  return kind == Kind::Link || kind == Kind::LinkToFolder || kind == Kind::LinkToPipe || kind == Kind::SecondName;
}

bool IsKeptFolder(Kind kind) {
  return kind == Kind::Folder || kind == Kind::LinkToFolder;
}

void Run(const std::string& command) {
  const auto answer = RunUnix(command);
  EXPECT_EQ(answer.exitCode, 0) << command << ": " << answer.output;
}

std::string Quote(const std::string& path) {
  return QuoteForUnix(ToWide(path));
}

DWORD AttributesOf(const std::string& path) {
  return GetFileAttributesW(LiteralPath(path).c_str());
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  WIN32_FIND_DATAW entry;
  const FindHandle found(FindFirstFileW(LiteralPath(JoinPath(folder, "*")).c_str(), &entry));
  do {
    const std::string name = ToUtf8(entry.cFileName);
    if (name != "." && name != "..") names.push_back(name);
  } while (FindNextFileW(found.get(), &entry) != 0);
  return names;
}

}  // namespace

int SaveTargets::Count() {
  return static_cast<int>(rows.size());
}

std::string SaveTargets::What(int number) {
  return RowOf(number).what;
}

bool SaveTargets::IsFolder(int number) {
  return IsKeptFolder(RowOf(number).kind);
}

bool SaveTargets::TakesAFile(int number, ReadOnlyFile readOnly) {
  return readOnly == ReadOnlyFile::Replaced ? RowOf(number).takesOverReadOnly : RowOf(number).takes;
}

SaveTargets::SaveTargets(std::string folder, std::string elsewhere,
                         const std::function<std::string(int number)>& nameOf)
    : folder_(std::move(folder)), elsewhere_(std::move(elsewhere)) {
  for (int number = 1; number <= Count(); ++number) {
    names_.push_back(nameOf(number));
    Make(number);
  }
}

SaveTargets::~SaveTargets() {
  holders_.clear();
  for (const std::string& folder : {folder_, elsewhere_})
    RunUnix("cd " + Quote(folder) + " && chmod -R u+w . && rm -rf -- *");
}

std::string SaveTargets::Path(int number) const {
  return JoinPath(folder_, Name(number));
}

// What must be kept: the target itself, or the target of a link or of a second name.
std::string SaveTargets::KeptPath(int number) const {
  return LeadsElsewhere(RowOf(number).kind) ? JoinPath(elsewhere_, std::to_string(number)) : Path(number);
}

// The file with the text to be kept.
std::string SaveTargets::KeptFile(int number) const {
  return IsKeptFolder(RowOf(number).kind) ? JoinPath(KeptPath(number), "inside") : KeptPath(number);
}

std::string SaveTargets::Name(int number) const {
  return names_.at(static_cast<std::size_t>(number) - 1);
}

// A target, and what must be kept, in the form of the host system's shell.
std::string SaveTargets::UnixTarget(int number) const {
  return Quote(folder_) + "/'" + Name(number) + '\'';
}
std::string SaveTargets::UnixKeptPath(int number) const {
  return LeadsElsewhere(RowOf(number).kind) ? Quote(elsewhere_) + '/' + std::to_string(number) : UnixTarget(number);
}

void SaveTargets::Make(int number) {
  const Row& row = RowOf(number);
  const std::string path = Path(number);
  const std::string kept = KeptPath(number);
  if (IsKeptFolder(row.kind)) {
    EXPECT_NE(CreateDirectoryW(LiteralPath(kept).c_str(), nullptr), 0);
    WriteKept(KeptFile(number));
  }
  if (row.kind == Kind::File || row.kind == Kind::Link || row.kind == Kind::SecondName) WriteKept(kept);
  if (row.kind == Kind::Pipe || row.kind == Kind::LinkToPipe) Run("mkfifo " + UnixKeptPath(number));
  if (row.kind == Kind::LinkToNothing) Run("ln -s nothing " + UnixTarget(number));
  if (row.kind == Kind::LinkToItself) Run("ln -s '" + Name(number) + "' " + UnixTarget(number));
  if (LeadsElsewhere(row.kind) && row.kind != Kind::SecondName)
    Run("ln -s " + UnixKeptPath(number) + ' ' + UnixTarget(number));
  if (row.kind == Kind::SecondName) {
    EXPECT_NE(CreateHardLinkW(LiteralPath(path).c_str(), LiteralPath(kept).c_str(), nullptr), 0);
  }
  if (row.readOnly) AddAttributes(kept, FILE_ATTRIBUTE_READONLY);
  if (row.heldWith == notHeld) return;
  holders_.emplace_back(
      CreateFileW(LiteralPath(kept).c_str(), row.heldTo, row.heldWith, nullptr, OPEN_EXISTING, 0, nullptr));
  EXPECT_TRUE(holders_.back()) << row.what;
}

void SaveTargets::ExpectSaved(const std::string& start, ReadOnlyFile readOnly) {
  holders_.clear();
  for (int number = 1; number <= Count(); ++number) {
    const Row& row = RowOf(number);
    const std::string path = Path(number);
    if (TakesAFile(number, readOnly)) {
      const std::string saved = ReadAll(path);
      EXPECT_EQ(saved.substr(0, start.size()), start) << row.what;
      EXPECT_FALSE(saved.ends_with("kept")) << row.what << ": the end of the file before";
      EXPECT_EQ(AttributesOf(path) & FILE_ATTRIBUTE_READONLY, 0U) << row.what;
    }
    if (row.kind == Kind::LinkToFolder || row.kind == Kind::LinkToPipe) Run("test -h " + UnixTarget(number));
    if (row.kind == Kind::Pipe || row.kind == Kind::LinkToPipe) {
      Run("test -p " + UnixKeptPath(number));
      continue;
    }
    const bool stays =
        LeadsElsewhere(row.kind) || IsKeptFolder(row.kind) || (row.kind == Kind::File && !TakesAFile(number, readOnly));
    if (!stays) continue;
    EXPECT_TRUE(ReadAll(KeptFile(number)) == KeptText()) << row.what;
    EXPECT_EQ((AttributesOf(KeptPath(number)) & FILE_ATTRIBUTE_READONLY) != 0, row.readOnly) << row.what;
  }
  EXPECT_THAT(NamesIn(folder_), ::testing::UnorderedElementsAreArray(names_));
}

}  // namespace tarvik::support
