// The way of an installation below a prefix, and back: what was there before stays as it was.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

class Prefix : public testing::Test {
 protected:
  Prefix() {
    stage.write("bin/cutline", "program");
    std::filesystem::permissions(stage / "bin/cutline", std::filesystem::perms(0755));
    stage.write("lib/cutline/a.so", "module");
    stage.write("share/applications/cutline.desktop", "[Desktop Entry]\nExec=cutline %F\n");
    stage.write("share/kio/servicemenus/cutline.desktop", "[Desktop Entry]\nExec=cutline %F\n");
  }

  static CommandResult call(const std::string& function) {
    return run(". " + source("scripts/prefix.sh") + " && " + function);
  }
  CommandResult install() const {
    return call("cutline_install " + quoted(stage.path()) + ' ' + quoted(prefix.path()));
  }
  CommandResult uninstall() const { return call("cutline_uninstall " + quoted(prefix.path())); }
  // Every path below the prefix with its mode and, of a file, its contents' sum.
  std::string tree() const {
    return outputOf(
        "cd " + quoted(prefix.path()) +
        " && find . -printf '%P %m\\n' | sort && find . -type f -exec md5sum {} + | sort");
  }

  TemporaryFolder stage;
  TemporaryFolder prefix;
};

TEST_F(Prefix, GetsTheFilesWithTheirModes) {
  const CommandResult result = install();
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(contentsOf(prefix / "lib/cutline/a.so"), "module");
  EXPECT_EQ(run(prefix / "bin/cutline").status, 127) << "started, and has no program to run";
}

TEST_F(Prefix, IsAsItWasAfterTheWayBack) {
  prefix.write("bin/other", "kept");
  prefix.write("share/doc/other", "kept");
  std::filesystem::permissions(prefix / "bin", std::filesystem::perms(0750));
  const std::string before = tree();
  ASSERT_EQ(install().status, 0);
  EXPECT_NE(tree(), before);
  const CommandResult result = uninstall();
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(tree(), before);
}

TEST_F(Prefix, KeepsWhatOthersPutIntoItsFolders) {
  ASSERT_EQ(install().status, 0);
  prefix.write("lib/cutline/plugins/mine", "kept");
  ASSERT_EQ(uninstall().status, 0);
  EXPECT_EQ(contentsOf(prefix / "lib/cutline/plugins/mine"), "kept");
  EXPECT_FALSE(std::filesystem::exists(prefix / "lib/cutline/a.so"));
}

TEST_F(Prefix, LosesWhatANewerInstallationLacks) {
  ASSERT_EQ(install().status, 0);
  std::filesystem::remove(stage / "lib/cutline/a.so");
  stage.write("lib/cutline/b.so", "newer");
  ASSERT_EQ(install().status, 0);
  EXPECT_FALSE(std::filesystem::exists(prefix / "lib/cutline/a.so"));
  EXPECT_EQ(contentsOf(prefix / "lib/cutline/b.so"), "newer");
  ASSERT_EQ(uninstall().status, 0);
  EXPECT_TRUE(prefix.isEmpty());
}

TEST_F(Prefix, IsLeftAloneWhereNothingWasInstalled) {
  prefix.write("bin/cutline", "of a package");
  const CommandResult result = uninstall();
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.errors.find("nothing was installed"), std::string::npos) << result.errors;
  EXPECT_EQ(contentsOf(prefix / "bin/cutline"), "of a package");
}

TEST_F(Prefix, IsNotLeftByAManifest) {
  const TemporaryFolder other;
  other.write("file", "kept");
  for (const std::string& path :
       {"../" + other.path().substr(other.path().rfind('/') + 1) + "/file", other / "file"}) {
    prefix.write("lib/cutline/installed", path + "\n");
    EXPECT_EQ(uninstall().status, 1) << path;
    EXPECT_EQ(contentsOf(other / "file"), "kept") << path;
  }
}

TEST_F(Prefix, IsWhereMenusFindTheProgram) {
  ASSERT_EQ(call("cutline_name_program " + quoted(stage.path()) + " /home/a/.local").status, 0);
  for (const char* menu :
       {"share/applications/cutline.desktop", "share/kio/servicemenus/cutline.desktop"})
    EXPECT_EQ(contentsOf(stage / menu),
              "[Desktop Entry]\nExec=\"/home/a/.local/bin/cutline\" %F\n");
}

TEST_F(Prefix, IsWhereSessionsFindTheService) {
  stage.write("share/systemd/user/cutline-ask.service",
              "[Service]\nExecStart=\"/stage/lib/cutline/cutline-ask\"\nExecReload=/bin/kill\n");
  stage.write("etc/xdg/autostart/cutline-ask.desktop", "Exec=\"/stage/lib/cutline/cutline-ask\"\n");
  ASSERT_EQ(call("cutline_name_program " + quoted(stage.path()) + " '/home/a b/.local'").status, 0);
  EXPECT_EQ(contentsOf(stage / "share/systemd/user/cutline-ask.service"),
            "[Service]\nExecStart=\"/home/a b/.local/lib/cutline/cutline-ask\"\n"
            "ExecReload=/bin/kill\n");
  EXPECT_EQ(contentsOf(stage / "etc/xdg/autostart/cutline-ask.desktop"),
            "Exec=\"/home/a b/.local/lib/cutline/cutline-ask\"\n");
}

// Of a desktop that opens one kind of the two.
TEST_F(Prefix, KeepsWhatOpensDocumentsToday) {
  stage.write("share/applications/cutline.desktop", "MimeType=image/png;text/plain;\n");
  const TemporaryFolder tools;
  std::filesystem::permissions(
      tools.write("gio", "#!/bin/sh\n[ $2 != image/png ] || echo 'Default for: viewer.desktop'\n"),
      std::filesystem::perms(0755));
  const std::string keep = "PATH=" + tools.path() + ":$PATH; cutline_keep_defaults " +
                           quoted(stage.path()) + ' ' + quoted(prefix.path());
  const std::string list = "share/applications/mimeapps.list";
  ASSERT_EQ(call(keep).status, 0);
  EXPECT_EQ(contentsOf(stage / list), "[Default Applications]\nimage/png=viewer.desktop\n");

  std::filesystem::remove(stage / list);
  prefix.write(list, "the user's own");
  ASSERT_EQ(call(keep).status, 0);
  EXPECT_FALSE(std::filesystem::exists(stage / list));
}

TEST_F(Prefix, IsAPathThatMenusCanName) {
  EXPECT_EQ(call("HOME=/home/a; cutline_prefix").output, "/home/a/.local\n");
  EXPECT_EQ(call("cutline_prefix /opt/../usr/local/").output, "/usr/local\n");
  for (const char* path : {"/", "'/a\"b'", "'/a$b'", "/a%b", "'/a|b'", "$'/a\\nb'"})
    EXPECT_EQ(call(std::string("cutline_prefix ") + path).status, 1) << path;
}

TEST(RunCommand, KnowsItsWords) {
  EXPECT_EQ(run(source("run --help")).output.find("Usage: ./run"), 0U);
  EXPECT_EQ(run(source("run --instal")).status, 2);
  EXPECT_EQ(run(source("run --uninstall a b")).status, 2);
  const TemporaryFolder empty;
  EXPECT_EQ(run(source("run --uninstall ") + empty.path()).status, 1);
}

}  // namespace
}  // namespace cutline::test
