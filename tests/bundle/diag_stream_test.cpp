// Messages and hex dumps to streams, with typed arguments.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <future>
#include <numeric>
#include <string>
#include <vector>

#include "bundle/diag/diagnostics.h"
#include "tests/bundle/DiagOutput.h"

namespace cutline::test {
namespace {

std::vector<unsigned char> bytesUpTo(int count) {
  std::vector<unsigned char> bytes(static_cast<std::size_t>(count));
  std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(0));
  return bytes;
}

constexpr char kSixteen[] = "000102030405060708090a0b0c0d0e0f";

class Streams : public testing::Test {
 protected:
  decltype(cutline::debugLog)* debugLog = cutline::debugLog;
  decltype(cutline::debugLogFd)* debugLogFd = cutline::debugLogFd;
};

TEST_F(Streams, AMessageIsPrintedAtLevelsUpToZero) {
  EXPECT_EQ(onStandardError([&] { debugLog(0, "x=%d", {5}); }), "DEBUG: x=5\n");
  EXPECT_EQ(onStandardError([&] { debugLog(-5, "%@", {"text"}); }), "DEBUG: text\n");
  EXPECT_EQ(onStandardError([&] { debugLog(1, "x", {}); }), "");
  EXPECT_EQ(onStandardError([&] { debugLog(100, "x", {}); }), "");
}

TEST_F(Streams, AMessageOnADescriptorHasNoPrefix) {
  EXPECT_EQ(onPipe([&](int to) { debugLogFd(0, to, "x=%d", {5}); }), "x=5\n");
  EXPECT_EQ(onPipe([&](int to) { debugLogFd(-1, to, "", {}); }), "\n");
  EXPECT_EQ(onPipe([&](int to) { debugLogFd(1, to, "x", {}); }), "");
}

TEST_F(Streams, AnObjectIsDescribed) {
  const TestObject panel("<panel>");
  EXPECT_EQ(onStandardError([&] { debugLog(0, "%@!", {panel}); }), "DEBUG: <panel>!\n");
}

TEST_F(Streams, WhatIsNoCharacterIsAQuestionMark) {
  EXPECT_EQ(onStandardError([&] { debugLog(0, "\xC3\xA9 \xED\xA0\x80 \xFF", {}); }),
            "DEBUG: \xC3\xA9 ? ?\n");
  EXPECT_EQ(onPipe([&](int to) { debugLogFd(0, to, "%s", {"\xE2\x82"}); }), "?\n");
}

TEST_F(Streams, StandardErrorGetsAMessageUpToANulAndADescriptorAllOfIt) {
  EXPECT_EQ(onStandardError([&] { debugLog(0, "a%cb", {0}); }), "DEBUG: a\n");
  EXPECT_EQ(onPipe([&](int to) { debugLogFd(0, to, "a%cb", {0}); }), std::string("a\0b\n", 4));
}

TEST_F(Streams, WithoutAFormatThereIsNoMessage) {
  EXPECT_EQ(onStandardError([&] { debugLog(0, nullptr, {}); }), "DEBUG: ");
  EXPECT_EQ(onPipe([&](int to) { debugLogFd(0, to, nullptr, {}); }), "");
}

TEST_F(Streams, AMessageAndItsLineFeedAreTwoWrites) {
  std::array<int, 2> ends{};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), 0);
  Channel channel(ends);
  debugLogFd(0, channel.input(), "message", {});
  channel.closeInput();
  EXPECT_EQ(channel.next(), "message");
  EXPECT_EQ(channel.next(), "\n");
}

TEST_F(Streams, AHexDumpHasNoLineFeeds) {
  const std::array<unsigned char, 3> bytes{0x01, 0xAB, 0xFF};
  EXPECT_EQ(onStandardError([&] { memoryCheck(0, bytes.data(), 3); }), "DEBUG:01abff");
}

