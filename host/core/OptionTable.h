// The options of one PPD by keyword, with their choices, and the check of those that a person
// typed.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cups/PpdFile.h"

namespace cutline {

// An option is made of the PPD's records when it is asked for: a PPD may have thousands that nobody
// asks for. Of one thread.
class OptionTable {
 public:
  // Borrows the PPD.
  explicit OptionTable(const PpdFile& ppd) : mPpd(ppd) {}
  OptionTable(const OptionTable&) = delete;
  OptionTable& operator=(const OptionTable&) = delete;

  // Capitals do not count, as in libcups. Null when the PPD lacks the option; borrowed.
  const PpdOption* find(const std::string& keyword) const;

  // Where the choice stands in the option's list; nothing when either is missing.
  std::optional<int> position(const std::string& keyword, const std::string& choice) const;
  std::optional<std::string> choiceAt(const std::string& keyword, int position) const;

  // For people; the keyword itself when the PPD does not know it.
  std::string optionText(const std::string& keyword) const;
  std::string choiceText(const std::string& keyword, const std::string& choice) const;

 private:
  struct Less {
    bool operator()(const std::string& one, const std::string& other) const;
  };

  const PpdFile& mPpd;
  // What was asked for, be it there or not.
  mutable std::map<std::string, std::optional<PpdOption>, Less> mAsked;
};

// Checks options that a person typed against a PPD: an unknown option (neither the PPD's nor a
// standard job attribute) and an unknown choice are errors; the choices, or names near the one
// typed, are listed.
Result<Done> checkOptions(const PpdFile& ppd, const OptionList& options);

}  // namespace cutline
