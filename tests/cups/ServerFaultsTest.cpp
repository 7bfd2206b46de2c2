// What happens when the print server or the way to it fails.
#include <gtest/gtest.h>
#include <zlib.h>

#include <array>
#include <chrono>
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

TEST_F(ServerFaultsTest, ASilentServerIsGivenUp) {
  using namespace std::chrono_literals;
  const SocketServer silent(test::keepSilent);
  const std::string path = mFolder.write("label.txt", "x");
  const ServerOptions options = silent.options();
  const DestinationName name{"tape", std::nullopt};
  const auto expectGivenUp = [&](const Error& error, auto start) {
    EXPECT_NE(error.message.find("the print server at \"" + silent.path() + "\" does not answer"),
              std::string::npos)
        << error.message;
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2 * kServerPatience);
  };
  auto start = std::chrono::steady_clock::now();
  expectGivenUp(findDestination(options, name).error(), start);
  start = std::chrono::steady_clock::now();
  expectGivenUp(PpdFile::fetch(options, "tape").error(), start);
  start = std::chrono::steady_clock::now();
  expectGivenUp(submitJob(options, {name, path, "t", {}}, nullptr).error(), start);
}

// Each byte breaks the silence, and the answer would take hours.
TEST_F(ServerFaultsTest, AServerThatDripsIsGivenUp) {
  const SocketServer dripping([](int client) {
    using namespace std::chrono_literals;
    test::answerWith(client, "HTTP/1.1 200 OK\r\nX: ");
    while (writeAll(client, "x", 1)) std::this_thread::sleep_for(500ms);
  });
  signal(SIGPIPE, SIG_IGN);
  const auto expectGivenUp = [](const Error& error, auto start) {
    EXPECT_NE(error.message.find("does not answer"), std::string::npos) << error.message;
    EXPECT_LT(std::chrono::steady_clock::now() - start, 3 * kServerPatience);
  };
  auto start = std::chrono::steady_clock::now();
  expectGivenUp(PpdFile::fetch(dripping.options(), "tape").error(), start);
  start = std::chrono::steady_clock::now();
  const DestinationName name{"tape", std::nullopt};
  expectGivenUp(findDestination(dripping.options(), name).error(), start);
}

}  // namespace
}  // namespace cutline
