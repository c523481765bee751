// What "Help, Contents" of the real program passes to a browser of this machine.

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "driver/SeenFiles.h"
#include "driver/UnixProgram.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;

class Guide : public EndToEnd {
 protected:
  // The arguments that the browser got; the script names the file in which they are logged.
  static std::string OpenedAddress() { return RunUnix(R"(cat "$TARVIK_OPENED")").output; }
};

TEST_F(Guide, OpensInABrowserOfThisMachine) {
  fs::copy(BuiltFile(TARVIK_GUIDE), fs::path(ToWide(home_.In("guide"))), fs::copy_options::recursive);
  program_.Start();
  program_.Window().Post(WM_COMMAND, FrmFindIcon_MnuContent);
  EXPECT_TRUE(Eventually([] { return !OpenedAddress().empty(); }));
  EXPECT_THAT(OpenedAddress(), EndsWith("/guide/guide-eng.html\n"));
  EXPECT_FALSE(program_.FindBox());
}

}  // namespace
}  // namespace tarvik::end_to_end
