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

}  // namespace cutline
