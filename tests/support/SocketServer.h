// A server that goes wrong, on a socket in a temporary folder, as long as the object lives.
#pragma once

#include <functional>
#include <list>
#include <mutex>
#include <string>
#include <thread>

#include "base/FileDescriptor.h"
#include "cups/ServerOptions.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

class SocketServer {
 public:
  // Called for each client on a thread of its own; the connection is closed after it.
  using Serve = std::function<void(int client)>;
  explicit SocketServer(Serve serve);
  ~SocketServer();
  SocketServer(const SocketServer&) = delete;
  SocketServer& operator=(const SocketServer&) = delete;

  std::string path() const { return mFolder / "sock"; }
  ServerOptions options() const { return {path(), std::nullopt, false}; }

 private:
  void acceptAll();

  TemporaryFolder mFolder;
  Serve mServe;
  FileDescriptor mListener;
  std::mutex mMutex;
  std::list<int> mClients;  // open ones
  std::list<std::jthread> mServing;
  std::jthread mAccepting;
};

// Takes what the client sends and never answers.
void keepSilent(int client);
// Says that it is ready when it is asked that; answers the next request, without a body, with these
// bytes.
void answerWith(int client, const std::string& bytes);
// How many of so many bytes may pass. Where that is not all, relay hangs up on both ends.
using MayPass = std::function<std::size_t(std::size_t count)>;

// Passes everything on between the client and the server at a socket, as far as it may.
void relay(int client, const std::string& socket, const MayPass& there, const MayPass& back);
void relay(int client, const std::string& socket);
// Until the client has sent this many bytes.
void relay(int client, const std::string& socket, std::size_t most);
// Until the server has sent this many.
void relayBack(int client, const std::string& socket, std::size_t most);

}  // namespace cutline::test
