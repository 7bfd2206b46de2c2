// A connection to the print server that the options name, and the errors that it can meet.
#pragma once

#include <cups/cups.h>

#include <chrono>
#include <memory>
#include <string>

#include "base/Result.h"
#include "cups/ServerDeadline.h"
#include "cups/ServerOptions.h"

namespace cutline {

// How long a print server may keep silent before a call gives it up. What is asked of it on one
// connection may take twice as long altogether, so that a command that asks for its printer and for
// the printer's PPD ends within half a minute, whatever the server does.
inline constexpr std::chrono::seconds kServerPatience{7};

class ServerConnection {
 public:
  // Applies the options to this thread and connects. A server that has taken the connection need
  // not answer on it.
  static Result<ServerConnection> open(const ServerOptions& server);

  http_t* get() const noexcept { return mHttp.get(); }
  // Whether the server answers a question that asks for nothing. May wait.
  bool isAnswered() const noexcept;
  // A document takes as long as its way is: from now on the server need only not keep silent.
  void takeTime() noexcept { mDeadline->lift(); }
  // From now on the time runs anew, for what comes back.
  void limitTime();

 private:
  struct Close {
    void operator()(http_t* http) const noexcept;
  };
  explicit ServerConnection(http_t* http);
  std::unique_ptr<http_t, Close> mHttp;
  std::unique_ptr<ServerDeadline> mDeadline;
};

// HOST, HOST:PORT where the port is not the usual one, or the socket's path, as this thread has it.
std::string serverText();

// Whether the server of this thread's latest connection was given up because it kept silent.
bool serverKeptSilent() noexcept;

// The error of a call that failed on this thread: what was tried, and the server's own words, or
// that it has none.
Error serverError(Sentence what);
// The same where the server refuses for who asks.
Error denied(Sentence what, const std::string& reason);

}  // namespace cutline
