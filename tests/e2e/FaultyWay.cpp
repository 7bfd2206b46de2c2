#include "tests/e2e/FaultyWay.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include "base/FileDescriptor.h"

namespace cutline::test {

namespace {

// More than any answer has, and less than any PPD.
constexpr std::size_t kInPpd = 20'000;

constexpr char kWhoAsks[] =
    "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 0\r\n\r\n";

void drip(int client) {
  answerWith(client, "HTTP/1.1 200 OK\r\nX: ");
  while (writeAll(client, "x", 1)) std::this_thread::sleep_for(std::chrono::seconds(1));
}

void answerGarbage(int client) {
  const std::string bytes = "\x02\x01" + std::string(2000, '\xa5');
  answerWith(client, "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
                         std::to_string(bytes.size()) + "\r\n\r\n" + bytes);
}

}  // namespace

FaultyWay::~FaultyWay() { set(WayFault::none); }

void FaultyWay::set(WayFault fault) {
  signal(SIGPIPE, SIG_IGN);
  const std::string path = mServer.path();
  const std::string away = path + ".away";
  const WayFault before = mFault.exchange(fault);
  if (before == WayFault::refused) std::filesystem::rename(away, path);
  if (fault == WayFault::refused) std::filesystem::rename(path, away);
}

std::size_t FaultyWay::mayPass(std::size_t count) const {
  const WayFault fault = mFault;
  return fault == WayFault::none || fault == WayFault::resetInPpd ? count : 0;
}

void FaultyWay::serve(int client) {
  if (mayPass(1) == 0) return goWrong(client);
  const auto back = [this, passed = std::size_t{0}](std::size_t count) mutable {
    passed += count;
    return mFault == WayFault::resetInPpd && passed > kInPpd ? 0 : mayPass(count);
  };
  relay(
      client, mSocket, [this](std::size_t count) { return mayPass(count); }, back);
  if (mFault == WayFault::silent) keepSilent(client);
}

void FaultyWay::goWrong(int client) {
  switch (mFault) {
    case WayFault::silent:
      return keepSilent(client);
    case WayFault::byteASecond:
      return drip(client);
    case WayFault::authentication:
      return answerWith(client, kWhoAsks);
    case WayFault::garbage:
      return answerGarbage(client);
    default:
      return;
  }
}

}  // namespace cutline::test
