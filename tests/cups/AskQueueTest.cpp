#include <gtest/gtest.h>

#include <algorithm>

#include "cups/AskQueue.h"
#include "cups/HeldJobSteps.h"
#include "cups/HeldJobs.h"
#include "cups/IppMessage.h"
#include "cups/JobEvents.h"
#include "cups/JobStatus.h"
#include "cups/PpdFile.h"
#include "tests/cups/ServerTest.h"
#include "tests/support/Command.h"
#include "tests/support/SocketServer.h"

namespace cutline {
namespace {

using test::outputOf;
using test::run;

class AskQueueTest : public test::ServerTest {
 protected:
  AskQueueTest() {
    const auto added = addAskQueue({}, printer());
    EXPECT_TRUE(added) << added.error().message;
    mQueue = added ? added->name : "";
  }
  ~AskQueueTest() override {
    run("cancel -a " + mQueue);
    run("lpadmin -x " + mQueue);
  }
  // A program's job; its number.
  int send(const std::string& words) const {
    const std::string path = mFolder.write("label.txt", kText);
    const std::string said = outputOf("lp -d " + mQueue + ' ' + words + ' ' + path);
    const std::size_t dash = said.find(mQueue + '-') + mQueue.size() + 1;
    return std::stoi(said.substr(dash));
  }

