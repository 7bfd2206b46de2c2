#include "tests/support/PpdText.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

namespace cutline::test {
namespace {

// An open file in memory with this content, positioned at its start.
int memoryFile(const std::string& content) {
  const int fd = memfd_create("printer.ppd", MFD_CLOEXEC);
  if (fd < 0) return fd;
  const auto written = write(fd, content.data(), content.size());
  EXPECT_EQ(written, static_cast<ssize_t>(content.size()));
  lseek(fd, 0, SEEK_SET);
  return fd;
}

}  // namespace

PpdText& PpdText::line(const std::string& text) {
  mBody += text + "\n";
  return *this;
}

PpdText& PpdText::attribute(const std::string& name, const std::string& value) {
  return line("*" + name + ": \"" + value + "\"");
}

PpdText& PpdText::option(const std::string& keyword, const std::vector<PpdChoice>& choices,
                         const std::string& defaultChoice, const std::string& text) {
  mBody += "*OpenUI *" + keyword + "/" + (text.empty() ? keyword : text) + ": PickOne\n";
  if (!defaultChoice.empty()) mBody += "*Default" + keyword + ": " + defaultChoice + "\n";
  for (const PpdChoice& choice : choices) {
    mBody += "*" + keyword + " " + choice.keyword + "/" + choice.text + ": \"\"\n";
  }
  mBody += "*CloseUI: *" + keyword + "\n";
  return *this;
}

PpdText& PpdText::onOff(const std::string& keyword, const std::string& defaultChoice,
                        const std::string& text) {
  return option(keyword, {"OFF", "ON"}, defaultChoice, text);
}

PpdText& PpdText::cutLabel(int first, int last, const std::string& defaultChoice) {
  std::vector<PpdChoice> choices;
  for (int i = first; i <= last; ++i) choices.emplace_back(std::to_string(i));
  return option("LxCutLabel", choices, defaultChoice);
}

PpdText& PpdText::pageSizes(const std::vector<std::string>& names) {
  std::vector<PpdChoice> choices(names.begin(), names.end());
  option("PageSize", choices, names.front());
  for (const std::string& name : names) {
    mBody += "*PaperDimension " + name + ": \"68 283\"\n";
  }
  return *this;
}

std::string PpdText::text() const {
  return "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n" + mBody;
}

OpenPpd PpdText::openUnmarked() const {
  const int fd = memoryFile(text());
  OpenPpd ppd(ppdOpenFd(fd));
  int line = 0;
  EXPECT_TRUE(ppd) << ppdErrorString(ppdLastError(&line)) << " in line " << line << "\n" << mBody;
  return ppd;
}

OpenPpd PpdText::open() const {
  OpenPpd ppd = openUnmarked();
  ppdMarkDefaults(ppd.get());
  return ppd;
}

PpdText allNine() {
  PpdText text;
  text.cutLabel(1, 99, "1");
  for (std::size_t i = 1; i < nineKeywords().size(); ++i) text.onOff(nineKeywords()[i]);
  return text;
}

const std::vector<std::string>& nineKeywords() {
  static const std::vector<std::string> keywords = {
      "LxCutLabel",   "LxCutAtEnd",    "LxMirror",         "LxAutoTapeCut", "LxHalfCut",
      "LxChainPrint", "LxSpecialTape", "LxRemoveBlkSpace", "LxCutMark"};
  return keywords;
}

std::string markedChoice(ppd_file_t* ppd, const std::string& keyword) {
  const ppd_choice_t* choice = ppdFindMarkedChoice(ppd, keyword.c_str());
  return choice ? choice->choice : "";
}

}  // namespace cutline::test
