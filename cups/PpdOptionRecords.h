// Records of options as libcups 2.4.2 makes them.
#pragma once

#include <cups/ppd.h>

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "cups/PpdOptionBlock.h"

namespace cutline {

// The options of one group in their order, with places for those that libcups reads itself.
class OptionRecords {
 public:
  OptionRecords() = default;
  ~OptionRecords();
  OptionRecords(OptionRecords&& other) noexcept;
  OptionRecords& operator=(OptionRecords&&) = delete;

  // Makes the option that the block tells of. No where there is no memory.
  bool add(const OptionBlock& block);
  // Makes a place for the option with that name.
  bool addPlace(std::string_view keyword);

  // Of a place, the name alone. Their choices do not point back to them yet: they may still move.
  std::span<ppd_option_t> all() noexcept { return {mOptions, mCount}; }
  std::size_t size() const noexcept { return mCount; }
  // The places among them, by number.
  const std::vector<std::size_t>& places() const noexcept { return mPlaces; }
  // Gives them away, to be freed as ppdClose frees them.
  ppd_option_t* release() noexcept;

 private:
  // Null where there is no memory.
  ppd_option_t* addEmpty(std::string_view keyword);

  ppd_option_t* mOptions = nullptr;
  std::size_t mCount = 0;
  std::size_t mRoom = 0;
  std::vector<std::size_t> mPlaces;
};

// The attribute that names an option's default choice; the caller frees it, or gives it to a PPD's
// records. Null where there is no memory.
ppd_attr_t* newDefault(const ppd_option_t& option);

}  // namespace cutline
