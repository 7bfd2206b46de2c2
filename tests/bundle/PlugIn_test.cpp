#include <gtest/gtest.h>

#include "bundle/plugin/LXKMWNOptions14PlugIn13_v400_.h"
#include "tests/bundle/TestBundle.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"
#include "tests/support/TestCallback.h"

namespace cutline::test {
namespace {

// The answer is kept for the life of a process, so each version needs a process of its own.
class PlugInVersionDeathTest : public testing::Test {
 protected:
  PlugInVersionDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  // Ends the process with 0 when the plug-in accepts the system, else with 1.
  [[noreturn]] void exitWithAnswer() {
    LXKMWNOptions14PlugIn13_v400_ plugIn;
    const bool accepted = plugIn.initWithBundle(bundle.get());
    const bool storedAsAnswered = (plugIn.pluginBundle == bundle.get()) == accepted;
    std::_Exit(storedAsAnswered ? (accepted ? 0 : 1) : 2);
  }

  TestPlatform platform;
  std::shared_ptr<TestBundle> bundle = std::make_shared<TestBundle>();
};

TEST_F(PlugInVersionDeathTest, AcceptsVersion10Point5AndLater) {
  const std::vector<std::tuple<int, int, int>> expected = {{10, 4, 1}, {10, 5, 0}, {10, 15, 0},
                                                           {11, 0, 0}, {12, 3, 0}, {9, 9, 1}};
  for (const auto& [major, minor, exitCode] : expected) {
    platform.version.setVersion(major, minor);
    EXPECT_EXIT(exitWithAnswer(), testing::ExitedWithCode(exitCode), "") << major << "." << minor;
  }
}

TEST_F(PlugInVersionDeathTest, RefusesWhenEveryQueryFails) {
  platform.version.answers.clear();
  EXPECT_EXIT(exitWithAnswer(), testing::ExitedWithCode(1), "");
}

TEST_F(PlugInVersionDeathTest, AFailingQueryLeavesItsPresetValue) {
  platform.version.answers = {{gestaltSystemVersionMinor, 6}};
  EXPECT_EXIT(exitWithAnswer(), testing::ExitedWithCode(0), "") << "10.6";
  platform.version.answers = {{gestaltSystemVersionMajor, 10}};
  EXPECT_EXIT(exitWithAnswer(), testing::ExitedWithCode(1), "") << "10.4";
}

TEST_F(PlugInVersionDeathTest, AsksTheThreeSelectorsOnceInAProcess) {
  EXPECT_EXIT(
      {
        LXKMWNOptions14PlugIn13_v400_ first;
        LXKMWNOptions14PlugIn13_v400_ second;
        first.runningOnLeopardOrLater();
        platform.version.setVersion(10, 4);
        const bool kept = second.runningOnLeopardOrLater() && first.initWithBundle(nullptr);
        std::_Exit(kept && platform.version.queries == 3 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

class PlugIn : public testing::Test {
 protected:
  PlugIn() {
    callback->ppd = ppd.get();
    EXPECT_TRUE(plugIn.initWithBundle(bundle.get()));
  }

  TestPlatform platform;
  OpenPpd ppd = allNine().open();
  std::shared_ptr<TestCallback> callback = std::make_shared<TestCallback>();
  std::shared_ptr<TestBundle> bundle = std::make_shared<TestBundle>();
  LXKMWNOptions14PlugIn13_v400_ plugIn;
};

TEST_F(PlugIn, OffersOneCutPanelForThePrintDialog) {
  const auto panels = plugIn.PDEPanelsForType(kPrintDialogPanelType, callback);
  ASSERT_TRUE(panels);
  ASSERT_EQ(panels->size(), 1U);
  EXPECT_EQ(panels->front()->panelKind(), "org.cutline.printer.cups.pde.OptionPDEKind");
  EXPECT_EQ(panels->front()->supportedPPDOptionKeys()->size(), 9U);
  EXPECT_TRUE(panels->front()->panelView()) << "the panel has the bundle";
  EXPECT_EQ(plugIn.pdes, panels);
}

TEST_F(PlugIn, OffersAnEmptyListForEveryOtherType) {
  for (const char* type : {"", "bdb091f4-e57f-11d3-b5cc-0050e4603277",
                           "BDB091F4-E57F-11D3-B5CC-0050E4603277 ", "page setup"}) {
    const auto panels = plugIn.PDEPanelsForType(type, callback);
    ASSERT_TRUE(panels) << type;
    EXPECT_TRUE(panels->empty()) << type;
  }
}

TEST_F(PlugIn, MakesAFreshListAndPanelAtEveryCall) {
  const auto first = plugIn.PDEPanelsForType(kPrintDialogPanelType, callback);
  const auto second = plugIn.PDEPanelsForType(kPrintDialogPanelType, callback);
  ASSERT_TRUE(first && second);
  EXPECT_NE(first, second);
  EXPECT_NE(first->front(), second->front());
  EXPECT_EQ(plugIn.pdes, second);
}

TEST_F(PlugIn, AReplacedListLivesAsLongAsThePlugIn) {
  auto own = std::make_unique<LXKMWNOptions14PlugIn13_v400_>();
  own->initWithBundle(bundle.get());
  const std::weak_ptr<PanelList> first = own->PDEPanelsForType(kPrintDialogPanelType, callback);
  own->PDEPanelsForType(kPrintDialogPanelType, callback);
  EXPECT_FALSE(first.expired());
  own.reset();
  EXPECT_TRUE(first.expired());
}

class PlugInWithoutPanel : public LXKMWNOptions14PlugIn13_v400_ {
 protected:
  std::shared_ptr<PrintDialogPanel> newPanel(
      const std::shared_ptr<PDEPluginCallback13_v400_>& /*hostInfo*/) noexcept override {
    return nullptr;
  }
};

TEST_F(PlugIn, APanelThatCannotBeMadeGivesNoList) {
  PlugInWithoutPanel barren;
  barren.initWithBundle(bundle.get());
  EXPECT_EQ(barren.PDEPanelsForType(kPrintDialogPanelType, callback), nullptr);
  EXPECT_EQ(barren.pdes, nullptr);
  EXPECT_TRUE(barren.PDEPanelsForType("other", callback)) << "an empty list all the same";
}

TEST_F(PlugIn, WorksWithoutABundle) {
  LXKMWNOptions14PlugIn13_v400_ bare;
  ASSERT_TRUE(bare.initWithBundle(nullptr));
  const auto panels = bare.PDEPanelsForType(kPrintDialogPanelType, callback);
  ASSERT_TRUE(panels);
  EXPECT_EQ(panels->front()->panelView(), nullptr);
}

}  // namespace
}  // namespace cutline::test
