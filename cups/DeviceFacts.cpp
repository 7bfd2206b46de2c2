#include "cups/DeviceFacts.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <array>
#include <atomic>
#include <chrono>
#include <optional>
#include <string_view>

#include "cups/IppMessage.h"
#include "cups/ServerDeadline.h"

namespace cutline {

namespace {

// For the connection and for each silence, and for the whole.
constexpr std::chrono::milliseconds kPatience{2000};
constexpr std::chrono::milliseconds kWhole{4000};

struct CloseHttp {
  void operator()(http_t* http) const noexcept { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, CloseHttp>;

struct Address {
  std::string host, resource;
  int port = 0;
  bool isEncrypted = false;
};

std::optional<Address> addressIn(const std::string& uri) {
  std::array<char, HTTP_MAX_URI> scheme{};
  std::array<char, HTTP_MAX_URI> user{};
  std::array<char, HTTP_MAX_URI> host{};
  std::array<char, HTTP_MAX_URI> resource{};
  int port = 0;
  const http_uri_status_t status = httpSeparateURI(
      HTTP_URI_CODING_ALL, uri.c_str(), scheme.data(), scheme.size(), user.data(), user.size(),
      host.data(), host.size(), &port, resource.data(), resource.size());
  const std::string_view kind = scheme.data();
  if (status < HTTP_URI_STATUS_OK || (kind != "ipp" && kind != "ipps")) return std::nullopt;
  return Address{host.data(), resource.data(), port, kind == "ipps"};
}

int giveUpOnDevice(http_t* /*http*/, void* /*nothing*/) { return 0; }

Connection connectTo(const Address& address) {
  Connection http(
      httpConnect2(address.host.c_str(), address.port, nullptr, AF_UNSPEC,
                   address.isEncrypted ? HTTP_ENCRYPTION_ALWAYS : HTTP_ENCRYPTION_IF_REQUESTED,
                   /*blocking=*/1, static_cast<int>(kPatience.count()), nullptr));
  if (http != nullptr)
    httpSetTimeout(http.get(), std::chrono::duration<double>(kPatience).count(), giveUpOnDevice,
                   nullptr);
  return http;
}

IppMessage questionFor(const std::string& uri) {
  constexpr std::array kWanted{"finishings-default", "media-col-ready", "media-ready"};
  IppMessage request(ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.c_str());
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                kWanted.size(), nullptr, kWanted.data());
  return request;
}

// Once, and without what libcups does besides: it would ask for a password, and begin anew.
IppMessage ask(http_t* http, const Address& address, ipp_t* question) {
  httpClearFields(http);
  httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
  httpSetLength(http, ippLength(question));
  if (httpPost(http, address.resource.c_str()) != 0) return nullptr;
  if (ippWrite(http, question) != IPP_STATE_DATA) return nullptr;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  if (status != HTTP_STATUS_OK) return nullptr;
  IppMessage answer(ippNew());
  ipp_state_t state = IPP_STATE_HEADER;
  while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR) state = ippRead(http, answer.get());
  return state == IPP_STATE_DATA ? std::move(answer) : nullptr;
}

std::vector<int> numbersIn(ipp_t* answer, const char* name) {
  std::vector<int> numbers;
  ipp_attribute_t* attribute = ippFindAttribute(answer, name, IPP_TAG_ENUM);
  for (int i = 0; attribute != nullptr && i < ippGetCount(attribute); ++i)
    numbers.push_back(ippGetInteger(attribute, i));
  return numbers;
}

// A range, of a roll that is cut to any length, is no size.
void addMeasures(ipp_t* media, std::vector<MediaMeasures>& ready) {
  ipp_attribute_t* size = ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION);
  if (size == nullptr) return;
  ipp_t* measures = ippGetCollection(size, 0);
  const auto width = ippNumber(measures, "x-dimension");
  const auto length = ippNumber(measures, "y-dimension");
  if (width && length) ready.push_back({*width, *length});
}

std::vector<MediaMeasures> readyIn(ipp_t* answer) {
  std::vector<MediaMeasures> ready;
  ipp_attribute_t* media = ippFindAttribute(answer, "media-col-ready", IPP_TAG_BEGIN_COLLECTION);
  for (int i = 0; media != nullptr && i < ippGetCount(media); ++i)
    addMeasures(ippGetCollection(media, i), ready);
  if (!ready.empty()) return ready;
  for (const std::string& name : ippKeywords(answer, "media-ready"))
    if (const pwg_media_t* known = pwgMediaForPWG(name.c_str()))
      ready.push_back({known->width, known->length});
  return ready;
}

}  // namespace

DeviceFacts askDevice(const std::string& deviceURI) {
  const std::optional<Address> address = addressIn(deviceURI);
  if (!address) return {};
  const Connection http = connectTo(*address);
  if (http == nullptr) return {};
  std::atomic<bool> isOver = false;
  const ServerDeadline deadline(http.get(), kWhole, isOver);
  const IppMessage question = questionFor(deviceURI);
  const IppMessage answer = ask(http.get(), *address, question.get());
  if (answer == nullptr) return {};
  return {numbersIn(answer.get(), "finishings-default"), readyIn(answer.get())};
}

}  // namespace cutline
