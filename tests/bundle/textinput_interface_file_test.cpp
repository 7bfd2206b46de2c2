// Formatter and reporting field as an interface file gives them to a panel, in the hands of a user.
#include "bundle/plugin/BasePDE13_v400_.h"
#include "plain/PlainTextField.h"
#include "platform/lib/InterfaceLoader.h"
#include "platform/lib/PropertyList.h"
#include "tests/bundle/FormatterTest.h"
#include "tests/bundle/TestBundle.h"

namespace cutline::test {
namespace {

// A panel of a single text field that counts the changes that it is told of.
class Panel final : public BasePDE13_v400_ {
 public:
  void controlTextDidChange(const Notification&) noexcept override { ++changes; }
  int changes = 0;
};

class TextInputInterface : public FormatterTest {
 protected:
  // The field of a panel whose file has these entries for it.
  PlainTextField& load(const std::string& entries) {
    const std::string file = R"(<plist version="1.0"><dict><key>view</key><dict>
      <key>kind</key><string>View</string>
      <key>frame</key><string>{{0, 0}, {100, 40}}</string>
      <key>outlet</key><string>kPDEView</string>
      <key>subviews</key><array><dict>
        <key>kind</key><string>TextField</string>
        <key>frame</key><string>{{0, 0}, {52, 22}}</string>
        <key>delegate</key><true/>)" +
                             entries + "</dict></array></dict></dict></plist>";
    const auto list = PropertyList::parseXML(file);
    EXPECT_TRUE(list && loadInterface(*list, bundle, panel));
    field = std::dynamic_pointer_cast<PlainTextField>(panel.kPDEView->subviews().at(0));
    return *field;
  }

  TestBundle bundle;
  Panel panel;
  std::shared_ptr<PlainTextField> field;
};

constexpr char kByteField[] = R"(<key>formatter</key><dict>
    <key>class</key><string>PDEFormatter</string>
    <key>textStyle</key><integer>2</integer>
    <key>maxLength</key><integer>3</integer>
    <key>maxValue</key><integer>255</integer>
    <key>invalidCharacters</key><array><string>7</string></array>
  </dict>)";

TEST_F(TextInputInterface, AFieldRefusesWhatItsFormatterDoes) {
  PlainTextField& byte = load(kByteField);
  byte.type("25");
  EXPECT_EQ(panel.changes, 2);
  byte.type("6");
  EXPECT_EQ(byte.stringValue(), "25");
  EXPECT_EQ(lastName(), "FormatErrorNotification");
  EXPECT_EQ(
      lastObject(),
      NotificationObject(static_cast<const void*>(dynamic_cast<PDEFormatter*>(byte.formatter()))));
  byte.type("x");
  EXPECT_EQ(lastName(), "InvalidCharacterNotification");
  byte.type("7");
  EXPECT_EQ(lastObject(), characterAsObject("7"));
  EXPECT_EQ(platform.toolkit.beepCount(), 3);
  EXPECT_EQ(posted.size(), 3U);
  EXPECT_EQ(panel.changes, 2);
  byte.type("5");
  EXPECT_EQ(byte.stringValue(), "255");
}

TEST_F(TextInputInterface, APasteIsRefusedWhole) {
  PlainTextField& byte = load(kByteField);
  byte.type("1");
  byte.paste("2x3");
  EXPECT_EQ(byte.stringValue(), "1");
  EXPECT_EQ(posted.size(), 1U);
  EXPECT_EQ(platform.toolkit.beepCount(), 1);
  byte.paste("23");
  EXPECT_EQ(byte.stringValue(), "123");
}

TEST_F(TextInputInterface, WhatIsThereMayAlwaysBeDeleted) {
  PlainTextField& byte = load(kByteField);
  byte.setStringValue("あ-99999");
  byte.deleteBackward();
  EXPECT_EQ(byte.stringValue(), "あ-9999");
  byte.typeText("");
  EXPECT_EQ(byte.stringValue(), "");
  EXPECT_TRUE(posted.empty());
}

class NotificationObjectsOfAFile : public TextInputInterface {
 protected:
  // What is heard when the formatter, whose notifications are about that, refuses a number.
  NotificationObject heard(const std::string& object) {
    load(R"(<key>outlet</key><string>mNumber</string><key>formatter</key><dict>
      <key>class</key><string>PDEFormatter</string><key>textStyle</key><integer>2</integer>
      <key>maxValue</key><integer>9</integer><key>notificationObject</key><dict>)" +
         object + "</dict></dict>");
    field->typeText("10");
    EXPECT_EQ(lastName(), "FormatErrorNotification");
    return lastObject();
  }
};

TEST_F(NotificationObjectsOfAFile, AreHeardByWhoeverObservesThem) {
  const auto panelView = heard("<key>outlet</key><string>kPDEView</string>");
  EXPECT_EQ(panelView, NotificationObject(static_cast<const void*>(panel.kPDEView.get())));
  const auto fieldItself = heard("<key>outlet</key><string>mNumber</string>");
  const View* view = field.get();
  EXPECT_EQ(fieldItself, NotificationObject(static_cast<const void*>(view)));
  const InterfaceOwner* owner = &panel;
  EXPECT_EQ(heard("<key>owner</key><true/>"), NotificationObject(static_cast<const void*>(owner)));
  EXPECT_EQ(heard("<key>text</key><string>number</string>"),
            NotificationObject(std::string("number")));
}

TEST_F(NotificationObjectsOfAFile, GiveWayToAForbiddenCharacter) {
  heard("<key>text</key><string>number</string>");
  field->typeText("ä\u0416");
  EXPECT_EQ(lastObject(), characterAsObject("\u0416"));
}

class ReportingField : public TextInputInterface {
 protected:
  ReportingField() {
    load("<key>class</key><string>PDETextField13_v400_</string>");
    platform.center.addObserver(
        this, [this](const Notification& notification) { reports.push_back(notification.object); },
        "TextFieldResignFirstResponderNotification", {});
  }

  NotificationObject fieldItself() const {
    return static_cast<const void*>(static_cast<const View*>(field.get()));
  }

  std::vector<NotificationObject> reports;
};

TEST_F(ReportingField, IsSilentWhenTheUserClicksIntoItAndTabsOut) {
  EXPECT_TRUE(field->focus());
  field->leave();
  EXPECT_TRUE(reports.empty());
}

TEST_F(ReportingField, ReportsEachKeyAndTellsNoDelegate) {
  field->type("abc");
  EXPECT_EQ(field->stringValue(), "abc");
  EXPECT_EQ(reports, std::vector(3, fieldItself()));
  EXPECT_EQ(panel.changes, 0);
  field->leave();
  EXPECT_EQ(reports.size(), 3U);
}

TEST_F(ReportingField, ReportsOnceWhenAskedToSelectAndSelectsNothing) {
  field->setStringValue("abc");
  field->setSelectedRange({1, 1});
  field->selectText(nullptr);
  EXPECT_EQ(reports, std::vector{fieldItself()});
  EXPECT_EQ(field->selectedRange(), (TextRange{1, 1}));
}

}  // namespace
}  // namespace cutline::test
