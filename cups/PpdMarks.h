// The marks of a PPD's choices. Works around libcups 2.4.2: it looks each option up twice where it
// is in hand, moves all marks for each that it takes away, and goes through all options for
// conflicts after each mark. What only it knows is left to it: custom values, several choices at
// once, and options whose marks change others'.
#pragma once

#include <cups/ppd.h>

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "cups/EasedPpd.h"

namespace cutline {

class PpdMarks {
 public:
  // Borrows a PPD that was just opened, with nothing marked yet. One with few options is left to
  // libcups altogether.
  explicit PpdMarks(ppd_file_t* ppd, std::size_t fewOptions = kFewOptions);

  // What ppdMarkDefaults does.
  void markDefaults();
  // What ppdMarkOption does; an unknown option or choice is left alone.
  void mark(const std::string& keyword, const std::string& choice);

 private:
  struct DeleteList {
    void operator()(cups_array_t* list) const noexcept { cupsArrayDelete(list); }
  };
  struct Ordinary {
    ppd_option_t* option;
    ppd_choice_t* byDefault;  // null where its default is none of its choices
  };

  void markOnly(ppd_option_t& option, ppd_choice_t* choice);
  void markDefaultsOfSpecial();
  void refreshConflicts();

  ppd_file_t* mPpd;
  std::vector<Ordinary> mOrdinary;  // in the order of libcups' list of marks
  std::set<ppd_option_t*> mSpecial;
  std::vector<ppd_option_t> mSpecialInOrder;  // copies, for their names and defaults
  // An empty list, sorted as that of marks; null where libcups does it all.
  std::unique_ptr<cups_array_t, DeleteList> mNoMarks;
};

}  // namespace cutline
