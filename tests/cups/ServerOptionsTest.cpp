#include <cups/cups.h>

#include <array>
#include <atomic>
#include <thread>

#include "cups/ServerOptions.h"
#include "tests/cups/ServerTest.h"

namespace cutline {
namespace {

class ServerOptionsTest : public test::ServerTest {};

TEST_F(ServerOptionsTest, HostPortAndSocketAreTakenAsTheyAre) {
  std::jthread([] {
    ServerOptions{"print.example.org:8631", "anna", false}.applyToThisThread();
    EXPECT_STREQ(cupsServer(), "print.example.org");
    EXPECT_EQ(ippPort(), 8631);
    EXPECT_STREQ(cupsUser(), "anna");
    ServerOptions{"/run/other.sock", "bert", false}.applyToThisThread();
    EXPECT_STREQ(cupsServer(), "/run/other.sock");
    EXPECT_STREQ(cupsUser(), "bert");
  }).join();
}

TEST_F(ServerOptionsTest, WithNothingSetTheEnvironmentCountsAgain) {
  std::jthread([] {
    ServerOptions{"/run/other.sock", "bert", true}.applyToThisThread();
    EXPECT_EQ(cupsEncryption(), HTTP_ENCRYPTION_REQUIRED);
    ServerOptions{}.applyToThisThread();
    EXPECT_EQ(server().options().server, cupsServer());
    EXPECT_STRNE(cupsUser(), "bert");
  }).join();
}

TEST_F(ServerOptionsTest, ThreadsTalkToDifferentServersAtTheSameTime) {
  std::atomic<int> reached = 0;
  std::atomic<int> refused = 0;
  {
    std::array<std::jthread, 4> threads;
    for (std::size_t i = 0; i < threads.size(); ++i) {
      threads[i] = std::jthread([&, isLost = i % 2 == 1] {
        const ServerOptions lost{"/nowhere/cups.sock", std::nullopt, false};
        for (int round = 0; round < 20; ++round) {
          listDestinations(isLost ? lost : server().options()) ? ++reached : ++refused;
        }
      });
    }
  }
  EXPECT_EQ(reached, 40);
  EXPECT_EQ(refused, 40);
}

TEST_F(ServerOptionsTest, APortWhereNobodyListensIsNamed) {
  std::jthread([] {
    const auto list = listDestinations({"localhost:1", std::nullopt, false});
    ASSERT_FALSE(list);
    EXPECT_EQ(list.error().message,
              "no print server answers at \"localhost:1\": start it or name another with -h");
  }).join();
}

}  // namespace
}  // namespace cutline
