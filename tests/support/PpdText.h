// Writes small PPD files and opens them with libcups, so that a test states the printer it needs.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <string>
#include <vector>

namespace cutline::test {

struct PpdCloser {
  void operator()(ppd_file_t* ppd) const noexcept { ppdClose(ppd); }
};
using OpenPpd = std::unique_ptr<ppd_file_t, PpdCloser>;

struct PpdChoice {
  PpdChoice(const std::string& choiceKeyword) : keyword(choiceKeyword), text(choiceKeyword) {}
  PpdChoice(const char* choiceKeyword) : PpdChoice(std::string(choiceKeyword)) {}
  PpdChoice(std::string choiceKeyword, std::string choiceText)
      : keyword(std::move(choiceKeyword)), text(std::move(choiceText)) {}

  std::string keyword;
  std::string text;
};

class PpdText {
 public:
  // A plain attribute, as in `*LxTapeType: "WN"`.
  PpdText& attribute(const std::string& name, const std::string& value);
  // An option. Without a default none is named; without a text the keyword is it.
  PpdText& option(const std::string& keyword, const std::vector<PpdChoice>& choices,
                  const std::string& defaultChoice, const std::string& text = "");
  // An option off, on.
  PpdText& onOff(const std::string& keyword, const std::string& defaultChoice = "OFF",
                 const std::string& text = "");
  // LxCutLabel with the numbers first to last.
  PpdText& cutLabel(int first, int last, const std::string& defaultChoice);
  // The names of the page sizes; the first is the default.
  PpdText& pageSizes(const std::vector<std::string>& names);

  // Any line of its own.
  PpdText& line(const std::string& text);

  std::string text() const;
  // Opens the file; marks its defaults unless told not to.
  OpenPpd open() const;
  OpenPpd openUnmarked() const;

 private:
  std::string mBody;
};

// Every one of the nine options, all off, numbers 1 to 99 with the default 1.
PpdText allNine();
// The keywords of the nine options in canonical order.
const std::vector<std::string>& nineKeywords();

// The keyword of the marked choice; empty when none is.
std::string markedChoice(ppd_file_t* ppd, const std::string& keyword);

}  // namespace cutline::test
