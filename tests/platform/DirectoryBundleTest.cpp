#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <optional>

#include "plain/PlainToolkit.h"
#include "platform/lib/DirectoryBundle.h"
#include "tests/platform/ToolkitScope.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {
namespace {

const std::optional<std::string> kNone;

class DirectoryBundleTest : public testing::Test {
 protected:
  // A bundle opened by a user of this language.
  std::shared_ptr<Bundle> openFor(const std::string& lang) const {
    const test::ScopedEnvironment environment(test::languageEnvironment({{"LANG", lang}}));
    return bundle.open();
  }

  test::TemporaryBundle bundle;
};

class BundlePictures : public DirectoryBundleTest {
 protected:
  // Reads pictures of two kinds that no other toolkit here reads.
  class RareToolkit : public PlainToolkit {
    std::optional<std::string> imageFileType(std::size_t index) const noexcept override {
      constexpr std::array kTypes = {"eps", "tiff"};
      return index < kTypes.size() ? std::optional<std::string>(kTypes[index]) : std::nullopt;
    }
  };
  std::string file(const std::string& name) const { return (bundle.resources() / name).string(); }

  PlainToolkit toolkit;
  ToolkitScope scope{&toolkit};
};

TEST_F(DirectoryBundleTest, TellsPathIdentifierAndPrincipalClass) {
  const auto opened = bundle.open();
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->bundlePath(), bundle.path());
  EXPECT_EQ(opened->bundleIdentifier(), "org.cutline.Test");
  EXPECT_EQ(opened->principalClassName(), "TestPlugIn");
}

TEST_F(DirectoryBundleTest, AMissingOrDamagedInfoIsNoBundle) {
  EXPECT_FALSE(DirectoryBundle::open(bundle.path() + "/nowhere"));
  bundle.writePropertyList("Info.plist", "<array/>");
  EXPECT_FALSE(bundle.open());
  bundle.write("Info.plist", "<plist><dict>");
  EXPECT_FALSE(bundle.open());
}

TEST_F(DirectoryBundleTest, EntriesOfAnotherKindCountAsAbsent) {
  bundle.writePropertyList("Info.plist",
                           "<dict><key>CFBundleIdentifier</key><integer>1</integer></dict>");
  const auto opened = bundle.open();
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->bundleIdentifier(), "");
  EXPECT_EQ(opened->principalClassName(), "");
}

TEST_F(DirectoryBundleTest, AnInfoThatIsAPipeDoesNotBlock) {
  const auto info = bundle.path() + "/Contents/Info.plist";
  std::filesystem::remove(info);
  ASSERT_EQ(mkfifo(info.c_str(), 0600), 0);
  EXPECT_FALSE(bundle.open());
}

TEST_F(DirectoryBundleTest, LooksKeysUpInTheUsersLanguage) {
  bundle.writeStrings("en", {{"cut", "Cut"}});
  bundle.writeStrings("de", {{"cut", "Schneiden"}});
  EXPECT_EQ(openFor("de_AT.UTF-8")->localizedStringForKey("cut", kNone, kNone), "Schneiden");
  EXPECT_EQ(openFor("fr")->localizedStringForKey("cut", kNone, kNone), "Cut");
}

TEST_F(DirectoryBundleTest, AnEditorsMarkBeforeATableIsNoHindrance) {
  bundle.write("Resources/en.lproj/Localizable.strings",
               "\xEF\xBB\xBF<plist><dict><key>cut</key><string>Cut</string></dict></plist>"
               "<!-- by hand -->");
  EXPECT_EQ(openFor("en")->localizedStringForKey("cut", kNone, kNone), "Cut");
}

TEST_F(DirectoryBundleTest, ATerritorysFolderComesBeforeItsLanguages) {
  bundle.writeStrings("zh", {{"cut", "general"}});
  bundle.writeStrings("zh-Hant", {{"cut", "traditional"}});
  EXPECT_EQ(openFor("zh_TW")->localizedStringForKey("cut", kNone, kNone), "traditional");
  EXPECT_EQ(openFor("zh_CN")->localizedStringForKey("cut", kNone, kNone), "general");
}

TEST_F(DirectoryBundleTest, AKeyMissingInTheLanguageFallsBackToEnglish) {
  bundle.writeStrings("en", {{"cut", "Cut"}, {"mirror", "Mirror"}});
  bundle.writeStrings("de", {{"cut", "Schneiden"}});
  EXPECT_EQ(openFor("de")->localizedStringForKey("mirror", kNone, kNone), "Mirror");
}

TEST_F(DirectoryBundleTest, ADamagedTableIsPassedOver) {
  bundle.writeStrings("en", {{"cut", "Cut"}});
  bundle.write("Resources/de.lproj/Localizable.strings", "\"cut\" = \"Schneiden\";");
  EXPECT_EQ(openFor("de")->localizedStringForKey("cut", kNone, kNone), "Cut");
}

