#include "platform/lib/PropertyList.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <plist/plist.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

namespace cutline {
namespace {

constexpr int kDeepest = 64;
// No list of ours comes near it, and a tree of it has still room in memory.
constexpr std::size_t kLongestText = std::size_t{4} << 20;

struct NodeDeleter {
  void operator()(void* node) const noexcept { plist_free(node); }
};
using OwnedNode = std::unique_ptr<void, NodeDeleter>;

struct FreeDeleter {
  void operator()(char* memory) const noexcept { std::free(memory); }
};
using OwnedBytes = std::unique_ptr<char, FreeDeleter>;

struct DocumentDeleter {
  void operator()(xmlDoc* document) const noexcept { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, DocumentDeleter>;

// The library tells standard error of bytes that it cannot decode, whatever it was asked to keep to
// itself; what a file holds is nothing to say there.
class QuietLibrary {
 public:
  QuietLibrary() noexcept : mBefore(xmlStructuredError), mContext(xmlStructuredErrorContext) {
    xmlSetStructuredErrorFunc(nullptr, [](void*, xmlError*) {});
  }
  ~QuietLibrary() { xmlSetStructuredErrorFunc(mContext, mBefore); }
  QuietLibrary(const QuietLibrary&) = delete;
  QuietLibrary& operator=(const QuietLibrary&) = delete;

 private:
  xmlStructuredErrorFunc mBefore;
  void* mContext;
};

// Null when the bytes are not one well-formed document, in whatever encoding it declares, or when
// its elements are nested beyond the library's own bound (256). Fetches nothing, expands no entity.
Document parseDocument(std::string_view xml) {
  constexpr int kQuietAndAlone =
      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
  return Document(
      xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr, kQuietAndAlone));
}

std::string_view textAt(const xmlChar* text) {
  return text ? reinterpret_cast<const char*>(text) : std::string_view();
}

// A list's elements are in no namespace that they would have to name.
bool isNamed(const xmlNode* element, std::string_view name) {
  return textAt(element->name) == name && (!element->ns || !element->ns->prefix);
}

using Value = PropertyList::Value;
std::optional<PropertyList> valueOf(xmlNode* element, int depth);

// The characters within; nothing where there is more than characters, such as an entity.
std::optional<std::string> charactersOf(const xmlNode* element) {
  std::string text;
  for (const xmlNode* node = element->children; node; node = node->next) {
    if (node->type == XML_COMMENT_NODE || node->type == XML_PI_NODE) continue;
    if (node->type != XML_TEXT_NODE && node->type != XML_CDATA_SECTION_NODE) return std::nullopt;
    text += textAt(node->content);
  }
  return text;
}

std::optional<Value> stringOf(xmlNode* element, int /*depth*/) {
  auto text = charactersOf(element);
  if (!text) return std::nullopt;
  return std::move(*text);
}

template <bool kValue>
std::optional<Value> booleanOf(xmlNode* /*element*/, int /*depth*/) {
  return kValue;
}

// Whether the element holds elements alone, with blanks and comments between them.
bool isContainer(const xmlNode* element) {
  for (const xmlNode* node = element->children; node; node = node->next) {
    const bool isText = node->type == XML_TEXT_NODE && xmlIsBlankNode(node) == 0;
    if (isText || node->type == XML_CDATA_SECTION_NODE || node->type == XML_ENTITY_REF_NODE)
      return false;
  }
  return true;
}

std::optional<Value> arrayOf(xmlNode* element, int depth) {
  if (!isContainer(element)) return std::nullopt;
  PropertyList::Array array;
  for (xmlNode* item = xmlFirstElementChild(element); item; item = xmlNextElementSibling(item)) {
    auto value = valueOf(item, depth + 1);
    if (!value) return std::nullopt;
    array.push_back(std::move(*value));
  }
  return array;
}

std::optional<Value> dictionaryOf(xmlNode* element, int depth) {
  if (!isContainer(element)) return std::nullopt;
  PropertyList::Dictionary dictionary;
  for (xmlNode* key = xmlFirstElementChild(element); key;) {
    xmlNode* item = xmlNextElementSibling(key);
    auto name = isNamed(key, "key") ? charactersOf(key) : std::nullopt;
    auto value = name && item ? valueOf(item, depth + 1) : std::nullopt;
    if (!value) return std::nullopt;
    dictionary.insert_or_assign(std::move(*name), std::move(*value));
    key = xmlNextElementSibling(item);
  }
  return dictionary;
}

// The value of an element without elements, read by the library of lists.
OwnedNode nodeOf(const xmlNode* element) {
  const auto text = charactersOf(element);
  if (!text || text->find_first_of("<&") != std::string::npos) return nullptr;
  const std::string name(textAt(element->name));
  const std::string xml = "<plist><" + name + '>' + *text + "</" + name + "></plist>";
  plist_t node = nullptr;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &node);
  return OwnedNode(node);
}

std::optional<Value> integerOf(xmlNode* element, int /*depth*/) {
  const OwnedNode node = nodeOf(element);
  if (!node || plist_get_node_type(node.get()) != PLIST_UINT) return std::nullopt;
  std::uint64_t value = 0;
  plist_get_uint_val(node.get(), &value);
  return static_cast<std::int64_t>(value);
}

std::optional<Value> realOf(xmlNode* element, int /*depth*/) {
  const OwnedNode node = nodeOf(element);
  if (!node || plist_get_node_type(node.get()) != PLIST_REAL) return std::nullopt;
  double value = 0;
  plist_get_real_val(node.get(), &value);
  return value;
}

std::optional<Value> dataOf(xmlNode* element, int /*depth*/) {
  const OwnedNode node = nodeOf(element);
  if (!node || plist_get_node_type(node.get()) != PLIST_DATA) return std::nullopt;
  char* bytes = nullptr;
  std::uint64_t length = 0;
  plist_get_data_val(node.get(), &bytes, &length);
  const OwnedBytes owner(bytes);
  return bytes ? PropertyList::Data(bytes, bytes + length) : PropertyList::Data();
}

std::optional<Value> dateOf(xmlNode* element, int /*depth*/) {
  using namespace std::chrono;
  constexpr sys_days kEpochOfLists = year(2001) / January / 1;
  const OwnedNode node = nodeOf(element);
  if (!node || plist_get_node_type(node.get()) != PLIST_DATE) return std::nullopt;
  std::int32_t wholeSeconds = 0;
  std::int32_t rest = 0;
  plist_get_date_val(node.get(), &wholeSeconds, &rest);
  return kEpochOfLists + seconds(wholeSeconds) + duration_cast<milliseconds>(microseconds(rest));
}

struct ElementReader {
  std::string_view element;
  std::optional<Value> (*read)(xmlNode*, int depth);
};
constexpr std::array kElementReaders = std::to_array<ElementReader>({
    {"string", stringOf},
    {"dict", dictionaryOf},
    {"array", arrayOf},
    {"true", booleanOf<true>},
    {"false", booleanOf<false>},
    {"integer", integerOf},
    {"real", realOf},
    {"data", dataOf},
    {"date", dateOf},
});

// Nothing when the element is nested too deeply or of no kind of value.
std::optional<PropertyList> valueOf(xmlNode* element, int depth) {
  if (depth > kDeepest) return std::nullopt;
  const auto kind = std::ranges::find_if(
      kElementReaders, [&](const ElementReader& each) { return isNamed(element, each.element); });
  auto value = kind == kElementReaders.end() ? std::nullopt : kind->read(element, depth);
  if (!value) return std::nullopt;
  return PropertyList(std::move(*value));
}

}  // namespace

std::optional<PropertyList> PropertyList::parseXML(std::string_view xml) noexcept {
  if (xml.empty() || xml.size() > kLongestText) return std::nullopt;
  const QuietLibrary quiet;
  const Document document = parseDocument(xml);
  xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
  if (!root || !isNamed(root, "plist") || !isContainer(root)) return std::nullopt;
  xmlNode* value = xmlFirstElementChild(root);
  return value && !xmlNextElementSibling(value) ? valueOf(value, 0) : std::nullopt;
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
