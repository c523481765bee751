#include "platform/SiblingFile.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "search/icons/Folders.h"

namespace tarvik {
namespace {

using support::ReadAll;
using support::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SiblingFileTest : public ::testing::Test {
 protected:
  std::vector<std::string> Names() const { return Folders().Files(folder.Path(), "*.*"); }

  const TemporaryFolder folder;
  const std::wstring path = ToWide(folder.In("a.ico"));
};

// As when the process is killed: its handles are closed, and nothing else happens.
TEST_F(SiblingFileTest, GoesAwayWithItsHandleUnlessItWasMoved) {
  std::optional<SiblingFile> sibling(path);
  ASSERT_TRUE(*sibling);
  EXPECT_EQ(Names().size(), 1U);
  sibling.reset();
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(SiblingFileTest, TakesThePlaceOfAFileAndStays) {
  folder.MakeFile("a.ico", "former");
  SiblingFile sibling(path);
  FileHandle file = sibling.MoveTo(path);
  ASSERT_TRUE(file);
  EXPECT_THAT(Names(), ElementsAre("a.ico"));
  DWORD written = 0;
  EXPECT_NE(WriteFile(file.get(), "new", 3, &written, nullptr), 0);
  file.reset();
  EXPECT_EQ(ReadAll(folder.In("a.ico")), "new");
}

TEST_F(SiblingFileTest, GoesAwayAfterAMoveThatFailed) {
  folder.MakeFolder("a.ico");
  {
    SiblingFile sibling(path);
    ASSERT_TRUE(sibling);
    EXPECT_FALSE(sibling.MoveTo(path));
  }
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(SiblingFileTest, TakesANameThatIsFree) {
  const SiblingFile first(path);
  const SiblingFile second(path);
  EXPECT_TRUE(first);
  EXPECT_TRUE(second);
  EXPECT_EQ(Names().size(), 2U);
}

TEST_F(SiblingFileTest, IsNotMadeWhereThereIsNoFolder) {
  EXPECT_FALSE(SiblingFile(ToWide(folder.In("none\\a.ico"))));
}

}  // namespace
}  // namespace tarvik
