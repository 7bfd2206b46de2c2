#include "tests/languages/CutPpds.h"

#include <regex>

#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

const std::regex kCutOption(R"((\*OpenUI \*(Lx\w+))/[^:]*:)");

}  // namespace

std::string samplePpdPath(const std::string& name) {
  return CUTLINE_SOURCE_DIR "/samples/ppd/" + name + ".ppd";
}

std::string testPpdPath(const std::string& name) {
  return CUTLINE_SOURCE_DIR "/tests/samples/ppd/" + name + ".ppd";
}

std::string withoutCutTexts(const std::string& path) {
  return std::regex_replace(test::contentsOf(path), kCutOption, "$1:");
}

std::string withCutTexts(const std::string& path, const std::string& language,
                         const std::string& text) {
  const std::string ppd = test::contentsOf(path);
  std::string texts = "*cupsLanguages: \"en " + language + "\"\n";
  for (std::sregex_iterator option(ppd.begin(), ppd.end(), kCutOption), end; option != end;
       ++option) {
    const std::string keyword = (*option)[2];
    texts += "*" + language + ".Translation " + keyword + "/" + text + " " + keyword + ": \"\"\n";
  }
  return std::regex_replace(ppd, std::regex(R"(\*cupsLanguages: "en"\n)"), texts);
}

}  // namespace cutline
