#include "platform/lib/PropertyList.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlsave.h>
#include <plist/plist.h>

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
  void operator()(void* memory) const noexcept { std::free(memory); }
};
template <typename T>
using Owned = std::unique_ptr<T, FreeDeleter>;

struct DocumentDeleter {
  void operator()(xmlDoc* document) const noexcept { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, DocumentDeleter>;

struct BufferDeleter {
  void operator()(xmlBuffer* buffer) const noexcept { xmlBufferFree(buffer); }
};
using Buffer = std::unique_ptr<xmlBuffer, BufferDeleter>;

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
  constexpr int kQuietAndAlone = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
  return Document(
      xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr, kQuietAndAlone));
}

bool isList(const xmlNode* element) { return xmlStrEqual(element->name, BAD_CAST "plist") != 0; }

// The element of the list alone, in UTF-8: the parsing library takes no other encoding, no byte
// order mark and no document without an end for what they are. Null when the document is no list of
// one value.
Buffer listIn(const Document& document) {
  xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
  if (!root || !isList(root) || xmlChildElementCount(root) != 1) return nullptr;
  if (isList(xmlFirstElementChild(root))) return nullptr;
  Buffer list(xmlBufferCreate());
  const auto options = XML_SAVE_NO_DECL | XML_SAVE_AS_XML;
  xmlSaveCtxt* saving = xmlSaveToBuffer(list.get(), "UTF-8", options);
  xmlSaveTree(saving, root);
  return xmlSaveClose(saving) < 0 ? nullptr : std::move(list);
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

Value dateOf(plist_t node) {
  using namespace std::chrono;
  constexpr sys_days kEpochOfLists = year(2001) / January / 1;
  std::int32_t wholeSeconds = 0;
  std::int32_t rest = 0;
  plist_get_date_val(node, &wholeSeconds, &rest);
  return kEpochOfLists + seconds(wholeSeconds) + duration_cast<milliseconds>(microseconds(rest));
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
      return dateOf(node);
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
  if (xml.empty() || xml.size() > kLongestText) return std::nullopt;
  const QuietLibrary quiet;
  const Buffer list = listIn(parseDocument(xml));
  if (!list) return std::nullopt;
  plist_t parsed = nullptr;
  plist_from_xml(reinterpret_cast<const char*>(xmlBufferContent(list.get())),
                 static_cast<std::uint32_t>(xmlBufferLength(list.get())), &parsed);
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
