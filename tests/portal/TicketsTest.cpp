// Tokens: whose, how often, how long.
#include <gtest/gtest.h>

#include <set>

#include "portal/Tickets.h"

namespace cutline::portal {
namespace {

using std::chrono::seconds;

class TicketsTest : public testing::Test {
 protected:
  quint32 give(const char* appId = "org.example.App") {
    return mTickets.give(QLatin1String(appId), OwnTicket{{}, QStringLiteral("labels")});
  }
  bool take(quint32 token, const char* appId = "org.example.App") {
    return mTickets.take(token, QLatin1String(appId)).has_value();
  }

  std::chrono::steady_clock::time_point mNow;
  Tickets mTickets{[this] { return mNow; }};
};

TEST_F(TicketsTest, ATokenGivesWhatWasKept) {
  const auto ticket = mTickets.take(give(), QStringLiteral("org.example.App"));
  ASSERT_TRUE(ticket);
  EXPECT_EQ(std::get<OwnTicket>(*ticket).title, QStringLiteral("labels"));
}

TEST_F(TicketsTest, ATokenIsGoodOnce) {
  const quint32 token = give();
  EXPECT_TRUE(take(token));
  EXPECT_FALSE(take(token));
}

TEST_F(TicketsTest, ATokenIsNoOtherApplicationsAndIsNotLostByItsTrying) {
  const quint32 token = give();
  EXPECT_FALSE(take(token, "org.example.Other"));
  EXPECT_FALSE(take(token, ""));
  EXPECT_TRUE(take(token));
}

TEST_F(TicketsTest, ATokenEndsAfterFiveMinutes) {
  const quint32 early = give();
  mNow += Tickets::kLifetime - seconds(1);
  const quint32 late = give();
  EXPECT_TRUE(take(early));
  mNow += Tickets::kLifetime;
  EXPECT_FALSE(take(late));
}

TEST_F(TicketsTest, UnknownTokensAreNone) {
  EXPECT_FALSE(take(0));
  EXPECT_FALSE(take(give() + 1));
}

TEST_F(TicketsTest, TokensDoNotFollowEachOther) {
  std::set<quint32> tokens;
  int steps = 0;
  quint32 last = 0;
  for (int i = 0; i < 100; ++i) {
    const quint32 token = give();
    EXPECT_NE(token, 0U);
    steps += token == last + 1 ? 1 : 0;
    tokens.insert(last = token);
  }
  EXPECT_EQ(tokens.size(), 100U);
  EXPECT_LT(steps, 3);
}

}  // namespace
}  // namespace cutline::portal
