// What a user wants, and what a label printer's rules make of it, told apart from how the host and
// the panel get there.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include "host/core/OptionTable.h"

namespace cutline {

using Choices = std::map<std::string, std::string>;  // by keyword

class Wishes {
 public:
  Wishes(const PpdFile& ppd, Choices wanted);

  const Choices& wanted() const { return mWanted; }
  // The user says so: by a click, in a list, on the command line.
  void want(const std::string& keyword, const std::string& choice);
  // The same for the option's first or second choice; nothing for an option that is not there.
  void switchTo(const std::string& keyword, bool on);
  // What the tag's entry of the preset list says. A box that is not there says nothing.
  void choosePreset(int tag, bool showsAutoCutBox);
  // Each time anew: media that must not be cut turn automatic cutting off until the user insists.
  void choosePaper(const std::string& paper);

  // What the option's box stands at, and what goes with the job.
  std::string shown(const std::string& keyword) const;
  std::string sent(const std::string& keyword) const;
  // The options of which the user must hear: what is sent is not what was wanted, or breaks a rule,
  // or does nothing, or is not what box and picture say.
  std::set<std::string> named(const std::set<std::string>& boxes) const;
  // The picture of it; the boxes are those that can be seen.
  std::string picture(bool isRoll, const std::set<std::string>& boxes) const;

 private:
  bool isOn(const std::string& keyword, const std::string& choice) const;
  bool isSpecial() const;
  std::string first(const std::string& keyword) const;

  std::shared_ptr<const OptionTable> mOptions;  // the same for each copy
  Choices mWanted;
  std::string mPaper;
  bool mAutoCutOffByPaper = false;
};

}  // namespace cutline
