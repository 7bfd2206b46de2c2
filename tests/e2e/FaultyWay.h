// The way to a print server, which can be made to go wrong while somebody is on it.
#pragma once

#include <atomic>
#include <string>

#include "cups/ServerOptions.h"
#include "tests/support/SocketServer.h"

namespace cutline::test {

enum class WayFault {
  none,
  refused,         // nobody is there
  silent,          // takes what comes, and never answers
  byteASecond,     // of an answer
  resetInPpd,      // hangs up in the middle of what is longer than an answer
  authentication,  // wants to know who asks, whoever asks
  garbage,         // for an answer
};

class FaultyWay {
 public:
  // To the server at this socket.
  explicit FaultyWay(std::string socket) : mSocket(std::move(socket)) {}
  // As a server that comes back: whoever still waits goes on without an answer.
  ~FaultyWay();
  FaultyWay(const FaultyWay&) = delete;
  FaultyWay& operator=(const FaultyWay&) = delete;

  ServerOptions options() const { return mServer.options(); }
  // From now on, and for who is on the way now.
  void set(WayFault fault);

 private:
  void serve(int client);
  void goWrong(int client);
  std::size_t mayPass(std::size_t count) const;

  std::string mSocket;
  std::atomic<WayFault> mFault = WayFault::none;
  SocketServer mServer{[this](int client) { serve(client); }};
};

}  // namespace cutline::test
