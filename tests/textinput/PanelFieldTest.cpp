// The number of labels in the cut options panel, with its formatter and the panel's own rules, on
// the real toolkit.
#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/textinput/PDEFormatter.h"
#include "platform/lib/DirectoryBundle.h"
#include "platform/ports/Controls.h"
#include "qt/QtFieldEditor.h"
#include "tests/qt/LineUser.h"
#include "tests/support/PpdText.h"
#include "tests/support/TestCallback.h"
#include "tests/textinput/TypingPlatform.h"

namespace cutline {
namespace {

class PanelFieldTest : public testing::Test {
 protected:
  void SetUp() override {
    callback->ppd = ppd.get();
    panel->initWithCallback(callback,
                            DirectoryBundle::open(CUTLINE_BUILD_DIR "/lib/cutline/plugins/"
                                                                    "CutOptions.plugin"));
    const auto view = panel->panelView();
    ASSERT_TRUE(view);
    panel->supportedPPDOptionKeys();
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    panel->mCutEveryTxBx->setEnabled(true);
    line = dynamic_cast<QtFieldEditor*>(QtToolkit::widgetOf(*panel->mCutEveryTxBx));
    ASSERT_NE(line, nullptr);
    user = std::make_unique<LineUser>(line);
    window.setLayout(new QVBoxLayout);
    window.layout()->addWidget(QtToolkit::widgetOf(*view));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    line->setFocus();
    user->selectAll();
  }
  void TearDown() override { panel.reset(); }

  std::string shown() const { return line->text().toStdString(); }
  std::string marked() const { return test::markedChoice(ppd.get(), "LxCutLabel"); }

  TypingPlatform platform;
  std::shared_ptr<test::TestCallback> callback = std::make_shared<test::TestCallback>();
  test::OpenPpd ppd = test::allNine().open();
  std::shared_ptr<OptionPDE13_v400_> panel = std::make_shared<OptionPDE13_v400_>();
  QWidget window;
  QtFieldEditor* line = nullptr;
  std::unique_ptr<LineUser> user;
};

TEST_F(PanelFieldTest, HasAFormatterOfStyleZeroWithoutLimits) {
  auto* const formatter = dynamic_cast<PDEFormatter*>(panel->mCutEveryTxBx->formatter());
  ASSERT_NE(formatter, nullptr);
  EXPECT_EQ(formatter->textStyle(), 0);
  EXPECT_EQ(formatter->maxLength(), 0);
  EXPECT_FALSE(formatter->isValidityMinValue());
  EXPECT_FALSE(formatter->isValidityMaxValue());
}

TEST_F(PanelFieldTest, ZeroBecomesOne) {
  user->type("0");
  EXPECT_EQ(shown(), "1");
  EXPECT_EQ(marked(), "1");
}

TEST_F(PanelFieldTest, WordsBecomeOne) {
  user->paste("abc");
  EXPECT_EQ(shown(), "1");
  EXPECT_EQ(marked(), "1");
  EXPECT_EQ(platform.toolkit.beeps, 0);
  EXPECT_TRUE(platform.posted.empty());
}

TEST_F(PanelFieldTest, TooManyBecomeTheMost) {
  user->type("250");
  EXPECT_EQ(shown(), "99");
  EXPECT_EQ(marked(), "99");
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 99);
}

TEST_F(PanelFieldTest, UndoLeadsBackBeyondTheCorrection) {
  const std::string before = shown();
  user->type("250");
  user->undo();
  EXPECT_EQ(shown(), before);
  EXPECT_EQ(marked(), before);
  user->redo();
  EXPECT_EQ(shown(), "99");
  EXPECT_EQ(marked(), "99");
}

// The arrows beside the field, on PPDs that count otherwise.
class PanelStepperTest : public PanelFieldTest {
 protected:
  static test::OpenPpd counting(const std::vector<std::string>& names,
                                const std::string& defaultName) {
    return test::PpdText()
        .option("LxCutLabel", {names.begin(), names.end()}, defaultName)
        .onOff("LxAutoTapeCut", "ON")
        .open();
  }
  void SetUp() override {
    PanelFieldTest::SetUp();
    panel->mCutEveryStpr->setEnabled(true);
    arrows = QtToolkit::widgetOf(*panel->mCutEveryStpr);
    // The box that the number belongs to.
    if (panel->mCutEveryChkBx->state() == CheckBox::kOff) panel->mCutEveryChkBx->performClick();
  }
  std::string after(Qt::Key key) {
    QTest::keyClick(arrows, key);
    EXPECT_EQ(shown(), marked());
    return shown();
  }

  QWidget* arrows = nullptr;
};

class UpToTwentyTest : public PanelStepperTest {
 protected:
  UpToTwentyTest() { ppd = test::PpdText().cutLabel(0, 20, "1").onOff("LxAutoTapeCut").open(); }
};

TEST_F(UpToTwentyTest, ZeroIsReached) {
  EXPECT_EQ(after(Qt::Key_Down), "0");
  EXPECT_EQ(after(Qt::Key_Down), "0");
  EXPECT_EQ(after(Qt::Key_PageUp), "10");
  EXPECT_EQ(after(Qt::Key_PageUp), "20");
  EXPECT_EQ(after(Qt::Key_Up), "20");
}

class UpToThousandTest : public PanelStepperTest {
 protected:
  UpToThousandTest() {
    ppd = test::PpdText().cutLabel(1, 999, "500").onOff("LxAutoTapeCut").open();
  }
};

TEST_F(UpToThousandTest, OneDownFromFiveHundredIsOneLess) {
  EXPECT_EQ(after(Qt::Key_Down), "499");
  user->selectAll();
  user->type("999");
  EXPECT_EQ(after(Qt::Key_Up), "999");
  EXPECT_EQ(after(Qt::Key_Down), "998");
}

class GapsTest : public PanelStepperTest {
 protected:
  GapsTest() { ppd = counting({"1", "2", "5", "10", "Never"}, "2"); }
};

TEST_F(GapsTest, EveryChoiceIsReached) {
  for (const char* name : {"5", "10", "Never", "Never"}) EXPECT_EQ(after(Qt::Key_Up), name);
  for (const char* name : {"10", "5", "2", "1", "1"}) EXPECT_EQ(after(Qt::Key_Down), name);
}

}  // namespace
}  // namespace cutline
