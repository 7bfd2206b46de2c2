#include <QAccessible>
#include <QLineEdit>

#include "platform/ports/TextField.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

class AccessibleTextFieldTest : public QtPanelFixture {
 protected:
  AccessibleTextFieldTest() {
    field->setStringValue("1");
    field->setAccessibilityLabel("Number of labels");
    field->setTextDidChange([this] { events.emplace_back(field->stringValue()); });
  }
  QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(widget); }
  void putText(const QString& text) {
    spoken().editableTextInterface()->replaceText(0, spoken().textInterface()->characterCount(),
                                                  text);
  }

  std::shared_ptr<TextField> field = toolkit.createTextField({{36, 100}, {52, 22}});
  QLineEdit* widget = put<QLineEdit>(field);
};

TEST_F(AccessibleTextFieldTest, IsAnEditedTextOfItsName) {
  EXPECT_EQ(spoken().role(), QAccessible::EditableText);
  EXPECT_EQ(spoken().text(QAccessible::Name), "Number of labels");
  EXPECT_EQ(spoken().text(QAccessible::Value), "1");
  EXPECT_TRUE(spoken().state().editable);
}

TEST_F(AccessibleTextFieldTest, AssistiveTechnologyEditsItAsTheUserDoes) {
  putText(QStringLiteral("3"));
  EXPECT_EQ(field->stringValue(), "3");
  EXPECT_EQ(events, (Events{"3", "observer"}));
}

TEST_F(AccessibleTextFieldTest, AssistiveTechnologyDoesNotEditAGreyedField) {
  field->setEnabled(false);
  putText(QStringLiteral("3"));
  EXPECT_EQ(field->stringValue(), "1");
  EXPECT_EQ(widget->text(), "1");
  EXPECT_TRUE(events.empty());
}

}  // namespace
}  // namespace cutline
