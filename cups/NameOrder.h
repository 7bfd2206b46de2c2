// The order of options' names, whatever letters they are written in: as strcasecmp has it in the C
// locale, and libcups in every one.
#pragma once

#include <algorithm>
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
  bool operator==(const NameStart&) const noexcept = default;
  bool operator<(const NameStart& other) const noexcept {
    return mFirst != other.mFirst ? mFirst < other.mFirst : mSecond < other.mSecond;
  }

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

inline bool nameComesBefore(std::string_view a, std::string_view b) {
  while (true) {
    const NameStart startOfA(a), startOfB(b);
    if (startOfA != startOfB) return startOfA < startOfB;
    if (a.size() <= NameStart::kSize || b.size() <= NameStart::kSize) return a.size() < b.size();
    a.remove_prefix(NameStart::kSize);
    b.remove_prefix(NameStart::kSize);
  }
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
    return a.start != b.start ? a.start < b.start
                              : nameComesBefore(nameOf(a.element), nameOf(b.element));
  });
  std::ranges::transform(named, elements.begin(), &Named::element);
}

}  // namespace cutline
