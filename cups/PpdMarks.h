// The marks of a PPD's choices. Works around libcups 2.4.2: it looks each option up twice where it
// is in hand, moves all marks for each that it takes away, and goes through all options and all
// constraints for conflicts after each mark, be it there already. What only it knows is left to it:
// custom values, several choices at once, and options whose marks change others'.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace cutline {

class PpdMarks {
 public:
  // Borrows a PPD that was just opened, with nothing marked yet.
  explicit PpdMarks(ppd_file_t* ppd);

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

  // Null for none. Whether that changed anything.
  bool markOnly(ppd_option_t& option, ppd_choice_t* choice);
  void markDefaultsOfSpecial();
  void refreshConflicts();

  ppd_file_t* mPpd;
  std::vector<Ordinary> mOrdinary;  // in the order of libcups' list of marks
  std::set<ppd_option_t*> mSpecial;
  std::vector<ppd_option_t> mSpecialInOrder;  // copies, for their names and defaults
  // An empty list, sorted as that of marks.
  std::unique_ptr<cups_array_t, DeleteList> mNoMarks;
};

}  // namespace cutline