  static constexpr char kText[] = "what a program prints";
  std::string mQueue;
  test::TemporaryFolder mFolder;
};

TEST_F(AskQueueTest, StandsBesideItsPrinterWithItsDriver) {
  EXPECT_EQ(mQueue, printer() + "_ask");
  const std::string said = outputOf("lpstat -l -p " + mQueue);
  EXPECT_NE(said.find("Description: " + printer() + " (ask)"), std::string::npos) << said;
  const auto own = PpdFile::fetch({}, printer());
  const auto asked = PpdFile::fetch({}, mQueue);
  ASSERT_TRUE(own && asked);
  EXPECT_EQ((*own)->attribute("NickName"), (*asked)->attribute("NickName"));
  EXPECT_TRUE((*asked)->hasOption("LxHalfCut"));
}

TEST_F(AskQueueTest, IsListedWithWhatWaits) {
  send("");
  const auto queues = askQueues({});
  ASSERT_TRUE(queues) << queues.error().message;
  ASSERT_EQ(queues->size(), 1U);
  EXPECT_EQ(queues->front().name, mQueue);
  EXPECT_EQ(queues->front().printer, printer());
  EXPECT_EQ(queues->front().jobs, 1);
}

TEST_F(AskQueueTest, IsMadeAnewWithItsJobsStaying) {
  const int job = send("");
  ASSERT_TRUE(addAskQueue({}, printer()));
  EXPECT_TRUE(heldJob({}, job));
}

TEST_F(AskQueueTest, IsNoneOfAnAskQueueOrOfNothing) {
  const auto again = addAskQueue({}, mQueue);
  ASSERT_FALSE(again);
  EXPECT_NE(again.error().message.find("is an ask queue itself"), std::string::npos);
  const auto none = addAskQueue({}, "nosuch");
  ASSERT_FALSE(none);
  EXPECT_NE(none.error().message.find("has no printer \"nosuch\""), std::string::npos);
}

TEST_F(AskQueueTest, TakesNoNameThatIsTaken) {
  const std::string name = otherPrinter() + "_ask";
  outputOf("lpadmin -p " + name + " -v file:///dev/null -E 2>&1");
  const auto added = addAskQueue({}, otherPrinter());
  run("lpadmin -x " + name);
  ASSERT_FALSE(added);
  EXPECT_NE(added.error().message.find("taken by another printer"), std::string::npos);
}

TEST_F(AskQueueTest, GoesWhenNothingWaitsThere) {
  const int job = send("");
  const auto refused = removeAskQueue({}, printer());
  ASSERT_FALSE(refused);
  EXPECT_NE(refused.error().message.find("jobs still wait"), std::string::npos);
  ASSERT_TRUE(cancelWaitingJob({}, job));
  EXPECT_TRUE(removeAskQueue({}, printer()));
  EXPECT_FALSE(removeAskQueue({}, printer()));
  EXPECT_TRUE(askQueues({})->empty());
}

TEST_F(AskQueueTest, HoldsAJobWithItsTitleItsCopiesAndItsDocument) {
  const int id = send("-n 3 -t 'A title' -o LxHalfCut=ON");
  const auto job = heldJob({}, id);
  ASSERT_TRUE(job) << job.error().message;
  EXPECT_EQ(job->queue, mQueue);
  EXPECT_EQ(job->printer, printer());
  EXPECT_EQ(job->title, "A title");
  EXPECT_TRUE(job->isWhole);
  const auto says = [&](const char* name, const char* value) {
    return std::ranges::find(job->options, OptionList::value_type(name, value)) !=
           job->options.end();
  };
  EXPECT_TRUE(says("copies", "3"));
  EXPECT_TRUE(says("LxHalfCut", "ON"));
  EXPECT_TRUE(says("document-format", "text/plain"));
  const auto document = fetchJobDocument({}, id);
  ASSERT_TRUE(document) << document.error().message;
  EXPECT_EQ(test::contentsOf(document->path()), kText);
}

// A program may ask for that, and somebody may release what waits: it is not lost.
TEST_F(AskQueueTest, KeepsWhatIsNotHeld) {
  const int asked = send("-o job-hold-until=no-hold");
  const int released = send("");
  ASSERT_TRUE(releaseJob({}, released));
  for (const int id : {asked, released}) {
    EXPECT_TRUE(heldJob({}, id)) << id;
    EXPECT_TRUE(fetchJobDocument({}, id)) << id;
  }
}

TEST_F(AskQueueTest, AJobIsPrintedByStepsAndWaitsUntilTheLast) {
  const int id = send("-o job-hold-until=no-hold");
  ASSERT_TRUE(setHeldJobOptions({}, id, {{"LxHalfCut", "ON"}, {"copies", "2"}}));
  ASSERT_TRUE(moveJob({}, id, printer()));
  const auto moved = heldJob({}, id);
  ASSERT_TRUE(moved) << "one that was moved and not released waits";
  EXPECT_EQ(moved->queue, printer());
  ASSERT_TRUE(releaseJob({}, id));
  server().waitUntilIdle();
  EXPECT_FALSE(heldJob({}, id));
  EXPECT_TRUE(server().hasPrinted(id));
  const std::string facts = test::contentsOf(server().printedFile(id, ".txt"));
  EXPECT_NE(facts.find("LxHalfCut=ON"), std::string::npos) << facts;
  EXPECT_NE(facts.find("copies=2"), std::string::npos) << facts;
  EXPECT_EQ(jobState({}, id), JobState::completed);
  EXPECT_TRUE(releaseJob({}, id)) << "late is no error";
  EXPECT_TRUE(cancelWaitingJob({}, id)) << "late is no error";
  EXPECT_FALSE(setHeldJobOptions({}, id, {}));
}

TEST_F(AskQueueTest, AJobIsFoundByTheOneThatItIsInPlaceOf) {
  const int first = send("");
  const int second = send(std::string("-o ") + kInPlaceOfOption + '=' + std::to_string(first));
  EXPECT_EQ(*jobsInPlaceOf({}, first), std::vector<int>{second});
  ASSERT_TRUE(markJob({}, first, kPrintedByOption, std::to_string(second)));
  EXPECT_EQ(heldJob({}, first)->printedBy, second);
  EXPECT_EQ(heldJobs({})->size(), 2U);
}

// What the server sends is cut off in the midst of the document.
TEST_F(AskQueueTest, ADocumentThatDidNotArriveWholeIsNone) {
  const std::string path = mFolder.write("long.txt", std::string(1U << 20U, 'x'));
  outputOf("lp -d " + mQueue + ' ' + path);
  const int id = heldJobs({})->back().id;
  const test::SocketServer between(
      [&](int client) { test::relayBack(client, *server().options().server, 200'000); });
  const auto document = fetchJobDocument(between.options(), id);
  EXPECT_FALSE(document);
  EXPECT_TRUE(fetchJobDocument({}, id));
}

TEST_F(AskQueueTest, EventsTellOfANewJob) {
  JobEvents events({});
  EXPECT_EQ(events.look(), JobEvents::News::some) << "at first anything may have been";
  EXPECT_EQ(events.look(), JobEvents::News::none);
  send("");
  EXPECT_EQ(events.look(), JobEvents::News::some);
  EXPECT_EQ(events.look(), JobEvents::News::none);
}

TEST_F(AskQueueTest, EventsGoOnWhereTheServerForgotThem) {
  JobEvents events({});
  events.look();
  const int first = events.subscription();
  IppMessage request = newServerRequest(IPP_OP_CANCEL_SUBSCRIPTION);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id", first);
  ASSERT_TRUE(answerTo(CUPS_HTTP_DEFAULT, std::move(request)));
  EXPECT_EQ(events.look(), JobEvents::News::some);
  EXPECT_NE(events.subscription(), first);
  EXPECT_EQ(events.look(), JobEvents::News::none);
}

TEST_F(AskQueueTest, EventsAreRenewed) {
  JobEvents events({});
  const auto now = JobEvents::Clock::now();
  events.look(now);
  const int subscription = events.subscription();
  EXPECT_EQ(events.look(now + std::chrono::hours(2)), JobEvents::News::none);
  EXPECT_EQ(events.subscription(), subscription);
}

TEST(JobEvents, OfNoServerSaySo) {
  JobEvents events({"/nonexistent/socket", std::nullopt, false});
  EXPECT_EQ(events.look(), JobEvents::News::noServer);
}

}  // namespace
}  // namespace cutline
