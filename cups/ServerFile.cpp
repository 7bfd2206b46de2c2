#include "cups/ServerFile.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>

#include "base/Numbers.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

constexpr std::size_t kBlock = 16384;
// A password and an encryption may be asked for first.
constexpr int kMostTries = 4;

http_status_t askOnce(http_t* http, const std::string& resource) {
  const char* authorization = httpGetAuthString(http);
  const std::string kept = authorization ? authorization : "";
  httpClearFields(http);
  httpSetField(http, HTTP_FIELD_AUTHORIZATION, kept.c_str());
  if (httpGet(http, resource.c_str()) != 0) return HTTP_STATUS_ERROR;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  return status;
}

bool connectAgain(http_t* http) {
  constexpr int kMilliseconds = std::chrono::milliseconds(kServerPatience).count();
  return httpReconnect2(http, kMilliseconds, nullptr) == 0;
}

// Does what the server asks for before it hands the file out; false where that cannot be done.
bool comply(http_t* http, const std::string& resource, http_status_t status) {
  httpFlush(http);
  if (status == HTTP_STATUS_UNAUTHORIZED)
    return cupsDoAuthentication(http, "GET", resource.c_str()) == 0 && connectAgain(http);
  return connectAgain(http) && httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0;
}

http_status_t ask(http_t* http, const std::string& resource) {
  http_status_t status = HTTP_STATUS_ERROR;
  for (int tries = 0; tries < kMostTries; ++tries) {
    status = askOnce(http, resource);
    if (status != HTTP_STATUS_UNAUTHORIZED && status != HTTP_STATUS_UPGRADE_REQUIRED) break;
    if (!comply(http, resource, status)) break;
  }
  return status;
}

// What the server said of the contents before it sent them.
struct Promise {
  std::string length;  // as it stands there; empty where it did not say
  bool isPacked = false;
  bool hasEnd = false;  // the last of the chunks says that it is the last
};

Promise promiseOf(http_t* http) {
  const std::string encoding = httpGetField(http, HTTP_FIELD_CONTENT_ENCODING);
  return {httpGetField(http, HTTP_FIELD_CONTENT_LENGTH),
          !encoding.empty() && encoding != "identity", httpIsChunked(http) != 0};
}

// libcups unpacks on the way, so only what was not packed can be counted; where the bytes end too
// early it keeps that as the connection's error.
bool isWhole(http_t* http, const Promise& promise, std::size_t size) {
  if (httpError(http) != 0) return false;
  if (promise.hasEnd) return true;
  if (promise.length.empty()) return false;
  return promise.isPacked || numberIn<std::size_t>(promise.length) == size;
}

Error tooLarge(const Sentence& name, std::size_t most) {
  constexpr std::size_t kMegabyte = 1U << 20U;
  return Sentence(Phrase("cups", "%1 from the print server at \"%2\" is larger than %3 MB"),
                  {name, serverText(), std::to_string(most / kMegabyte)});
}

Error cutOff(const Sentence& name) {
  if (serverKeptSilent()) return serverError({Phrase("cups", "%1 did not arrive whole"), {name}});
  return Sentence(
      Phrase("cups", "%1 did not arrive whole from the print server at \"%2\": try again"),
      {name, serverText()});
}

}  // namespace

Result<ServerFile> fetchServerFile(http_t* http, const std::string& resource, std::size_t most,
                                   const Sentence& name) {
  ServerFile file{ask(http, resource), ""};
  if (file.status != HTTP_STATUS_OK) return file;
  const Promise promise = promiseOf(http);
  file.contents.reserve(std::min(numberIn<std::size_t>(promise.length).value_or(0), most));
  std::array<char, kBlock> block;
  ssize_t count = 0;
  while ((count = httpRead2(http, block.data(), block.size())) > 0) {
    file.contents.append(block.data(), static_cast<std::size_t>(count));
    if (file.contents.size() > most) return tooLarge(name, most);
  }
  if (count < 0 || !isWhole(http, promise, file.contents.size())) return cutOff(name);
  return file;
}

}  // namespace cutline
