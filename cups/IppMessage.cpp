#include "cups/IppMessage.h"

#include <array>
#include <string_view>

namespace cutline {

namespace {

constexpr std::string_view kPrinters = "/printers/";

IppMessage newRequest(ipp_op_t operation, const char* name, const std::string& uri) {
  IppMessage request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, name, nullptr, uri.c_str());
  return request;
}

IppMessage inOwnName(IppMessage request) {
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

}  // namespace

std::string printerUri(const std::string& printer) {
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", 0,
                   "/printers/%s", printer.c_str());
  return uri.data();
}

std::string printerOfUri(const std::string& uri) {
  std::array<char, HTTP_MAX_URI> scheme{};
  std::array<char, HTTP_MAX_URI> user{};
  std::array<char, HTTP_MAX_URI> host{};
  std::array<char, HTTP_MAX_URI> path{};
  int port = 0;
  const http_uri_status_t status =
      httpSeparateURI(HTTP_URI_CODING_ALL, uri.c_str(), scheme.data(), scheme.size(), user.data(),
                      user.size(), host.data(), host.size(), &port, path.data(), path.size());
  const std::string_view resource = path.data();
  if (status < HTTP_URI_STATUS_OK || !resource.starts_with(kPrinters)) return {};
  return std::string(resource.substr(kPrinters.size()));
}

IppMessage newPrinterRequest(ipp_op_t operation, const std::string& printer) {
  return newRequest(operation, "printer-uri", printerUri(printer));
}

IppMessage newServerRequest(ipp_op_t operation) {
  return inOwnName(newRequest(operation, "printer-uri", "ipp://localhost/"));
}

IppMessage newJobRequest(ipp_op_t operation, int jobId) {
  return inOwnName(
      newRequest(operation, "job-uri", "ipp://localhost/jobs/" + std::to_string(jobId)));
}

IppMessage answerTo(http_t* http, IppMessage request, const char* resource) {
  IppMessage answer(cupsDoRequest(http, request.release(), resource));
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
