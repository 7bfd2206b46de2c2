// What happens when the print server or the way to it fails.
#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>

#include "cups/PpdContents.h"
#include "cups/PpdFile.h"
#include "cups/PrintJob.h"
#include "cups/ServerConnection.h"
#include "tests/cups/ServerTest.h"
#include "tests/support/Command.h"
#include "tests/support/SocketServer.h"

namespace cutline {
namespace {

using test::SocketServer;

class ServerFaultsTest : public test::ServerTest {
 protected:
  // A server that gives this answer to every request.
  static Result<std::shared_ptr<PpdFile>> fetchFrom(const std::string& answer) {
    const SocketServer server([&](int client) { test::answerWith(client, answer); });
    return PpdFile::fetch(server.options(), "tape");
  }
  static std::string answer(const std::string& fields, const std::string& body) {
    return "HTTP/1.1 200 OK\r\n" + fields + "\r\n\r\n" + body;
  }
  static std::string ppdText() {
    return test::contentsOf(test::built("share/cutline/samples/ppd/tape-a.ppd"));
  }
  static std::string lengthOf(std::size_t size) {
    return "Content-Length: " + std::to_string(size);
  }
  static std::string chunk(const std::string& bytes) {
    std::array<char, 32> head{};
    std::snprintf(head.data(), head.size(), "%zx\r\n", bytes.size());
    return head.data() + bytes + "\r\n";
  }
  static std::string packed(const std::string& bytes) {
    const test::TemporaryFolder folder;
    gzFile file = gzopen((folder / "x").c_str(), "wb");
    gzwrite(file, bytes.data(), static_cast<unsigned>(bytes.size()));
    gzclose(file);
    return test::contentsOf(folder / "x");
  }
  static void expectCutOff(const Result<std::shared_ptr<PpdFile>>& ppd) {
    ASSERT_FALSE(ppd);
    EXPECT_NE(ppd.error().message.find("the PPD of \"tape\" did not arrive whole"),
              std::string::npos)
        << ppd.error().message;
  }

