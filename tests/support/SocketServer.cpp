#include "tests/support/SocketServer.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <stdexcept>

namespace cutline::test {
namespace {

constexpr std::size_t kBlock = 4096;

FileDescriptor newSocket() {
  return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

sockaddr_un addressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  return address;
}

FileDescriptor listenAt(const std::string& path) {
  FileDescriptor listener = newSocket();
  const sockaddr_un address = addressOf(path);
  if (::bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
      ::listen(listener.get(), SOMAXCONN) != 0)
    throw std::runtime_error("no socket at " + path);
  return listener;
}

// What arrived at once; at most `most` bytes. Nothing at the end.
std::string receive(int from, std::size_t most) {
  std::array<char, kBlock> block{};
  const ssize_t count = ::recv(from, block.data(), std::min(block.size(), most), 0);
  return count > 0 ? std::string(block.data(), static_cast<std::size_t>(count)) : std::string();
}

bool pass(int to, const std::string& bytes) {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const ssize_t count = ::send(to, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (count <= 0) return false;
    sent += static_cast<std::size_t>(count);
  }
  return !bytes.empty();
}

}  // namespace

SocketServer::SocketServer(Serve serve)
    : mServe(std::move(serve)), mListener(listenAt(path())), mAccepting([this] { acceptAll(); }) {}

SocketServer::~SocketServer() {
  ::shutdown(mListener.get(), SHUT_RDWR);
  mAccepting.join();
  {
    const std::scoped_lock lock(mMutex);
    for (const int client : mClients) ::shutdown(client, SHUT_RDWR);
  }
  mServing.clear();
}

void SocketServer::acceptAll() {
  for (int client = 0; (client = ::accept(mListener.get(), nullptr, nullptr)) >= 0;) {
    {
      const std::scoped_lock lock(mMutex);
      mClients.push_back(client);
    }
    mServing.emplace_back([this, client] {
      mServe(client);
      const std::scoped_lock lock(mMutex);
      mClients.remove(client);
      ::close(client);
    });
  }
}

void keepSilent(int client) {
  while (!receive(client, kBlock).empty()) continue;
}

void answerWith(int client, const std::string& bytes) {
  constexpr char kReady[] = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n";
  for (std::string request; request.find("\r\n\r\n") == std::string::npos;) {
    const std::string part = receive(client, kBlock);
    if (part.empty()) return;
    request += part;
    if (!request.starts_with("OPTIONS ") || !request.ends_with("\r\n\r\n")) continue;
    pass(client, kReady);
    request.clear();
  }
  pass(client, bytes);
}

namespace {

// Passes as much of it as may pass. No where that is not all, or the other end is gone.
bool passSome(int to, const std::string& bytes, const MayPass& mayPass) {
  const std::size_t count = mayPass(bytes.size());
  return pass(to, bytes.substr(0, count)) && count == bytes.size();
}

MayPass upTo(std::size_t most) {
  return [left = most](std::size_t count) mutable {
    const std::size_t passed = std::min(left, count);
    left -= passed;
    return passed;
  };
}

std::size_t everything(std::size_t count) { return count; }

}  // namespace

void relay(int client, const std::string& socket, const MayPass& there, const MayPass& back) {
  const FileDescriptor server = newSocket();
  const sockaddr_un address = addressOf(socket);
  if (::connect(server.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    return;
  std::array<pollfd, 2> both{{{client, POLLIN, 0}, {server.get(), POLLIN, 0}}};
  while (::poll(both.data(), both.size(), -1) > 0) {
    if (both[0].revents != 0 && !passSome(server.get(), receive(client, kBlock), there)) return;
    if (both[1].revents != 0 && !passSome(client, receive(server.get(), kBlock), back)) return;
  }
}

void relay(int client, const std::string& socket) { relay(client, socket, everything, everything); }

void relay(int client, const std::string& socket, std::size_t most) {
  relay(client, socket, upTo(most), everything);
}

void relayBack(int client, const std::string& socket, std::size_t most) {
  relay(client, socket, everything, upTo(most));
}

}  // namespace cutline::test
