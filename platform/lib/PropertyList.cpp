#include "platform/lib/PropertyList.h"

#include <plist/plist.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

namespace cutline {
namespace {

// The parsing library frees nested containers recursively, so their number is bounded before it
// sees the text: together with kDeepest this keeps the stack small whatever the file holds.
constexpr std::size_t kMostContainers = 4096;
constexpr int kDeepest = 64;
constexpr std::size_t kLongestText = std::size_t{16} << 20;

struct NodeDeleter {
  void operator()(void* node) const noexcept { plist_free(node); }
};
using OwnedNode = std::unique_ptr<void, NodeDeleter>;

struct FreeDeleter {
  void operator()(void* memory) const noexcept { std::free(memory); }
};
template <typename T>
using Owned = std::unique_ptr<T, FreeDeleter>;

std::size_t countOf(std::string_view part, std::string_view text) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) ++count;
  return count;
}

std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

// The bounds of the byte after `lead` that keep overlong forms, surrogates and values past the last
// code point out.
bool isSecondByte(unsigned char lead, unsigned char byte) {
  const unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  return byte >= low && byte <= high;
}

bool isUTF8(std::string_view text) {
  while (!text.empty()) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = sequenceLength(lead);
    if (length == 0 || length > text.size()) return false;
    if (length > 1 && !isSecondByte(lead, static_cast<unsigned char>(text[1]))) return false;
    for (std::size_t i = 2; i < length; ++i) {
      if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

// What the parsing library does not ask of its input: valid UTF-8 and one whole document.
bool isWholeDocument(std::string_view xml) {
  constexpr std::string_view kEnd = "</plist>";
  const auto last = xml.find_last_not_of(" \t\r\n");
  if (last == xml.npos || xml.size() > kLongestText) return false;
  if (!xml.substr(0, last + 1).ends_with(kEnd)) return false;
  if (countOf("<plist", xml) != 1 || countOf(kEnd, xml) != 1) return false;
  if (countOf("<dict", xml) + countOf("<array", xml) > kMostContainers) return false;
  return xml.find('\0') == xml.npos && isUTF8(xml);
}

using Value = PropertyList::Value;
std::optional<PropertyList> valueOf(plist_t node, int depth);

Value booleanOf(plist_t node) {
  std::uint8_t value = 0;
  plist_get_bool_val(node, &value);
  return value != 0;
}

Value integerOf(plist_t node) {
  std::uint64_t value = 0;
  plist_get_uint_val(node, &value);
  return static_cast<std::int64_t>(value);
}

Value realOf(plist_t node) {
  double value = 0;
  plist_get_real_val(node, &value);
  return value;
}

Value stringOf(plist_t node) {
  char* text = nullptr;
  plist_get_string_val(node, &text);
  const Owned<char> owner(text);
  return std::string(text ? text : "");
}

Value dataOf(plist_t node) {
  char* bytes = nullptr;
  std::uint64_t length = 0;
  plist_get_data_val(node, &bytes, &length);
  const Owned<char> owner(bytes);
  return bytes ? PropertyList::Data(bytes, bytes + length) : PropertyList::Data();
}

std::optional<Value> arrayOf(plist_t node, int depth) {
  PropertyList::Array array;
  plist_array_iter created = nullptr;
  plist_array_new_iter(node, &created);
  const Owned<void> iterator(created);
  plist_t item = nullptr;
  for (plist_array_next_item(node, created, &item); item;
       plist_array_next_item(node, created, &item)) {
    auto value = valueOf(item, depth + 1);
    if (!value) return std::nullopt;
    array.push_back(std::move(*value));
  }
  return array;
}

std::optional<Value> dictionaryOf(plist_t node, int depth) {
  PropertyList::Dictionary dictionary;
  plist_dict_iter created = nullptr;
  plist_dict_new_iter(node, &created);
  const Owned<void> iterator(created);
  while (true) {
    char* name = nullptr;
    plist_t item = nullptr;
    plist_dict_next_item(node, created, &name, &item);
    const Owned<char> key(name);
    if (!item) return dictionary;
    auto value = valueOf(item, depth + 1);
    if (!value) return std::nullopt;
    dictionary.insert_or_assign(name ? name : "", std::move(*value));
  }
}

// Nothing when the node is nested too deeply or of a kind that has no value here.
std::optional<Value> convert(plist_t node, int depth) {
  if (depth > kDeepest) return std::nullopt;
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
      return booleanOf(node);
    case PLIST_UINT:
      return integerOf(node);
    case PLIST_REAL:
      return realOf(node);
    case PLIST_STRING:
      return stringOf(node);
    case PLIST_DATA:
      return dataOf(node);
    case PLIST_ARRAY:
      return arrayOf(node, depth);
    case PLIST_DICT:
      return dictionaryOf(node, depth);
    case PLIST_DATE:
      return Value();
    default:
      return std::nullopt;
  }
}

std::optional<PropertyList> valueOf(plist_t node, int depth) {
  auto value = convert(node, depth);
  if (!value) return std::nullopt;
  return PropertyList(std::move(*value));
}

}  // namespace

std::optional<PropertyList> PropertyList::parseXML(std::string_view xml) noexcept {
  if (!isWholeDocument(xml)) return std::nullopt;
  plist_t parsed = nullptr;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &parsed);
  const OwnedNode root(parsed);
  return root ? valueOf(root.get(), 0) : std::nullopt;
}

std::optional<double> PropertyList::number() const noexcept {
  if (const auto* integer = std::get_if<std::int64_t>(&mValue)) return *integer;
  if (const auto* real = std::get_if<double>(&mValue)) return *real;
  return std::nullopt;
}

const PropertyList* PropertyList::objectForKey(const std::string& key) const noexcept {
  const Dictionary* entries = dictionary();
  if (!entries) return nullptr;
  const auto entry = entries->find(key);
  return entry == entries->end() ? nullptr : &entry->second;
}

}  // namespace cutline
