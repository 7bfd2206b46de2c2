#include "cups/IppMessage.h"

#include <array>

namespace cutline {

IppMessage newPrinterRequest(ipp_op_t operation, const std::string& printer) {
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", 0,
                   "/printers/%s", printer.c_str());
  IppMessage request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
  return request;
}

IppMessage answerTo(http_t* http, IppMessage request) {
  IppMessage answer(cupsDoRequest(http, request.release(), "/"));
  if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE) answer.reset();
  return answer;
}

std::string ippText(ipp_t* answer, const char* name, ipp_tag_t tag) {
  ipp_attribute_t* attribute = ippFindAttribute(answer, name, tag);
  const char* text = attribute ? ippGetString(attribute, 0, nullptr) : nullptr;
  return text ? text : "";
}

std::vector<std::string> ippKeywords(ipp_t* answer, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(answer, name, IPP_TAG_KEYWORD);
  std::vector<std::string> texts;
  for (int i = 0; attribute && i < ippGetCount(attribute); ++i) {
    texts.emplace_back(ippGetString(attribute, i, nullptr));
  }
  return texts;
}

std::optional<int> ippNumber(ipp_t* answer, const char* name, ipp_tag_t tag) {
  ipp_attribute_t* number = ippFindAttribute(answer, name, tag);
  return number ? std::optional<int>(ippGetInteger(number, 0)) : std::nullopt;
}

}  // namespace cutline
