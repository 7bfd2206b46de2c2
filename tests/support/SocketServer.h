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
// Passes everything on to the server at a socket, but hangs up on both when the client has sent
// this many bytes.
void relay(int client, const std::string& socket, std::size_t most);
// The same, but when the server has sent this many.
void relayBack(int client, const std::string& socket, std::size_t most);

}  // namespace cutline::test
