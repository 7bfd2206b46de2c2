#include "platform/lib/VectorPicture.h"

#include <numeric>

#include "platform/lib/ResourceFile.h"
#include "platform/lib/XmlParser.h"

namespace cutline {
namespace {

struct Outermost {
  XML_Parser parser;
  bool isVector = false;
};

void take(void* data, const XML_Char* name, const XML_Char** /*attributes*/) {
  auto& outermost = *static_cast<Outermost*>(data);
  const std::string_view whole = name;
  outermost.isVector = whole.substr(whole.find(':') + 1) == "svg";
  XML_StopParser(outermost.parser, XML_FALSE);
}

// Byte for byte: what stands before that name is ASCII in nearly every encoding.
int readAsBytes(void* /*data*/, const XML_Char* /*name*/, XML_Encoding* encoding) {
  std::iota(std::begin(encoding->map), std::end(encoding->map), 0);
  return XML_STATUS_OK;
}

}  // namespace

bool isVectorPicture(std::string_view bytes) noexcept {
  if (bytes.size() > kLargestResource) return false;
  const XmlParser parser(XML_ParserCreate(nullptr));
  if (!parser) return false;
  Outermost outermost{parser.get()};
  XML_SetUserData(parser.get(), &outermost);
  XML_SetStartElementHandler(parser.get(), take);
  XML_SetUnknownEncodingHandler(parser.get(), readAsBytes, nullptr);
  XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
  return outermost.isVector;
}

}  // namespace cutline
