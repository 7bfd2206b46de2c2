#include "platform/lib/PropertyList.h"

#include <utility>

#include "base/Transcoding.h"
#include "platform/lib/ListElements.h"
#include "platform/lib/XmlParser.h"

namespace cutline {
namespace {

constexpr std::size_t kDeepest = 64;
// No list of ours comes near it, and what is read of it has still room in memory.
constexpr std::size_t kLongestText = std::size_t{4} << 20;
constexpr std::string_view kBlanks = " \t\r\n";
constexpr char kUtf8[] = "UTF-8";

using Value = PropertyList::Value;
using Holds = ListElement::Holds;

// An element that is not closed yet, and what was read of it.
struct OpenElement {
  const ListElement* element;
  std::string text = {};
  PropertyList::Array values = {};  // of a list, one
  PropertyList::Dictionary entries = {};
  std::optional<std::string> key = {};  // that waits for its value
};

// Builds the value of a document as the parser tells of its parts. What is no list stops the
// parser.
class ListReader {
 public:
  explicit ListReader(XML_Parser parser) : mParser(parser) {}

  // Nothing unless the whole document was read.
  std::optional<PropertyList> take() { return std::move(mList); }

  void open(std::string_view name) {
    if (mIsRefused) return;
    const ListElement* element = listElement(name);
    // The list itself is one of those that are open.
    if (!element || mOpen.size() > kDeepest + 1 || !mayHold(*element)) return refuse();
    mOpen.push_back({element});
  }

  void addText(std::string_view text) {
    if (mIsRefused) return;
    OpenElement& last = mOpen.back();
    if (last.element->holds == Holds::text || last.element->holds == Holds::key)
      last.text += text;
    else if (text.find_first_not_of(kBlanks) != text.npos)
      refuse();
  }

  void close() {
    if (mIsRefused) return;
    OpenElement last = std::move(mOpen.back());
    mOpen.pop_back();
    if (last.element->holds == Holds::list) return finish(last);
    if (last.element->holds == Holds::key) {
      mOpen.back().key = std::move(last.text);
      return;
    }
    auto value = valueOf(last);
    if (!value) return refuse();
    add(PropertyList(std::move(*value)));
  }

  // The parser still tells of the end of an element that it has read as a whole.
  void refuse() {
    mIsRefused = true;
    XML_StopParser(mParser, XML_FALSE);
  }

 private:
  // Whether the element may stand where the parser is.
  bool mayHold(const ListElement& inner) const {
    if (mOpen.empty()) return inner.holds == Holds::list;
    if (inner.holds == Holds::list) return false;
    const OpenElement& outer = mOpen.back();
    const bool isKey = inner.holds == Holds::key;
    switch (outer.element->holds) {
      case Holds::list:
        return !isKey && outer.values.empty();
      case Holds::values:
        return !isKey;
      case Holds::keysAndValues:
        return isKey != outer.key.has_value();
      default:
        return false;
    }
  }

  static std::optional<Value> valueOf(OpenElement& last) {
    if (last.element->valueOf) return last.element->valueOf(last.text);
    if (last.element->holds == Holds::values) return std::move(last.values);
    if (last.key) return std::nullopt;
    return std::move(last.entries);
  }

  void add(PropertyList value) {
    OpenElement& outer = mOpen.back();
    if (outer.element->holds != Holds::keysAndValues) {
      outer.values.push_back(std::move(value));
      return;
    }
    outer.entries.insert_or_assign(std::move(*outer.key), std::move(value));
    outer.key.reset();
  }

  void finish(OpenElement& list) {
    if (list.values.empty()) return refuse();
    mList = std::move(list.values.front());
  }

  XML_Parser mParser;
  std::vector<OpenElement> mOpen;
  std::optional<PropertyList> mList;
  bool mIsRefused = false;
};

ListReader& readerOf(void* data) { return *static_cast<ListReader*>(data); }

// Expands no entity and fetches nothing: that there is a handler for what is left, which does
// nothing, makes the parser tell of entities instead.
void setHandlers(XML_Parser parser, ListReader& reader) {
  XML_SetUserData(parser, &reader);
  XML_SetElementHandler(
      parser, [](void* data, const XML_Char* name, const XML_Char**) { readerOf(data).open(name); },
      [](void* data, const XML_Char*) { readerOf(data).close(); });
  XML_SetCharacterDataHandler(parser, [](void* data, const XML_Char* text, int length) {
    readerOf(data).addText({text, static_cast<std::size_t>(length)});
  });
  XML_SetDefaultHandler(parser, [](void*, const XML_Char*, int) {});
  XML_SetSkippedEntityHandler(parser,
                              [](void* data, const XML_Char*, int) { readerOf(data).refuse(); });
  XML_SetExternalEntityRefHandler(parser,
                                  [](XML_Parser, const XML_Char*, const XML_Char*, const XML_Char*,
                                     const XML_Char*) -> int { return XML_STATUS_ERROR; });
}

// The list, or the encoding that the parser would have to know.
std::optional<PropertyList> read(std::string_view xml, const char* encoding, std::string& unknown) {
  const XmlParser parser(XML_ParserCreate(encoding));
  if (!parser) return std::nullopt;
  ListReader reader(parser.get());
  setHandlers(parser.get(), reader);
  XML_SetUnknownEncodingHandler(
      parser.get(),
      [](void* name, const XML_Char* encoding, XML_Encoding*) -> int {
        *static_cast<std::string*>(name) = encoding;
        return XML_STATUS_ERROR;
      },
      &unknown);
  const auto length = static_cast<int>(xml.size());
  if (XML_Parse(parser.get(), xml.data(), length, XML_TRUE) != XML_STATUS_OK) return std::nullopt;
  return reader.take();
}

}  // namespace

std::optional<PropertyList> PropertyList::parseXML(std::string_view xml) noexcept {
  if (xml.size() > kLongestText) return std::nullopt;
  std::string encoding;
  auto list = read(xml, nullptr, encoding);
  if (encoding.empty()) return list;
  const auto text = transcoded(xml, encoding, kUtf8);
  return text ? read(*text, kUtf8, encoding) : std::nullopt;
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
