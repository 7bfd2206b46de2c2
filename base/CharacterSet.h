// A set of characters that texts are searched for, in one step for each character.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace cutline {

class CharacterSet {
 public:
  constexpr explicit CharacterSet(std::string_view characters) {
    for (const char each : characters) mHas[index(each)] = true;
  }
  // All characters for which the function says so.
  template <typename Function>
  static constexpr CharacterSet of(const Function& isMember) {
    CharacterSet set{std::string_view()};
    for (std::size_t i = 0; i < set.mHas.size(); ++i) set.mHas[i] = isMember(static_cast<char>(i));
    return set;
  }

  constexpr bool has(char character) const noexcept { return mHas[index(character)]; }
  constexpr bool hasAll(std::string_view text) const noexcept {
    return std::ranges::all_of(text, [this](char each) { return has(each); });
  }
  // Where the text has the first character of the set, or the first that is none of it; its size
  // where it has none.
  constexpr std::size_t firstIn(std::string_view text) const noexcept {
    std::size_t at = 0;
    while (at < text.size() && !has(text[at])) ++at;
    return at;
  }
  constexpr std::size_t firstNotIn(std::string_view text) const noexcept {
    std::size_t at = 0;
    while (at < text.size() && has(text[at])) ++at;
    return at;
  }
  constexpr std::string_view trimmed(std::string_view text) const noexcept {
    text.remove_prefix(firstNotIn(text));
    while (!text.empty() && has(text.back())) text.remove_suffix(1);
    return text;
  }

 private:
  static constexpr std::size_t index(char character) noexcept {
    return static_cast<unsigned char>(character);
  }

  std::array<bool, 256> mHas{};
};

}  // namespace cutline
