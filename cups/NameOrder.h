// The order of options' names, whatever letters they are written in: as strcasecmp has it in the C
// locale, and libcups in every one.
#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cutline {

// How a name begins, in small letters, as numbers that compare as it does.
class NameStart {
 public:
  static constexpr std::size_t kSize = 16;

  explicit NameStart(std::string_view name)
      : mFirst(number(name, 0)), mSecond(number(name, sizeof(mFirst))) {}
  auto operator<=>(const NameStart&) const noexcept = default;

 private:
  static constexpr std::uint64_t small(char c) noexcept {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  }
  static std::uint64_t number(std::string_view name, std::size_t from) noexcept {
    std::uint64_t number = 0;
    for (std::size_t i = from; i < from + sizeof(number); ++i)
      number = number << 8U | (i < name.size() ? small(name[i]) : 0);
    return number;
  }

  std::uint64_t mFirst, mSecond;
};

inline std::strong_ordering compareNames(std::string_view a, std::string_view b) {
  do {
    if (const auto order = NameStart(a) <=> NameStart(b); order != 0) return order;
    a.remove_prefix(std::min(a.size(), NameStart::kSize));
    b.remove_prefix(std::min(b.size(), NameStart::kSize));
  } while (!a.empty() && !b.empty());
  return a.size() <=> b.size();
}

// Sorts small elements by what nameOf(element) says; those of the same name keep their order.
template <typename Element, typename Function>
void sortByName(std::vector<Element>& elements, const Function& nameOf) {
  struct Named {
    NameStart start;
    Element element;
  };
  std::vector<Named> named;
  named.reserve(elements.size());
  for (const Element& each : elements) named.push_back({NameStart(nameOf(each)), each});
  std::ranges::stable_sort(named, [&nameOf](const Named& a, const Named& b) {
    const auto order = a.start <=> b.start;
    return order != 0 ? order < 0 : compareNames(nameOf(a.element), nameOf(b.element)) < 0;
  });
  std::ranges::transform(named, elements.begin(), &Named::element);
}

}  // namespace cutline
