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
#include "tests/bundle/PpdText.h"
#include "tests/bundle/TestCallback.h"
#include "tests/qt/LineUser.h"
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

}  // namespace
}  // namespace cutline
