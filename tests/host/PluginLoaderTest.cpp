#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "host/core/PluginLoader.h"
#include "tests/host/TestCode.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

namespace fs = std::filesystem;

class PluginLoaderTest : public testing::Test {
 protected:
  fs::path makeBundle(const std::string& module, const std::string& name = "Test") {
    return test::makeBundle(mDirectory.path(), module, name);
  }

  static void expectRefused(const fs::path& bundle, const std::string& reason) {
    const auto loaded = LoadedBundle::load(bundle.string());
    ASSERT_FALSE(loaded) << "loaded in spite of: " << reason;
    EXPECT_NE(loaded.error().message.find(reason), std::string::npos) << loaded.error().message;
    EXPECT_NE(loaded.error().message.find(bundle.parent_path().string()), std::string::npos)
        << "the path is missing: " << loaded.error().message;
  }

  test::TemporaryFolder mDirectory;
};

TEST_F(PluginLoaderTest, LoadsABundleAndMakesItsPrincipalObject) {
  const auto loaded = LoadedBundle::load(makeBundle("GoodPlugIn").string());
  ASSERT_TRUE(loaded) << loaded.error().message;
  EXPECT_EQ((*loaded)->name(), "Test.plugin");
  EXPECT_EQ((*loaded)->identifier(), "org.cutline.Test");
  const auto first = (*loaded)->makePrincipalObject();
  const auto second = (*loaded)->makePrincipalObject();
  EXPECT_NE(first, nullptr);
  EXPECT_NE(first, second);
}

TEST_F(PluginLoaderTest, ThePrincipalObjectKeepsItsBundle) {
  std::shared_ptr<PrintDialogPlugIn> plugIn;
  {
    const auto loaded = LoadedBundle::load(makeBundle("GoodPlugIn").string());
    ASSERT_TRUE(loaded);
    plugIn = (*loaded)->makePrincipalObject();
  }
  EXPECT_EQ(plugIn->PDEPanelsForType("", nullptr), nullptr);
}

TEST_F(PluginLoaderTest, RefusesWhateverOthersCanWrite) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  for (const fs::path& part :
       {bundle, bundle / "Contents", bundle / "Contents/Info.plist", bundle / "Contents/Resources",
        test::codeOf(bundle).parent_path(), test::codeOf(bundle), bundle.parent_path()}) {
    for (const fs::perms others : {fs::perms::others_write, fs::perms::group_write}) {
      SCOPED_TRACE(part);
      fs::permissions(part, others, fs::perm_options::add);
      expectRefused(bundle, "can be changed by other users");
      fs::permissions(part, others, fs::perm_options::remove);
    }
  }
  EXPECT_TRUE(LoadedBundle::load(bundle.string()));
}

TEST_F(PluginLoaderTest, RefusesSymbolicLinks) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  const test::TemporaryFolder elsewhere;
  for (const fs::path& part : {test::codeOf(bundle), test::codeOf(bundle).parent_path(),
                               bundle / "Contents/Info.plist", bundle / "Contents", bundle}) {
    SCOPED_TRACE(part);
    const fs::path moved = elsewhere.path() + "/moved";
    fs::rename(part, moved);
    fs::create_symlink(moved, part);
    EXPECT_FALSE(LoadedBundle::load(bundle.string()));
    fs::remove(part);
    fs::rename(moved, part);
  }
  EXPECT_TRUE(LoadedBundle::load(bundle.string()));
}

// Only root can give a file away; a plain user can refer to files of root, which are trusted.
TEST_F(PluginLoaderTest, RefusesWhatBelongsToAStranger) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  const int given = ::chown(test::codeOf(bundle).c_str(), 12345, static_cast<gid_t>(-1));
  if (geteuid() != 0) {
    EXPECT_NE(given, 0);
    EXPECT_TRUE(LoadedBundle::load(bundle.string()));
    return;
  }
  ASSERT_EQ(given, 0);
  expectRefused(bundle, "belongs to another user");
}

TEST_F(PluginLoaderTest, RefusesAnotherAbi) {
  expectRefused(makeBundle("WrongAbiPlugIn"), "another version");
}

TEST_F(PluginLoaderTest, RefusesCodeWithoutThePrincipalClass) {
  expectRefused(makeBundle("PlainModule"), "no principal class TestPlugIn");
}

TEST_F(PluginLoaderTest, RefusesWhatIsNoBundle) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  std::ofstream(bundle / "Contents/Info.plist") << "no property list";
  expectRefused(bundle, "Info.plist is damaged");
  fs::remove(bundle / "Contents/Info.plist");
  expectRefused(bundle, "Info.plist");
  fs::remove_all(bundle);
  expectRefused(bundle, "No such file");
}

