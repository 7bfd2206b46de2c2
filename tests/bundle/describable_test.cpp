// Every object of the bundle can be named in a trace.
#include "bundle/diag/diagnostics.h"
#include "bundle/plugin/LXKMWNOptions14PlugIn13_v400_.h"
#include "bundle/textinput/PDEFormatter.h"
#include "bundle/textinput/PDETextField13_v400_.h"
#include "plain/RecordingSystemLog.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class DescribedObjects : public PanelTest {
 protected:
  DescribedObjects() {
    Platform now = currentPlatform();
    now.systemLog = &log;
    setCurrentPlatform(now);
  }
  void expectNamed(const Describable& object, const std::string& className) {
    PDELog(&object, "seen", {});
    ASSERT_FALSE(log.messages().empty());
    const std::string& message = log.messages().back();
    EXPECT_EQ(message, "LOG self(" + object.description() + ") seen");
    EXPECT_TRUE(object.description().starts_with("<" + className + " 0x")) << message;
    EXPECT_TRUE(object.description().ends_with(">")) << message;
  }

  RecordingSystemLog log;
};

TEST_F(DescribedObjects, AreNamedByClassAndAddress) {
  showPanel(allNine());
  expectNamed(*panel, "OptionPDE13_v400_");
  expectNamed(BasePDE13_v400_(), "BasePDE13_v400_");
  expectNamed(*panel->mOptionView, "OptionView13_v400_");
  expectNamed(*panel->mCutEvery_Choices->front(), "PDEChoice");
  expectNamed(PDEFormatter(), "PDEFormatter");
  expectNamed(PDETextField13_v400_(*panel->mCutEveryTxBx), "PDETextField13_v400_");
  expectNamed(LXKMWNOptions14PlugIn13_v400_(), "LXKMWNOptions14PlugIn13_v400_");
}

TEST_F(DescribedObjects, TwoOfAClassAreToldApart) {
  const PDEFormatter one;
  const PDEFormatter other;
  EXPECT_NE(one.description(), other.description());
}

}  // namespace
}  // namespace cutline::test
