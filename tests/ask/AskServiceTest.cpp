#include <gmock/gmock.h>

#include "ask/AskService.h"

namespace cutline {
namespace {

using testing::ElementsAre;
using News = JobEvents::News;

HeldJob job(int id, bool isWhole = true) {
  HeldJob job;
  job.id = id;
  job.isWhole = isWhole;
  return job;
}

class AskServiceTest : public testing::Test {
 protected:
  // Everything that is offered now, one after the other.
  std::vector<int> offered() {
    std::vector<int> jobs;
    while (const std::optional<int> next = service.next()) jobs.push_back(*next);
    return jobs;
  }

  News news = News::some;
  std::vector<HeldJob> waiting;
  bool isKnown = true;
  bool hasQueues = true;
  int looks = 0;
  AskService service{{[this] { return news; },
                      [this]() -> Result<std::vector<HeldJob>> {
                        ++looks;
                        if (!isKnown) return Error{Sentence("not now")};
                        return waiting;
                      },
                      [this] { return hasQueues; }}};
};

TEST_F(AskServiceTest, OffersEachJobOnceInOrder) {
  waiting = {job(3), job(5)};
  EXPECT_THAT(offered(), ElementsAre(3, 5));
  EXPECT_THAT(offered(), ElementsAre()) << "no window comes back by itself";
  waiting = {job(3), job(5), job(6)};
  waiting.erase(waiting.begin(), waiting.begin() + 2);
  EXPECT_THAT(offered(), ElementsAre(6));
}

TEST_F(AskServiceTest, LeavesTheServerAloneWithoutNews) {
  offered();
  news = News::none;
  offered();
  const int before = looks;
  for (int i = 0; i < 10; ++i) offered();
  EXPECT_EQ(looks, before);
  waiting = {job(3)};
  for (int i = 0; i < 30; ++i)
    if (!offered().empty()) return;
  FAIL() << "news that got lost let a job wait for ever";
}

TEST_F(AskServiceTest, LooksByItselfWhereTheServerTellsNoNews) {
  news = News::unknown;
  offered();
  waiting = {job(3)};
  EXPECT_THAT(offered(), ElementsAre(3));
}

TEST_F(AskServiceTest, WaitsForTheDocument) {
  waiting = {job(3, false)};
  EXPECT_THAT(offered(), ElementsAre());
  news = News::none;
  waiting = {job(3)};
  EXPECT_THAT(offered(), ElementsAre(3));
}

TEST_F(AskServiceTest, OffersWhatIsLeftAgainWithTheNextJobOrWhenAsked) {
  waiting = {job(3)};
  EXPECT_THAT(offered(), ElementsAre(3));
  waiting = {job(3), job(4)};
  EXPECT_THAT(offered(), ElementsAre(3, 4));
  EXPECT_THAT(offered(), ElementsAre());
  service.offerAgain();
  EXPECT_THAT(offered(), ElementsAre(3, 4));
}

TEST_F(AskServiceTest, LooksAgainWhereTheServerWasAwayOrSaidNothing) {
  isKnown = false;
  waiting = {job(3)};
  EXPECT_THAT(offered(), ElementsAre());
  news = News::noServer;
  isKnown = true;
  EXPECT_THAT(offered(), ElementsAre());
  news = News::none;
  EXPECT_THAT(offered(), ElementsAre(3));
}

TEST_F(AskServiceTest, AsksSeldomWhereThereIsNoAskQueue) {
  offered();
  const auto often = service.pause();
  hasQueues = false;
  offered();
  EXPECT_GT(service.pause(), often);
}

}  // namespace
}  // namespace cutline
