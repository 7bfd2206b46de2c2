#include "cups/ServerConnection.h"

#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

namespace cutline {

namespace {

constexpr int kUsualPort = 631;

// libcups keeps its last error per thread, and this belongs to it.
thread_local std::atomic<bool> tKeptSilent = false;

// Works around libcups 2.4.2: it connects again and asks the same up to twenty times, and should
// not be patient each time.
int giveUp(http_t* http, void* /*nothing*/) {
  constexpr double kNoTime = 0.01;
  tKeptSilent = true;
  httpSetTimeout(http, kNoTime, giveUp, nullptr);
  return 0;
}

Sentence silence() {
  return {Phrase("cups",
                 "the print server at \"%1\" does not answer: try again later, start it anew or "
                 "name another with -h"),
          {serverText()}};
}

Error noServer() {
  if (tKeptSilent) return silence();
  if (cupsEncryption() == HTTP_ENCRYPTION_REQUIRED) {
    return Sentence(
        Phrase("cups",
               "no print server gives an encrypted connection at \"%1\" (%2): start one "
               "or leave out -E"),
        {serverText(), std::string(cupsLastErrorString())});
  }
  return Sentence(
      Phrase("cups", "no print server answers at \"%1\": start it or name another with -h"),
      {serverText()});
}

bool isInsistedOn(http_encryption_t encryption) {
  return encryption == HTTP_ENCRYPTION_REQUIRED || encryption == HTTP_ENCRYPTION_ALWAYS;
}

// Where the connection breaks libcups still tells of what went well before.
bool isStale() { return cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE; }

// Where there is no answer, or none that can be read, libcups gives the system's words for whatever
// happened last in the program.
bool isSystems(std::string_view reason) {
  constexpr int kMost = 133;
  for (int code = 0; code <= kMost; ++code)
    if (reason == std::strerror(code)) return true;
  return false;
}

bool isDenial(ipp_status_t status) {
  constexpr std::array kDenials{IPP_STATUS_ERROR_FORBIDDEN, IPP_STATUS_ERROR_NOT_AUTHENTICATED,
                                IPP_STATUS_ERROR_NOT_AUTHORIZED,
                                IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED};
  return std::ranges::find(kDenials, status) != kDenials.end();
}

}  // namespace

// Works around libcups 2.4.2, which loses what unpacks a body when that is not read to its end. To
// flush it is the end; no more can come by then, however much the server would send.
void ServerConnection::Close::operator()(http_t* http) const noexcept {
  ::shutdown(httpGetFd(http), SHUT_RDWR);
  httpFlush(http);
  httpClose(http);
}

ServerConnection::ServerConnection(http_t* http) : mHttp(http) {
  limitTime();
  httpSetTimeout(http, static_cast<double>(kServerPatience.count()), giveUp, nullptr);
}

void ServerConnection::limitTime() {
  mDeadline = std::make_unique<ServerDeadline>(mHttp.get(), 2 * kServerPatience, tKeptSilent);
}

// The encryption comes second: a server that keeps silent there is noticed only with a limit, which
// a connection has once it is there.
Result<ServerConnection> ServerConnection::open(const ServerOptions& server) {
  constexpr int kMilliseconds = std::chrono::milliseconds(kServerPatience).count();
  tKeptSilent = false;
  server.applyToThisThread();
  http_t* http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                              HTTP_ENCRYPTION_IF_REQUESTED, /*blocking=*/1, kMilliseconds, nullptr);
  if (!http) return noServer();
  ServerConnection connection(http);
  if (isInsistedOn(cupsEncryption()) && httpEncryption(http, cupsEncryption()) != 0)
    return noServer();
  return connection;
}

bool ServerConnection::isAnswered() const noexcept {
  http_t* http = get();
  httpClearFields(http);
  if (httpOptions(http, "*") != 0) return false;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  httpFlush(http);
  return status != HTTP_STATUS_ERROR;
}

std::string serverText() {
  std::string server = cupsServer();
  const bool isSocket = server.starts_with('/');
  if (isSocket || ippPort() == kUsualPort) return server;
  return server + ':' + std::to_string(ippPort());
}

bool serverKeptSilent() noexcept { return tKeptSilent; }

Error serverError(Sentence what) {
  if (tKeptSilent) return Sentence(Phrase("cups", "%1: %2"), {std::move(what), silence()});
  const char* reason = cupsLastErrorString();
  if (isStale() || !reason || !*reason || isSystems(reason))
    return Sentence(Phrase("cups", "%1: the connection to the print server at \"%2\" was lost"),
                    {std::move(what), serverText()});
  if (isDenial(cupsLastError())) return denied(std::move(what), reason);
  return Sentence(Phrase("cups", "%1: the print server at \"%2\" says: %3"),
                  {std::move(what), serverText(), std::string(reason)});
}

Error denied(Sentence what, const std::string& reason) {
  return Sentence(Phrase("cups",
                         "%1: the print server at \"%2\" does not let you (%3): ask whoever looks "
                         "after it"),
                  {std::move(what), serverText(), reason});
}

}  // namespace cutline
