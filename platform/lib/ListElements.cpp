#include "platform/lib/ListElements.h"

#include <plist/plist.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <utility>

namespace cutline {
namespace {

using Value = PropertyList::Value;

struct NodeDeleter {
  void operator()(void* node) const noexcept { plist_free(node); }
};
using OwnedNode = std::unique_ptr<void, NodeDeleter>;

struct FreeDeleter {
  void operator()(char* memory) const noexcept { std::free(memory); }
};
using OwnedBytes = std::unique_ptr<char, FreeDeleter>;

// What the library of lists makes of an element without elements; null when it is of another kind.
OwnedNode nodeOf(std::string_view element, plist_type type, const std::string& text) {
  if (text.find_first_of("<&") != text.npos) return nullptr;
  const std::string name(element);
  const std::string xml = "<plist><" + name + '>' + text + "</" + name + "></plist>";
  plist_t parsed = nullptr;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &parsed);
  OwnedNode node(parsed);
  return node && plist_get_node_type(parsed) == type ? std::move(node) : nullptr;
}

std::optional<Value> stringOf(std::string& text) { return std::move(text); }

template <bool kValue>
std::optional<Value> booleanOf(std::string& /*text*/) {
  return kValue;
}

std::optional<Value> integerOf(std::string& text) {
  const OwnedNode node = nodeOf("integer", PLIST_UINT, text);
  if (!node) return std::nullopt;
  std::uint64_t value = 0;
  plist_get_uint_val(node.get(), &value);
  return static_cast<std::int64_t>(value);
}

std::optional<Value> realOf(std::string& text) {
  const OwnedNode node = nodeOf("real", PLIST_REAL, text);
  if (!node) return std::nullopt;
  double value = 0;
  plist_get_real_val(node.get(), &value);
  return value;
}

std::optional<Value> dataOf(std::string& text) {
  const OwnedNode node = nodeOf("data", PLIST_DATA, text);
  if (!node) return std::nullopt;
  char* bytes = nullptr;
  std::uint64_t length = 0;
  plist_get_data_val(node.get(), &bytes, &length);
  const OwnedBytes owner(bytes);
  return bytes ? PropertyList::Data(bytes, bytes + length) : PropertyList::Data();
}

std::optional<Value> dateOf(std::string& text) {
  using namespace std::chrono;
  constexpr sys_days kEpochOfLists = year(2001) / January / 1;
  const OwnedNode node = nodeOf("date", PLIST_DATE, text);
  if (!node) return std::nullopt;
  std::int32_t wholeSeconds = 0;
  std::int32_t rest = 0;
  plist_get_date_val(node.get(), &wholeSeconds, &rest);
  return kEpochOfLists + seconds(wholeSeconds) + duration_cast<milliseconds>(microseconds(rest));
}

constexpr std::array kElements = std::to_array<ListElement>({
    {"key", ListElement::Holds::key, nullptr},
    {"string", ListElement::Holds::text, stringOf},
    {"dict", ListElement::Holds::keysAndValues, nullptr},
    {"array", ListElement::Holds::values, nullptr},
    {"true", ListElement::Holds::nothing, booleanOf<true>},
    {"false", ListElement::Holds::nothing, booleanOf<false>},
    {"integer", ListElement::Holds::text, integerOf},
    {"real", ListElement::Holds::text, realOf},
    {"data", ListElement::Holds::text, dataOf},
    {"date", ListElement::Holds::text, dateOf},
    {"plist", ListElement::Holds::list, nullptr},
});

}  // namespace

const ListElement* listElement(std::string_view name) noexcept {
  const auto element = std::ranges::find(kElements, name, &ListElement::name);
  return element == kElements.end() ? nullptr : &*element;
}

}  // namespace cutline