TEST_F(DirectoryBundleTest, AKeyThatIsNowhereGivesTheValueOrItself) {
  const auto opened = bundle.open();
  EXPECT_EQ(opened->localizedStringForKey("cut", kNone, kNone), "cut");
  EXPECT_EQ(opened->localizedStringForKey("cut", "", kNone), "cut");
  EXPECT_EQ(opened->localizedStringForKey("cut", "Cutting", kNone), "Cutting");
}

TEST_F(DirectoryBundleTest, AnEmptyTextIsATextAndAnEntryOfAnotherKindIsNone) {
  bundle.writePropertyList("Resources/en.lproj/Localizable.strings",
                           "<dict><key>a</key><string/><key>b</key><integer>1</integer></dict>");
  const auto opened = bundle.open();
  EXPECT_EQ(opened->localizedStringForKey("a", "value", kNone), "");
  EXPECT_EQ(opened->localizedStringForKey("b", "value", kNone), "value");
}

TEST_F(DirectoryBundleTest, ReadsOtherTablesByName) {
  bundle.writeStrings("en", {{"cut", "Cut"}});
  bundle.writeStrings("en", {{"cut", "Snip"}}, "Other");
  const auto opened = bundle.open();
  EXPECT_EQ(opened->localizedStringForKey("cut", kNone, "Other"), "Snip");
  EXPECT_EQ(opened->localizedStringForKey("cut", kNone, kNone), "Cut");
}

TEST_F(DirectoryBundleTest, ATablesNameCannotLeadOutOfItsFolder) {
  bundle.writeStrings("en", {{"cut", "Snip"}}, "Other");
  bundle.writeStrings("de", {});
  const auto opened = openFor("de");
  EXPECT_EQ(opened->localizedStringForKey("cut", kNone, "../en.lproj/Other"), "cut");
}

TEST_F(BundlePictures, AreFoundWithAndWithoutExtension) {
  bundle.write("Resources/Tape.svg", "<svg/>");
  bundle.write("Resources/Roll.png", "png");
  const auto opened = bundle.open();
  const auto svg = file("Tape.svg");
  EXPECT_EQ(opened->pathForImageResource("Tape"), svg);
  EXPECT_EQ(opened->pathForImageResource("Tape.svg"), svg);
  EXPECT_EQ(opened->pathForImageResource("Roll"), file("Roll.png"));
}

TEST_F(BundlePictures, AVectorPictureComesBeforeItsBitmap) {
  bundle.write("Resources/Tape.png", "png");
  bundle.write("Resources/Tape.svg", "<svg/>");
  EXPECT_EQ(bundle.open()->pathForImageResource("Tape"), file("Tape.svg"));
}

TEST_F(BundlePictures, AreThoseThatTheToolkitReadsInItsOrder) {
  for (const char* name : {"Tape.svg", "Tape.tiff", "Roll.eps", "Roll.tiff", "Mark.png"}) {
    bundle.write(std::string("Resources/") + name, "picture");
  }
  RareToolkit rare;
  const ToolkitScope rareScope(&rare);
  const auto opened = bundle.open();
  EXPECT_EQ(opened->pathForImageResource("Tape"), file("Tape.tiff"));
  EXPECT_EQ(opened->pathForImageResource("Roll"), file("Roll.eps"));
  EXPECT_FALSE(opened->pathForImageResource("Mark"));
  EXPECT_EQ(opened->pathForImageResource("Mark.png"), file("Mark.png"));
}

TEST_F(BundlePictures, AreFoundByTheirWholeNameAloneWhereNoToolkitReadsAny) {
  bundle.write("Resources/Tape.svg", "<svg/>");
  const ToolkitScope none(nullptr);
  EXPECT_FALSE(bundle.open()->pathForImageResource("Tape"));
  EXPECT_EQ(bundle.open()->pathForImageResource("Tape.svg"), file("Tape.svg"));
}

TEST_F(BundlePictures, ANameThatIsNoPictureFindsNothing) {
  bundle.write("Resources/Tape.svg", "<svg/>");
  bundle.write("Resources/inner/Tape.svg", "<svg/>");
  bundle.write("secret.png", "png");
  const auto opened = bundle.open();
  const std::string names[] = {
      "Absent",    "",           ".",     "..",    "inner",        "Tap",
      "../secret", "inner/Tape", "/Tape", "Tape/", {"Tape\0x", 6}, {"Tape.svg\0", 9}};
  for (const std::string& name : names) EXPECT_FALSE(opened->pathForImageResource(name)) << name;
}

}  // namespace
}  // namespace cutline
