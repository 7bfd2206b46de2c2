// The dump of the print settings, called in the staged module by a process of its own under a root
// directory of its own.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/bundle/DiagModule.h"
#include "tests/support/ScriptedPrinting.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

struct XmlSettings : ScriptedSettings {
  OSStatus xmlStatus = noErr;
  std::optional<std::string> xml = "<plist/>";

  OSStatus createDataRepresentation(std::optional<std::string>* out) noexcept override {
    *out = xml;
    return xmlStatus;
  }
};

class SettingsDump : public testing::Test {
 protected:
  // Calls the function where the directory is the root. A user who may not change the root may do
  // so in a user namespace.
  void dump(PMPrintSettings settings, const char* name) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      if (chroot(root.path().c_str()) != 0 &&
          (unshare(CLONE_NEWUSER) != 0 || chroot(root.path().c_str()) != 0))
        _exit(2);
      if (chdir("/") != 0) _exit(3);
      function(settings, name);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    ASSERT_NE(WEXITSTATUS(status), 2) << "needs the right to change the root or user namespaces";
    ASSERT_EQ(WEXITSTATUS(status), 0);
  }
  std::vector<std::string> files() const { return root.names(); }
  std::string contents(const std::string& file) const { return contentsOf(root / file); }

  TemporaryFolder root;
  XmlSettings settings;
  decltype(_PDELog_PMPrintSettings_WriteToFile)* function =
      diagnostic<decltype(_PDELog_PMPrintSettings_WriteToFile)>(
          "_PDELog_PMPrintSettings_WriteToFile");
};

TEST_F(SettingsDump, WritesTheDataToTheRootDirectory) {
  dump(&settings, "job");
  EXPECT_EQ(files(), std::vector<std::string>{"LxPDE_job.plist"});
  EXPECT_EQ(contents("LxPDE_job.plist"), "<plist/>");
}

TEST_F(SettingsDump, AnEmptyNameIsAName) {
  dump(&settings, "");
  EXPECT_EQ(files(), std::vector<std::string>{"LxPDE_.plist"});
}

TEST_F(SettingsDump, DoesNothingWithoutAnArgument) {
  dump(nullptr, "job");
  dump(&settings, nullptr);
  dump(nullptr, nullptr);
  EXPECT_TRUE(files().empty());
}

TEST_F(SettingsDump, DoesNothingWithoutData) {
  settings.xml.reset();
  dump(&settings, "job");
  settings = {};
  settings.xmlStatus = kPMGeneralError;
  dump(&settings, "job");
  EXPECT_TRUE(files().empty());
}

TEST_F(SettingsDump, ANameDoesNotLeaveTheRootDirectory) {
  std::filesystem::create_directory(root / "LxPDE_a");
  dump(&settings, "a/b");
  EXPECT_EQ(files(), std::vector<std::string>{"LxPDE_a"});
  EXPECT_TRUE(std::filesystem::is_empty(root / "LxPDE_a"));
}

TEST_F(SettingsDump, AFailureIsIgnored) {
  std::filesystem::create_directory(root / "LxPDE_job.plist");
  dump(&settings, "job");
  EXPECT_EQ(files(), std::vector<std::string>{"LxPDE_job.plist"});
}

}  // namespace
}  // namespace cutline::test
