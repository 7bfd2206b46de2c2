// The arguments of a format, in order: a typed list, so that a format can ask for anything without
// reaching what isn't there.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <type_traits>

#include "bundle/diag/FormatArgument.h"

namespace cutline {

// Laid out as the C structure { const FormatArgument* items; size_t count; }, and passed as it is.
class FormatArguments {
 public:
  constexpr FormatArguments() noexcept = default;
  // Borrows the list: written out in a call, as in {5, "text"}, it lives as long as the call.
  constexpr FormatArguments(std::initializer_list<FormatArgument> list) noexcept
      : FormatArguments(std::span(std::data(list), list.size())) {}
  constexpr FormatArguments(std::span<const FormatArgument> list) noexcept
      : mItems(list.data()), mCount(list.size()) {}

  // Null behind the last.
  constexpr const FormatArgument* at(std::size_t index) const noexcept {
    return mItems && index < mCount ? mItems + index : nullptr;
  }

 private:
  const FormatArgument* mItems = nullptr;
  std::size_t mCount = 0;
};

static_assert(std::is_standard_layout_v<FormatArguments>);
static_assert(std::is_trivially_copyable_v<FormatArguments>);

}  // namespace cutline
