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

  // The group that libcups puts options into here.
  std::string_view group() const;
  // The statement that opened the group that is open; nothing outside of groups.
  const std::optional<PpdStatement>& opening() const { return mOpening; }
  // Whether the group has plain options only, as far as the walk came: they may be read in parts.
  bool isPlain(std::string_view group) const;

 private:
  void open(const PpdStatement& statement);

  std::optional<PpdStatement> mOpening;
  std::string_view mName;
  std::set<std::string_view> mMixed;  // groups that have other options, too
  bool mIsClear = true;               // which group is meant, all along
};

}  // namespace cutline
