#include <gtest/gtest.h>

#include "plain/PlainButton.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"

namespace cutline {
namespace {

class PlainButtonTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.setActionObserver(&log);
    button->setAction(log.action());
  }

  ActionLog log;
  PlainToolkit toolkit;
  std::shared_ptr<Button> button = toolkit.createButton({});
};

TEST_F(PlainButtonTest, AClickRunsTheActionAndThenTellsTheObserver) {
  button->performClick();
  EXPECT_EQ(log.lines, kActedAndFinished);
  EXPECT_EQ(log.acted, button.get());
  EXPECT_EQ(log.finished, button.get());
}

TEST_F(PlainButtonTest, ADisabledButtonDoesNothing) {
  button->setEnabled(false);
  button->performClick();
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainButtonTest, HidingDoesNotDisable) {
  button->setHidden(true);
  EXPECT_TRUE(button->isEnabled());
}

TEST_F(PlainButtonTest, WithoutAnActionThereIsNothingToFinish) {
  button->setAction({});
  button->performClick();
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainButtonTest, ANewActionReplacesTheOldOneAlsoWhileItRuns) {
  button->setAction([&](View*) {
    button->setAction({});
    log.lines.emplace_back("own");
  });
  button->performClick();
  button->performClick();
  EXPECT_EQ(log.lines, (std::vector<std::string>{"own", "finished"}));
}

TEST_F(PlainButtonTest, AControlThatGoesInItsOwnActionIsNotReported) {
  button->setAction([&](View*) { button.reset(); });
  button->performClick();
  EXPECT_FALSE(button);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainButtonTest, WithoutAnObserverTheActionStillRuns) {
  toolkit.setActionObserver(nullptr);
  button->performClick();
  EXPECT_EQ(log.lines, std::vector<std::string>{"action"});
}

TEST(PlainButton, MayOutliveItsToolkit) {
  ActionLog log;
  auto toolkit = std::make_unique<PlainToolkit>();
  toolkit->setActionObserver(&log);
  const auto button = toolkit->createButton({});
  button->setAction(log.action());
  toolkit.reset();
  button->performClick();
  EXPECT_EQ(log.lines, std::vector<std::string>{"action"});
}

}  // namespace
}  // namespace cutline
