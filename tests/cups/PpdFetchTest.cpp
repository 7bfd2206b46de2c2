#include <cstdlib>
#include <thread>

#include "cups/PpdFile.h"
#include "tests/cups/ServerTest.h"
#include "tests/support/Command.h"

namespace cutline {
namespace {

using test::outputOf;
using test::TemporaryFolder;

class PpdFetchTest : public test::ServerTest {};

TEST_F(PpdFetchTest, ThePrintersOwnPpdComesFromTheServer) {
  const auto ppd = PpdFile::fetch({}, printer());
  ASSERT_TRUE(ppd) << ppd.error().message;
  EXPECT_TRUE((*ppd)->hasOption("PageSize"));
  EXPECT_FALSE((*ppd)->paperSizes().empty());
}

TEST_F(PpdFetchTest, NothingIsLeftInTheTemporaryFolderAlsoAfterAFailure) {
  const TemporaryFolder folder;
  setenv("TMPDIR", folder.path().c_str(), 1);
  // Each thread reads the environment once.
  std::jthread([] {
    EXPECT_TRUE(PpdFile::fetch({}, printer()));
    EXPECT_FALSE(PpdFile::fetch({}, "nope"));
    EXPECT_FALSE(PpdFile::fetch({"/nowhere/cups.sock", std::nullopt, false}, printer()));
  }).join();
  unsetenv("TMPDIR");
  EXPECT_TRUE(folder.isEmpty());
}

TEST_F(PpdFetchTest, TheServersPpdIsTakenNotALocalFileOfThatName) {
  const TemporaryFolder root;
  root.write("ppd/" + printer() + ".ppd", "not what the server has\n");
  setenv("CUPS_SERVERROOT", root.path().c_str(), 1);
  std::jthread([] { EXPECT_TRUE(PpdFile::fetch({}, printer())); }).join();
  server().enterEnvironment();
}

TEST_F(PpdFetchTest, AnUnknownPrinterAndAQueueWithoutPpdAreToldApart) {
  const auto unknown = PpdFile::fetch({}, "nope");
  ASSERT_FALSE(unknown);
  EXPECT_NE(unknown.error().message.find("has no printer \"nope\""), std::string::npos)
      << unknown.error().message;

  outputOf("lpadmin -p bare -E -v file:///dev/null");
  const auto bare = PpdFile::fetch({}, "bare");
  outputOf("lpadmin -x bare");
  ASSERT_FALSE(bare);
  EXPECT_NE(bare.error().message.find("the printer \"bare\" has no PPD"), std::string::npos)
      << bare.error().message;
}

}  // namespace
}  // namespace cutline
