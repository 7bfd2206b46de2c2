// Sorts by the names of options, whatever letters they are written in: as strcasecmp has them in
// the C locale, and libcups in every one.
#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cutline {

// Compares most names by two numbers, which are made once, instead of letter by letter.
class SortableName {
 public:
  explicit SortableName(std::string_view name)
      : mFirst(number(name, 0)), mSecond(number(name, 8)), mName(name) {}

  std::string_view name() const noexcept { return mName; }
  std::strong_ordering operator<=>(const SortableName& other) const noexcept {
    if (mFirst != other.mFirst) return mFirst <=> other.mFirst;
    if (mSecond != other.mSecond) return mSecond <=> other.mSecond;
    return compareRest(other);
  }
  bool operator==(const SortableName& other) const noexcept { return (*this <=> other) == 0; }

 private:
  static constexpr std::size_t kInNumbers = 16;

  static std::uint64_t small(char c) noexcept {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  }
  static std::uint64_t number(std::string_view name, std::size_t from) noexcept {
    std::uint64_t number = 0;
    for (std::size_t i = from; i < from + sizeof(number); ++i)
      number = number << 8U | (i < name.size() ? small(name[i]) : 0);
    return number;
  }
  std::strong_ordering compareRest(const SortableName& other) const noexcept {
    if (mName.size() <= kInNumbers || other.mName.size() <= kInNumbers)
      return mName.size() <=> other.mName.size();
    return std::lexicographical_compare_three_way(
        mName.begin() + kInNumbers, mName.end(), other.mName.begin() + kInNumbers,
        other.mName.end(), [](char a, char b) { return small(a) <=> small(b); });
  }

  std::uint64_t mFirst, mSecond;
  std::string_view mName;
};

// Sorts elements by what nameOf(element) says; those with the same name keep their order.
template <typename Element, typename Function>
void sortByName(std::vector<Element>& elements, const Function& nameOf) {
  struct Named {
    SortableName name;
    Element element;
  };
  std::vector<Named> named;
  named.reserve(elements.size());
  for (const Element& each : elements) named.push_back({SortableName(nameOf(each)), each});
  std::ranges::stable_sort(named, {}, &Named::name);
  std::ranges::transform(named, elements.begin(), &Named::element);
}

}  // namespace cutline
