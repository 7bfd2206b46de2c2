// Whatever a print server does, each call ends in time, with words for what happened.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "cups/AskQueue.h"
#include "cups/HeldJobSteps.h"
#include "cups/HeldJobs.h"
#include "cups/JobEvents.h"
#include "cups/JobStatus.h"
#include "cups/PpdFile.h"
#include "cups/PrintJob.h"
#include "cups/ServerConnection.h"
#include "tests/cups/ServerTest.h"
#include "tests/support/SocketServer.h"

namespace cutline {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using test::SocketServer;

// Twice the time of one connection: a job that may have arrived is asked for once more.
constexpr auto kLongest = 4 * kServerPatience;

void drip(int client) {
  test::answerWith(client, "HTTP/1.1 200 OK\r\nX: ");
  while (writeAll(client, "x", 1)) std::this_thread::sleep_for(1s);
}

void answerBody(int client, const std::string& head, const std::string& body) {
  test::answerWith(client, "HTTP/1.1 " + head + "\r\nContent-Length: " +
                               std::to_string(body.size()) + "\r\n\r\n" + body);
}

// Bytes that are no answer, of its kind and its length.
std::string garbage() {
  std::string bytes = "\x02\x01";
  for (int i = 0; i < 2000; ++i) bytes += static_cast<char>(i * 37);
  return bytes;
}

// A server of this test's own, as some of its jobs arrive.
const std::string& realServer() {
  static const test::PrivateServer kServer;
  static const std::string kSocket = *kServer.options().server;
  return kSocket;
}

// So many bytes of what the real server answers, and then silence.
void fallSilent(int client, std::size_t most) {
  const auto all = [](std::size_t count) { return count; };
  test::relay(client, realServer(), all, [left = most](std::size_t count) mutable {
    const std::size_t passed = std::min(left, count);
    left -= passed;
    return passed;
  });
  test::keepSilent(client);
}

struct Fault {
  const char* name;
  SocketServer::Serve serve;
  const char* words = "";  // of each error
};

constexpr char kSilence[] = "does not answer";
constexpr char kDenial[] = "does not let you";

const std::vector<Fault>& faults() {
  static const std::vector<Fault> kFaults{
      {"hangs up at once", [](int) {}},
      {"is silent", test::keepSilent, kSilence},
      {"is silent after saying to go on", [](int client) { fallSilent(client, 25); }, kSilence},
      {"is silent in the middle of an answer", [](int client) { fallSilent(client, 200); },
       kSilence},
      {"sends a byte a second", drip},
      {"hangs up in the middle", [](int client) { test::relayBack(client, realServer(), 400); }},
      {"answers garbage",
       [](int client) {
         answerBody(client, "200 OK\r\nContent-Type: application/ipp", garbage());
       }},
      {"answers what is no HTTP", [](int client) { test::answerWith(client, garbage()); }},
      {"answers nothing but a head", [](int client) { answerBody(client, "200 OK", ""); }},
      {"wants to know who asks",
       [](int client) {
         answerBody(client, "401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"", "");
       },
       kDenial},
      {"forbids it", [](int client) { answerBody(client, "403 Forbidden", ""); }, kDenial},
      {"has a fault of its own", [](int client) { answerBody(client, "500 Oh", ""); }},
      {"asks for patience for ever",
       [](int client) {
         test::answerWith(client, "HTTP/1.1 100 Continue\r\n\r\n");
         while (writeAll(client, "HTTP/1.1 100 Continue\r\n\r\n", 25))
           std::this_thread::sleep_for(1s);
       },
       kSilence},
  };
  return kFaults;
}

using Call = std::function<std::string(const ServerOptions&)>;  // the error, empty for none

template <class Value>
std::string errorOf(const Result<Value>& result) {
  return result ? "" : result.error().message;
}

class EachCallTest : public test::ServerTest {
 protected:
  struct Named {
    const char* name;
    Call call;
  };
  std::vector<Named> calls() const {
    const DestinationName name{printer(), std::nullopt};
    const std::string path = mDocument;
    return {
        {"list", [](const auto& server) { return errorOf(listDestinations(server)); }},
        {"find the default",
         [](const auto& server) { return errorOf(findDestination(server, std::nullopt)); }},
        {"find", [=](const auto& server) { return errorOf(findDestination(server, name)); }},
        {"open", [=](const auto& server) { return errorOf(PpdFile::fetch(server, name.printer)); }},
        {"submit",
         [=](const auto& server) {
           return errorOf(submitJob(server, {name, path, "t", {}}, nullptr));
         }},
        {"watch", [=](const auto& server) { return errorOf(jobStatus(server, name, 1)); }},
        {"cancel", [=](const auto& server) { return errorOf(cancelJob(server, name, 999999)); }},
        {"list ask queues", [](const auto& server) { return errorOf(askQueues(server)); }},
        {"add an ask queue",
         [=](const auto& server) { return errorOf(addAskQueue(server, name.printer)); }},
        {"remove an ask queue",
         [=](const auto& server) { return errorOf(removeAskQueue(server, name.printer)); }},
        {"find a waiting job", [](const auto& server) { return errorOf(heldJob(server, 1)); }},
        {"find jobs in its place",
         [](const auto& server) { return errorOf(jobsInPlaceOf(server, 1)); }},
        {"fetch its document",
         [](const auto& server) { return errorOf(fetchJobDocument(server, 1)); }},
        {"change it", [](const auto& server) { return errorOf(setHeldJobOptions(server, 1, {})); }},
        {"mark it", [](const auto& server) { return errorOf(markJob(server, 1, "mark", "1")); }},
        {"move it", [=](const auto& server) { return errorOf(moveJob(server, 1, name.printer)); }},
        {"release it", [](const auto& server) { return errorOf(releaseJob(server, 1)); }},
        {"give it up", [](const auto& server) { return errorOf(cancelWaitingJob(server, 1)); }},
    };
  }

  test::TemporaryFolder mFolder;
  const std::string mDocument = mFolder.write("label.txt", std::string(200'000, 'x'));
};

struct Ended {
  std::string error;
  steady_clock::duration time;
};

struct Running {
  std::string what;
  const char* words;
  std::future<Ended> ended;
};

// All at once, as most of the time is waiting.
TEST_F(EachCallTest, EndsInTimeAndSaysWhatHappenedWhateverTheServerDoes) {
  signal(SIGPIPE, SIG_IGN);
  leaveTerminalAlone();
  std::vector<std::unique_ptr<SocketServer>> servers;
  std::vector<Running> running;
  for (const Fault& fault : faults()) {
    servers.push_back(std::make_unique<SocketServer>(fault.serve));
    for (const Named& each : calls()) {
      running.push_back(
          {std::string("a server that ") + fault.name + ": " + each.name, fault.words,
           std::async(std::launch::async, [call = each.call, options = servers.back()->options()] {
             const auto start = steady_clock::now();
             const std::string error = call(options);
             return Ended{error, steady_clock::now() - start};
           })});
    }
  }
  auto longest = steady_clock::duration::zero();
  for (auto& [what, words, future] : running) {
    const Ended ended = future.get();
    EXPECT_LT(ended.time, kLongest) << what;
    EXPECT_FALSE(ended.error.empty()) << what;
    EXPECT_NE(ended.error.find(words), std::string::npos) << what << ": " << ended.error;
    EXPECT_EQ(ended.error.find("Success"), std::string::npos) << what << ": " << ended.error;
    longest = std::max(longest, ended.time);
  }
  RecordProperty(
      "longest_ms",
      static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(longest).count()));
}

// Who looks by himself then misses nothing.
TEST_F(EachCallTest, ASubscriptionThatTheServerDeniesIsNone) {
  const SocketServer server([](int client) { answerBody(client, "403 Forbidden", ""); });
  JobEvents events(server.options());
  EXPECT_EQ(events.look(), JobEvents::News::unknown);
  EXPECT_EQ(events.look(), JobEvents::News::unknown);
  EXPECT_EQ(events.subscription(), 0);
}

}  // namespace
}  // namespace cutline
