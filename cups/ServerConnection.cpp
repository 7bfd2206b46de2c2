#include "cups/ServerConnection.h"

#include <sys/socket.h>

#include <utility>

namespace cutline {

namespace {

constexpr int kConnectMilliseconds = 30000;
constexpr int kUsualPort = 631;

Error noServer() {
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

}  // namespace

Result<ServerConnection> ServerConnection::open(const ServerOptions& server) {
  server.applyToThisThread();
  http_t* http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                              /*blocking=*/1, kConnectMilliseconds, nullptr);
  if (!http) return noServer();
  return ServerConnection(http);
}

std::string serverText() {
  std::string server = cupsServer();
  const bool isSocket = server.starts_with('/');
  if (isSocket || ippPort() == kUsualPort) return server;
  return server + ':' + std::to_string(ippPort());
}

Error serverError(Sentence what) {
  const char* reason = cupsLastErrorString();
  const Sentence words = reason && *reason ? Sentence(reason) : Phrase("cups", "nothing");
  return Sentence(Phrase("cups", "%1: the print server at \"%2\" says: %3"),
                  {std::move(what), serverText(), words});
}

}  // namespace cutline
