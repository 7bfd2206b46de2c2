#include "cups/ServerConnection.h"

#include <sys/socket.h>

namespace cutline {

namespace {

constexpr int kConnectMilliseconds = 30000;
constexpr int kUsualPort = 631;

Error noServer() {
  if (cupsEncryption() == HTTP_ENCRYPTION_REQUIRED) {
    return {"no print server gives an encrypted connection at \"" + serverText() + "\" (" +
            cupsLastErrorString() + "): start one or leave out -E"};
  }
  return {"no print server answers at \"" + serverText() + "\": start it or name another with -h"};
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

Error serverError(const std::string& what) {
  const char* reason = cupsLastErrorString();
  return {what + ": the print server at \"" + serverText() +
          "\" says: " + (reason && *reason ? reason : "nothing")};
}

}  // namespace cutline
