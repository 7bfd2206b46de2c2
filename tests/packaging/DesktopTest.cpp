// What makes the program known to a desktop: valid, whole in every language, and of one mind.
#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "tests/support/Command.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

constexpr char kEntry[] = "packaging/desktop/cutline.desktop";
constexpr char kServiceMenu[] = "packaging/desktop/cutline-servicemenu.desktop";
constexpr char kMetainfo[] = "packaging/desktop/alt.cutline.Cutline.metainfo.xml";
constexpr const char* kOtherLanguages[] = {"de", "es", "fr", "it",    "ja",
                                           "ko", "nl", "pt", "zh_CN", "zh_TW"};

CommandResult inSources(const std::string& commandLine) {
  return run("cd " + quoted(source("")) + " && " + commandLine);
}

// The parts of a text, in order; empty ones are left out.
std::vector<std::string> sortedParts(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);)
    if (!part.empty()) parts.push_back(part);
  std::sort(parts.begin(), parts.end());
  return parts;
}

// The value of a key of a desktop file, where it stands first.
std::string valueOf(const std::string& path, const std::string& key) {
  std::istringstream in(contentsOf(source(path)));
  for (std::string line; std::getline(in, line);)
    if (line.starts_with(key + '=')) return line.substr(key.size() + 1);
  return {};
}

TEST(Desktop, EntryIsValid) {
  const CommandResult result = inSources("desktop-file-validate " + std::string(kEntry));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output + result.errors, "");
}

TEST(Desktop, MetainfoIsValid) {
  const CommandResult result =
      inSources("appstreamcli validate --no-net " + std::string(kMetainfo));
  EXPECT_EQ(result.status, 0) << result.output << result.errors;
}

TEST(Desktop, SpeaksEveryLanguage) {
  for (const char* key : {"Name", "GenericName", "Comment", "Keywords"}) {
    const std::string english = valueOf(kEntry, key);
    EXPECT_NE(english, "") << key;
    for (const std::string language : kOtherLanguages) {
      const std::string translated = valueOf(kEntry, std::string(key) + '[' + language + ']');
      EXPECT_NE(translated, "") << key << ' ' << language;
      EXPECT_NE(translated, english) << key << ' ' << language;
    }
  }
  for (const std::string language : kOtherLanguages)
    EXPECT_NE(valueOf(kServiceMenu, "Name[" + language + ']'), "") << language;
}

TEST(Desktop, MetainfoSaysEachThingInEveryLanguage) {
  const std::string text = contentsOf(source(kMetainfo));
  const auto count = [&text](const std::string& words) {
    std::size_t found = 0;
    for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
      ++found;
    return found;
  };
  const std::size_t texts = count("<name>") + count("<summary>") + count("<p>") + count("<li>");
  ASSERT_GE(texts, 4U);
  for (std::string language : kOtherLanguages) {
    std::replace(language.begin(), language.end(), '_', '-');
    EXPECT_EQ(count("xml:lang=\"" + language + '"'), texts) << language;
  }
  EXPECT_NE(text.find("<name>" + valueOf(kEntry, "Name") + "</name>"), std::string::npos);
}

// "Open with", the service menu and the software catalogue name the same kinds of documents.
TEST(Desktop, NamesTheSameKindsOfDocumentsEverywhere) {
  const std::vector<std::string> kinds = sortedParts(valueOf(kEntry, "MimeType"), ';');
  EXPECT_THAT(kinds, testing::IsSupersetOf({"application/pdf", "application/postscript",
                                            "image/png", "image/jpeg", "image/tiff", "image/webp",
                                            "image/svg+xml", "text/plain"}));
  EXPECT_EQ(sortedParts(valueOf(kServiceMenu, "MimeType"), ';'), kinds);
  const CommandResult listed =
      inSources("sed -n 's|.*<mediatype>\\(.*\\)</mediatype>|\\1|p' " + std::string(kMetainfo));
  EXPECT_EQ(sortedParts(listed.output, '\n'), kinds);
}

TEST(Desktop, StartsTheProgramWithDocuments) {
  for (const char* file : {kEntry, kServiceMenu}) {
    EXPECT_EQ(valueOf(file, "Exec"), "cutline %F") << file;
    EXPECT_EQ(valueOf(file, "Icon"), "cutline") << file;
  }
}

TEST(Desktop, IconHasItsSizes) {
  for (const unsigned size : {16U, 24U, 32U, 48U, 128U, 256U}) {
    const std::string folder = std::to_string(size) + 'x' + std::to_string(size);
    const PngPicture icon(built("share/icons/hicolor/" + folder + "/apps/cutline.png"));
    EXPECT_EQ(icon.width(), size);
    EXPECT_EQ(icon.height(), size);
  }
  EXPECT_EQ(contentsOf(built("share/icons/hicolor/scalable/apps/cutline.svg")),
            contentsOf(source("packaging/desktop/icons/cutline.svg")));
}

}  // namespace
}  // namespace cutline::test
