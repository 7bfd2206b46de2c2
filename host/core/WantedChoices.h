// What is wanted of each option of the panels, however a rule changes it for the time being.
#pragma once

#include <map>
#include <string>

#include "host/core/OptionTable.h"

namespace cutline {

class WantedChoices {
 public:
  // Both are borrowed.
  WantedChoices(const PpdFile& ppd, const OptionTable& options) : mPpd(ppd), mOptions(options) {}

  void clear() { mWanted.clear(); }
  void want(const std::string& keyword, const std::string& choice);
  const std::map<std::string, std::string>& all() const noexcept { return mWanted; }

  // Empty when nothing is wanted.
  std::string wanted(const std::string& keyword) const;

  // Media that must not be cut turn automatic cutting off, each time that a paper is chosen; it is
  // on again when the user wants it after that, or with another paper.
  void paperWasChosen();

  // Where the option's box stands, greyed or not: a box that cannot be used shows what comes back
  // with its use. Empty when nothing is wanted.
  std::string shown(const std::string& keyword) const;
  // What is marked and sent. A rule sends the option's first choice, which is off.
  std::string sent(const std::string& keyword) const;

 private:
  const PpdFile& mPpd;
  const OptionTable& mOptions;
  std::map<std::string, std::string> mWanted;  // by keyword
  bool mAutoCutIsOffByPaper = false;
};

}  // namespace cutline