  test::TemporaryFolder mFolder;
};

// Wherever the way breaks, a job that is called sent is one that the server has whole.
TEST_F(ServerFaultsTest, ADocumentWhoseWayBreaksIsNeverCalledSent) {
  test::outputOf("cupsdisable " + printer());
  const std::string path = mFolder.write("label.txt", std::string(300000, 'x'));
  const DestinationName name{printer(), std::nullopt};
  int sent = 0;
  for (std::size_t most = 20000; most <= 320000; most += 20000) {
    const SocketServer between(
        [&](int client) { test::relay(client, *server().options().server, most); });
    const auto job = submitJob(between.options(), {name, path, "t", {}}, nullptr);
    if (!job) continue;
    ++sent;
    const auto status = jobStatus({}, name, *job);
    ASSERT_TRUE(status) << status.error().message;
    EXPECT_EQ(status->kilobytes, 293) << "of a connection cut after " << most;
  }
  EXPECT_EQ(sent, 1);
  test::outputOf("cancel -a; cupsenable " + printer());
}

// However much of the answer arrives: a job that the server has is called sent, and no other.
TEST_F(ServerFaultsTest, AJobWhoseAnswerGetsLostIsFound) {
  test::outputOf("cupsdisable " + printer());
  const std::string path = mFolder.write("label.txt", std::string(1000, 'x'));
  int sent = 0;
  int failed = 0;
  for (std::size_t most = 1; most < 1000; most += 50) {
    std::atomic<bool> isFirst = true;
    const SocketServer between([&](int client) {
      if (!isFirst.exchange(false)) return test::relay(client, *server().options().server);
      test::relayBack(client, *server().options().server, most);
    });
    const auto job =
        submitJob(between.options(), {{printer(), std::nullopt}, path, "t", {}}, nullptr);
    ++(job ? sent : failed);
    const std::string jobs = test::outputOf("lpstat -o");
    EXPECT_EQ(std::count(jobs.begin(), jobs.end(), '\n'), job ? 1 : 0) << most << ": " << jobs;
    test::outputOf("cancel -a");
  }
  EXPECT_GT(sent, 0);
  EXPECT_GT(failed, 0);
  test::outputOf("cupsenable " + printer());
}

// The server has the document, but its answer does not get through, and nobody answers after that.
TEST_F(ServerFaultsTest, AJobThatNobodyCanBeAskedAboutMayHaveArrived) {
  test::outputOf("cupsdisable " + printer());
  constexpr std::size_t kSize = 100'000;
  const std::string path = mFolder.write("label.txt", std::string(kSize, 'x'));
  std::atomic<std::size_t> sent = 0;
  const SocketServer between([&](int client) {
    if (sent >= kSize) return;
    test::relay(
        client, *server().options().server,
        [&](std::size_t count) {
          sent += count;
          return count;
        },
        [&](std::size_t count) { return sent < kSize ? count : 0; });
  });
  const auto job =
      submitJob(between.options(), {{printer(), std::nullopt}, path, "t", {}}, nullptr);
  ASSERT_FALSE(job);
  EXPECT_NE(job.error().message.find("it may have arrived all the same: look at the jobs of \"" +
                                     printer() + "\" before you print it again"),
            std::string::npos)
      << job.error().message;
  test::outputOf("cancel -a; cupsenable " + printer());
}

TEST_F(ServerFaultsTest, APpdThatArrivesWholeIsTaken) {
  const std::string text = ppdText();
  EXPECT_TRUE(fetchFrom(answer(lengthOf(text.size()), text)));
  EXPECT_TRUE(fetchFrom(answer("Transfer-Encoding: chunked", chunk(text) + "0\r\n\r\n")));
  const std::string small = packed(text);
  EXPECT_TRUE(fetchFrom(answer(lengthOf(small.size()), small)));
  const auto encoded =
      fetchFrom(answer("Content-Encoding: gzip\r\n" + lengthOf(small.size()), small));
  EXPECT_TRUE(encoded) << encoded.error().message;
}

TEST_F(ServerFaultsTest, APpdThatIsCutOffIsRefused) {
  const std::string text = ppdText();
  const std::string half = text.substr(0, text.find("*OpenUI *LxCutLabel"));
  ASSERT_LT(half.size(), text.size());
  expectCutOff(fetchFrom(answer(lengthOf(text.size()), half)));
  expectCutOff(fetchFrom(answer("Transfer-Encoding: chunked", chunk(half))));
  expectCutOff(fetchFrom(answer("Transfer-Encoding: chunked", chunk(text).substr(0, half.size()))));
  expectCutOff(fetchFrom(answer("Content-Type: application/vnd.cups-ppd", half)));
  const std::string small = packed(text);
  const auto cut = small.substr(0, small.size() / 2);
  expectCutOff(fetchFrom(answer("Content-Encoding: gzip\r\n" + lengthOf(small.size()), cut)));
  const auto file = fetchFrom(answer(lengthOf(cut.size()), cut));
  ASSERT_FALSE(file);
  EXPECT_NE(file.error().message.find("it is damaged or not whole"), std::string::npos)
      << file.error().message;
}

TEST_F(ServerFaultsTest, APpdWithoutEndIsGivenUp) {
  const std::string blanks(1U << 20U, ' ');
  const auto endless = [&](int client) {
    test::answerWith(client, answer("Transfer-Encoding: chunked", chunk(ppdText())));
    const std::string part = chunk(blanks);
    while (writeAll(client, part.data(), part.size())) continue;
  };
  signal(SIGPIPE, SIG_IGN);
  const SocketServer server(endless);
  const auto ppd = PpdFile::fetch(server.options(), "tape");
  ASSERT_FALSE(ppd);
  EXPECT_NE(ppd.error().message.find("is larger than 16 MB"), std::string::npos)
      << ppd.error().message;
  const std::string small = packed(ppdText() + std::string(kLargestPpd, '\n'));
  for (const std::string& fields :
       {lengthOf(small.size()), "Content-Encoding: gzip\r\n" + lengthOf(small.size())}) {
    const auto bomb = fetchFrom(answer(fields, small));
    ASSERT_FALSE(bomb);
    EXPECT_NE(bomb.error().message.find("larger than 16 MB"), std::string::npos)
        << bomb.error().message;
  }
}

}  // namespace
}  // namespace cutline
