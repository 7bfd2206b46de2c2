// A set of ASCII characters, fit for tables of constants.
#pragma once

#include <cstdint>
#include <string_view>

namespace cutline {

class CharacterSet {
 public:
  constexpr CharacterSet() noexcept = default;
  // The characters of the text, all of which are ASCII.
  constexpr explicit CharacterSet(std::string_view characters) noexcept {
    for (const char c : characters) add(static_cast<unsigned char>(c));
  }
  // The characters from the first to the last, both included.
  static constexpr CharacterSet range(char first, char last) noexcept {
    CharacterSet set;
    for (int c = first; c <= last; ++c) set.add(static_cast<unsigned>(c));
    return set;
  }

  friend constexpr CharacterSet operator|(CharacterSet one, const CharacterSet& other) noexcept {
    one.mLow |= other.mLow;
    one.mHigh |= other.mHigh;
    return one;
  }

  // Holds no character beyond ASCII.
  constexpr bool contains(char16_t c) const noexcept {
    if (c >= 2 * kBits) return false;
    return ((c < kBits ? mLow : mHigh) >> (c % kBits) & 1U) != 0;
  }

 private:
  static constexpr unsigned kBits = 64;

  constexpr void add(unsigned c) noexcept {
    (c < kBits ? mLow : mHigh) |= std::uint64_t{1} << (c % kBits);
  }

  std::uint64_t mLow = 0;   // a bit a character
  std::uint64_t mHigh = 0;  // the upper half of ASCII
};

}  // namespace cutline
