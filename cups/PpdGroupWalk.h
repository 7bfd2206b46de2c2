// Follows a PPD's statements from group to group, as libcups 2.4.2 does.
#pragma once

#include <optional>
#include <set>
#include <string_view>

#include "cups/PpdStatements.h"

namespace cutline {

class PpdGroupWalk {
 public:
  // Goes over a statement that is none of a plain option's.
  void pass(const PpdStatement& statement);
  // Goes over a plain option as a whole.
  void passOption() { mIsOptionOpen = false; }

  // The group that libcups puts options into here.
  std::string_view group() const;
  // Whether an option is open here: what follows may be its own.
  bool isOptionOpen() const { return mIsOptionOpen; }
  // Whether the group has plain options only, as far as the walk came.
  bool isPlain(std::string_view group) const;

 private:
  void open(const PpdStatement& statement);

  std::optional<std::string_view> mOpen;  // the name of the group that is open
  std::set<std::string_view> mMixed;      // groups that have other options, too
  bool mIsClear = true;                   // which group is meant, all along
  bool mIsOptionOpen = false;
};

}  // namespace cutline
