// The fields of StrictFields.plist in a shown window, with a count of what they make heard.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "bundle/textinput/PDEFormatter.h"
#include "bundle/textinput/PDETextField13_v400_.h"
#include "bundle/textinput/interface_classes.h"
#include "platform/lib/ResourceFile.h"
#include "platform/ports/TextField.h"
#include "qt/QtFieldEditor.h"
#include "tests/platform/RecordingOwner.h"
#include "tests/qt/LineUser.h"
#include "tests/support/TemporaryBundle.h"
#include "tests/textinput/TypingPlatform.h"

namespace cutline {

class FieldTest : public testing::Test {
 protected:
  void SetUp() override {
    const test::TemporaryBundle bundle;
    const auto file = readResource(CUTLINE_SOURCE_DIR "/tests/textinput/StrictFields.plist");
    ASSERT_TRUE(file);
    bundle.write("Resources/StrictFields.plist", *file);
    owner.classes = &bundleInterfaceClasses();
    ASSERT_TRUE(bundle.open()->loadNibNamed("StrictFields", owner));
    ASSERT_TRUE(platform.log.messages().empty());
    owner.calls.clear();
    window.setLayout(new QVBoxLayout);
    window.layout()->addWidget(QtToolkit::widgetOf(*owner.outlets.at("mView")));
    window.layout()->addWidget(elsewhere);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    elsewhere->setFocus();
  }
  // The views give their widgets back before the window goes.
  void TearDown() override { owner.outlets.clear(); }

  // The field that the user is at from now on, with the caret behind this text.
  void use(const char* outlet, const std::string& text = {}) {
    field = owner.outlet<TextField>(outlet);
    ASSERT_NE(field, nullptr) << outlet;
    field->setStringValue(text);
    line = dynamic_cast<QtFieldEditor*>(QtToolkit::widgetOf(*field));
    user = std::make_unique<LineUser>(line);
    line->setFocus();
    line->end(false);
    platform.clear();
    owner.textChanges.clear();
  }

  // What is heard of the formatter: nothing, or a beep and one notification about this object.
  void expectNothingHeard() {
    EXPECT_EQ(platform.toolkit.beeps, 0);
    EXPECT_TRUE(platform.posted.empty());
  }
  void expectRefusal(const char* name, const NotificationObject& object) {
    EXPECT_EQ(platform.toolkit.beeps, 1);
    ASSERT_EQ(platform.posted.size(), 1U);
    EXPECT_EQ(platform.posted[0].name, name);
    EXPECT_EQ(platform.posted[0].object, object);
    platform.clear();
  }
  NotificationObject formatterItself() const {
    return static_cast<const void*>(static_cast<PDEFormatter*>(field->formatter()));
  }
  NotificationObject fieldItself() const {
    return static_cast<const void*>(static_cast<View*>(field));
  }

  TypingPlatform platform;
  RecordingOwner owner;
  QWidget window;
  QLineEdit* elsewhere = new QLineEdit;
  TextField* field = nullptr;
  QtFieldEditor* line = nullptr;
  std::unique_ptr<LineUser> user;
};

}  // namespace cutline
