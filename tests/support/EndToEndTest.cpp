#include "tests/support/EndToEndTest.h"

#include <filesystem>
#include <memory>

namespace cutline::test {

namespace {

std::unique_ptr<PrivateServer> theServer;

}  // namespace

int runAllTestsWithServer(const std::string& arguments) {
  theServer = std::make_unique<PrivateServer>(arguments);
  theServer->enterEnvironment();
  const int status = RUN_ALL_TESTS();
  theServer.reset();
  return status;
}

PrivateServer& server() { return *theServer; }

std::string labels() { return built("share/cutline/samples/documents/labels.pdf"); }

EndToEndTest::EndToEndTest() {
  server().waitUntilIdle();
  mBefore = server().printedJobs();
  std::filesystem::remove(server().home() + "/.cups/lpoptions");
}

std::vector<PrintedJob> EndToEndTest::newJobs() {
  server().waitUntilIdle();
  const std::set<int> now = server().printedJobs();
  std::vector<PrintedJob> fresh;
  for (const int job : now)
    if (!mBefore.contains(job)) fresh.emplace_back(server(), job);
  mBefore = now;
  return fresh;
}

PrintedJob EndToEndTest::newJob() {
  const std::vector<PrintedJob> fresh = newJobs();
  EXPECT_EQ(fresh.size(), 1U);
  return fresh.size() == 1 ? fresh.front() : PrintedJob(server(), 0);
}

bool EndToEndTest::nothingNew() const {
  server().waitUntilIdle();
  return server().printedJobs() == mBefore;
}

}  // namespace cutline::test
