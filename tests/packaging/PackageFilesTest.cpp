// Each file that is installed is in one Debian package, and the scripts that build and check these
// know their words.
#include <fnmatch.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <vector>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

// What the packages' lists name, one entry for each line; a folder stands for all that is in it.
std::vector<std::string> packagedPatterns() {
  std::istringstream in(outputOf("cat " + source("packaging/debian/") + "*.install"));
  std::vector<std::string> patterns;
  for (std::string line; std::getline(in, line);)
    patterns.push_back(line.substr(0, line.find(' ')));
  return patterns;
}

bool covers(const std::string& pattern, const std::string& path) {
  return fnmatch(pattern.c_str(), path.c_str(), FNM_PATHNAME) == 0 ||
         path.starts_with(pattern + '/');
}

TEST(PackageFiles, AreWhatIsInstalled) {
  const TemporaryFolder folder;
  for (const std::string which : {"", "--component portal "})
    outputOf(CUTLINE_CMAKE " --install " CUTLINE_BUILD_DIR " " + which + "--prefix " +
             folder / "usr");
  const std::vector<std::string> patterns = packagedPatterns();
  std::vector<int> uses(patterns.size());
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
    if (entry.is_directory()) continue;
    std::string path = entry.path().string().substr(folder.path().size() + 1);
    // A package's settings are the system's, not its prefix's.
    if (path.starts_with("usr/etc/")) path = path.substr(std::string("usr/").size());
    int packages = 0;
    for (std::size_t index = 0; index < patterns.size(); ++index)
      if (covers(patterns[index], path)) ++packages, ++uses[index];
    EXPECT_EQ(packages, 1) << path;
  }
  for (std::size_t index = 0; index < patterns.size(); ++index)
    EXPECT_GT(uses[index], 0) << patterns[index] << " names nothing";
}

// Who wants our dialog in other programs asks for it.
TEST(PackageFiles, OfThePortalAreNotForEverybody) {
  const TemporaryFolder folder;
  const std::string install = CUTLINE_CMAKE " --install " CUTLINE_BUILD_DIR " ";
  outputOf(install + "--prefix " + folder / "all");
  EXPECT_EQ(outputOf("find " + folder / "all" + " -name '*portal*'"), "");
  outputOf(install + "--component portal --prefix " + folder / "portal");
  const std::string program = folder / "portal/libexec/cutline-portal";
  EXPECT_TRUE(std::filesystem::exists(program));
  const std::string service = contentsOf(
      folder / "portal/share/dbus-1/services/org.freedesktop.impl.portal.desktop.cutline.service");
  EXPECT_NE(service.find("\nExec=" + program + '\n'), std::string::npos) << service;
  EXPECT_EQ(contentsOf(folder / "portal/share/xdg-desktop-portal/portals/cutline.portal"),
            contentsOf(source("packaging/portal/cutline.portal")));
}

TEST(PackageFiles, HaveTheProgramsVersion) {
  const std::string version = outputOf(built("bin/cutline") + " --version");
  const std::string number = version.substr(version.find(' ') + 1, version.find('\n') - 8);
  EXPECT_TRUE(
      contentsOf(source("packaging/debian/changelog")).starts_with("cutline (" + number + ")"))
      << number;
}

TEST(PackageScripts, KnowTheirWords) {
  for (const std::string script : {"scripts/build-package", "scripts/check-package"}) {
    const CommandResult help = run(source(script) + " --help");
    EXPECT_EQ(help.status, 0) << script;
    EXPECT_EQ(help.output.find("Usage: " + script), 0U) << help.output;
    EXPECT_EQ(run(source(script) + " --no-such-word").status, 2) << script;
  }
}

TEST(PackageScripts, OverwriteNothing) {
  const TemporaryFolder folder;
  folder.write("cutline/kept", "kept");
  const CommandResult result = run(source("scripts/build-package ") + folder.path());
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.errors.find("is there already"), std::string::npos) << result.errors;
  EXPECT_EQ(contentsOf(folder / "cutline/kept"), "kept");
}

}  // namespace
}  // namespace cutline::test