TEST_F(Streams, AFullLastLineOfAHexDumpIsFollowedByAnEmptyOne) {
  const auto bytes = bytesUpTo(33);
  const std::string line = std::string("DEBUG:") + kSixteen;
  EXPECT_EQ(onStandardError([&] { memoryCheck(0, bytes.data(), 16); }), line + "DEBUG:");
  EXPECT_EQ(onStandardError([&] { memoryCheck(-1, bytes.data(), 15); }),
            line.substr(0, line.size() - 2));
  EXPECT_EQ(onStandardError([&] { memoryCheck(0, bytes.data(), 17); }), line + "DEBUG:10");
  EXPECT_EQ(onStandardError([&] { memoryCheck(0, bytes.data(), 32); }),
            line + "DEBUG:101112131415161718191a1b1c1d1e1fDEBUG:");
}

TEST_F(Streams, AHexDumpOnADescriptorHasALineFeedALine) {
  const auto bytes = bytesUpTo(33);
  const std::string line = std::string(kSixteen) + "\n";
  EXPECT_EQ(onPipe([&](int to) { memoryCheckFd(0, to, bytes.data(), 17); }), line + "10\n");
  EXPECT_EQ(onPipe([&](int to) { memoryCheckFd(0, to, bytes.data(), 16); }), line);
  EXPECT_EQ(onPipe([&](int to) { memoryCheckFd(-3, to, bytes.data(), 32); }),
            line + "101112131415161718191a1b1c1d1e1f\n");
  EXPECT_EQ(onPipe([&](int to) { memoryCheckFd(0, to, bytes.data(), 1); }), "00\n");
}

TEST_F(Streams, AHexDumpOfNothingPrintsNothing) {
  const char byte = 'x';
  EXPECT_EQ(onStandardError([&] {
              memoryCheck(1, &byte, 1);
              memoryCheck(0, nullptr, 1);
              memoryCheck(0, &byte, 0);
              memoryCheck(0, &byte, -16);
            }),
            "");
  EXPECT_EQ(onPipe([&](int to) {
              memoryCheckFd(1, to, &byte, 1);
              memoryCheckFd(0, to, nullptr, 1);
              memoryCheckFd(0, to, &byte, 0);
              memoryCheckFd(0, to, &byte, -16);
            }),
            "");
}

TEST_F(Streams, AWriteThatFailsIsIgnored) {
  const char byte = 'x';
  const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
  ASSERT_GE(full, 0);
  for (const int descriptor : {-1, full}) {
    debugLogFd(0, descriptor, "x", {});
    memoryCheckFd(0, descriptor, &byte, 1);
  }
  close(full);
}

// A pipe holds less than the message, so that it is written in pieces, and a timer's signal
// interrupts the writes that wait.
TEST_F(Streams, ALongMessageOutlastsShortAndInterruptedWrites) {
  struct sigaction noRestart {};
  noRestart.sa_handler = [](int) {};
  struct sigaction before {};
  ASSERT_EQ(sigaction(SIGALRM, &noRestart, &before), 0);
  const itimerval often{{0, 500}, {0, 500}};
  const std::string text(1 << 20, 'm');

  Channel channel = Channel::pipe();
  sigset_t alarm;
  sigemptyset(&alarm);
  sigaddset(&alarm, SIGALRM);
  // The reader takes no signals: they are meant for the writer.
  pthread_sigmask(SIG_BLOCK, &alarm, nullptr);
  auto reader = std::async(std::launch::async, [&] {
    std::string read;
    for (std::string part = channel.next(); !part.empty(); part = channel.next()) {
      read += part;
      usleep(1000);
    }
    return read;
  });
  pthread_sigmask(SIG_UNBLOCK, &alarm, nullptr);
  setitimer(ITIMER_REAL, &often, nullptr);
  debugLogFd(0, channel.input(), "%s", {text});
  const itimerval never{};
  setitimer(ITIMER_REAL, &never, nullptr);
  channel.closeInput();
  EXPECT_TRUE(reader.get() == text + "\n");
  sigaction(SIGALRM, &before, nullptr);
}

}  // namespace
}  // namespace cutline::test