TEST_F(PluginLoaderTest, RefusesCodeThatIsNoLibrary) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  std::ofstream(test::codeOf(bundle)) << "text";
  expectRefused(bundle, "Test.plugin");
}

// Bytes that are promised and missing would end the program at their first touch.
TEST_F(PluginLoaderTest, RefusesCodeThatIsNotWhole) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  const auto whole = fs::file_size(test::codeOf(bundle));
  for (const std::uintmax_t size : {whole - 1, whole / 2, whole / 4, std::uintmax_t{4096}}) {
    fs::resize_file(test::codeOf(bundle), size);
    expectRefused(bundle, "is not whole");
  }
  fs::resize_file(test::codeOf(bundle), 32);
  expectRefused(bundle, "is no code for this machine");
}

TEST_F(PluginLoaderTest, RefusesABundleBelowAFolderThatEverybodyCanChange) {
  const fs::path bundle = makeBundle("GoodPlugIn");
  const fs::path deep = mDirectory / "open/own";
  fs::create_directories(deep);
  fs::rename(bundle, deep / "Test.plugin");
  fs::permissions(deep.parent_path(), fs::perms::others_write, fs::perm_options::add);
  const auto loaded = LoadedBundle::load((deep / "Test.plugin").string());
  ASSERT_FALSE(loaded);
  EXPECT_EQ(loaded.error().message,
            mDirectory / "open" + " can be changed by everybody; take that away (chmod o-w)");
  fs::permissions(deep.parent_path(), fs::perms::sticky_bit, fs::perm_options::add);
  EXPECT_TRUE(LoadedBundle::load((deep / "Test.plugin").string()));
}

TEST_F(PluginLoaderTest, TwoBundlesNeverTakeEachOthersCode) {
  const auto good = LoadedBundle::load(makeBundle("GoodPlugIn", "First").string());
  const auto refusing = LoadedBundle::load(makeBundle("RefusingPlugIn", "Second").string());
  ASSERT_TRUE(good);
  ASSERT_TRUE(refusing);
  EXPECT_NE((*good)->makePrincipalObject(), nullptr);
  EXPECT_EQ((*refusing)->makePrincipalObject(), nullptr);
}

TEST_F(PluginLoaderTest, APpdSelectsByTheBundlesNameOnly) {
  test::TestPrinter printer = test::fullTapePrinter();
  EXPECT_EQ(PluginLoader::bundleNamesForPpd(*test::ppdFor(printer)),
            std::vector<std::string>{"CutOptions.plugin"});
  printer.extension = "/anywhere/else/Test.plugin";
  EXPECT_EQ(PluginLoader::bundleNamesForPpd(*test::ppdFor(printer)),
            std::vector<std::string>{"Test.plugin"});
  EXPECT_TRUE(PluginLoader::bundleNamesForPpd(*test::ppdFor(test::TestPrinter())).empty());
}

TEST_F(PluginLoaderTest, FindsBundlesInTheTrustedDirectoriesOnly) {
  makeBundle("GoodPlugIn");
  const test::TemporaryFolder other;
  PluginLoader loader({other.path(), mDirectory.path()});
  EXPECT_TRUE(loader.bundleNamed("Test.plugin"));
  EXPECT_FALSE(loader.bundleNamed("Missing.plugin"));
  for (const char* name : {"../Test.plugin", "", ".plugin", "..", "Test.so", "/Test.plugin"})
    EXPECT_FALSE(loader.bundleNamed(name)) << name;
}

TEST_F(PluginLoaderTest, LoadsEachBundleOnce) {
  makeBundle("GoodPlugIn");
  PluginLoader loader({mDirectory.path()});
  EXPECT_EQ(*loader.bundleNamed("Test.plugin"), *loader.bundleNamed("Test.plugin"));
}

TEST_F(PluginLoaderTest, TellsWhyAPrinterGetsNoPanel) {
  makeBundle("RefusingPlugIn");
  test::TestPrinter printer = test::fullTapePrinter();
  PluginLoader loader({mDirectory.path()});
  EXPECT_TRUE(loader.plugInsForPpd(*test::ppdFor(printer)).empty());
  EXPECT_EQ(loader.takeProblems().size(), 1U);
  printer.extension = "Test.plugin";
  EXPECT_TRUE(loader.plugInsForPpd(*test::ppdFor(printer)).empty());
  const std::vector<std::string> problems = loader.takeProblems();
  ASSERT_EQ(problems.size(), 1U);
  EXPECT_NE(problems.front().find("refuses"), std::string::npos);
  EXPECT_TRUE(loader.takeProblems().empty());
}

}  // namespace
}  // namespace cutline
