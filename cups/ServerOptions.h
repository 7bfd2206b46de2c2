// Which print server to talk to, and as whom. libcups keeps these per thread, so every thread that
// calls it applies them first.
#pragma once

#include <optional>
#include <string>

namespace cutline {

struct ServerOptions {
  std::optional<std::string>
      server;                       // HOST[:PORT] or a socket's path; libcups' own rule when absent
  std::optional<std::string> user;  // the user that jobs are sent as
  bool encrypt = false;             // insist on encryption; a thread that once did goes on

  // Every call that takes ServerOptions does this itself.
  void applyToThisThread() const;
};

// From now on no call asks for a password at the terminal that the program was started from: behind
// a window nobody looks there, and the call would wait for ever.
void leaveTerminalAlone() noexcept;

}  // namespace cutline
