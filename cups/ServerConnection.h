// A connection to the print server that the options name, and the errors that it can meet.
#pragma once

#include <cups/cups.h>

#include <memory>
#include <string>

#include "base/Result.h"
#include "cups/ServerOptions.h"

namespace cutline {

class ServerConnection {
 public:
  // Applies the options to this thread and connects. May block for half a minute.
  static Result<ServerConnection> open(const ServerOptions& server);

  http_t* get() const noexcept { return mHttp.get(); }

 private:
  struct Close {
    void operator()(http_t* http) const noexcept { httpClose(http); }
  };
  explicit ServerConnection(http_t* http) : mHttp(http) {}
  std::unique_ptr<http_t, Close> mHttp;
};

// HOST, HOST:PORT where the port is not the usual one, or the socket's path, as this thread has it.
std::string serverText();

// The error of a call that failed on this thread: what was tried, and the server's own words.
Error serverError(Sentence what);

}  // namespace cutline
