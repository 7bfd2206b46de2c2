// The XML library's parser, owned.
#pragma once

#include <expat.h>

#include <memory>

namespace cutline {

struct XmlParserDeleter {
  void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};
// Null where there is no memory for one.
using XmlParser = std::unique_ptr<XML_ParserStruct, XmlParserDeleter>;

}  // namespace cutline
