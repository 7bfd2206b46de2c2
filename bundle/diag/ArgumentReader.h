// Hands out the arguments of a format one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "bundle/diag/FormatArguments.h"

namespace cutline {

class ArgumentReader {
 public:
  explicit ArgumentReader(FormatArguments arguments) noexcept : mArguments(arguments) {}

  // Null when none is left.
  const FormatArgument* next() noexcept { return mArguments.at(mNext++); }

  // The next argument as the number that a "*" stands for; nothing when it is no integer.
  std::optional<int> nextNumber() noexcept {
    const FormatArgument* argument = next();
    const auto integer = argument ? argument->integer() : std::nullopt;
    if (!integer) return std::nullopt;
    return static_cast<int>(static_cast<std::uint32_t>(*integer));
  }

 private:
  FormatArguments mArguments;
  std::size_t mNext = 0;
};

}  // namespace cutline
