#include <QLabel>
#include <QLineEdit>

#include "platform/ports/Controls.h"
#include "platform/ports/TextField.h"
#include "qt/QtText.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

QPalette paletteWith(const QColor& text, const QColor& disabled) {
  QPalette palette;
  for (const auto role : {QPalette::WindowText, QPalette::Text}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, disabled);
  }
  return palette;
}

class QtTextColorTest : public QtPanelFixture {
 protected:
  QtTextColorTest() { QtToolkit::widgetOf(*root)->setPalette(paletteWith("#111111", "#888888")); }
  static QColor colorOf(const QWidget* widget, QPalette::ColorRole role) {
    return widget->palette().color(QPalette::Active, role);
  }

  std::shared_ptr<Label> label = toolkit.createLabel({{0, 0}, {50, 18}});
  QLabel* labelWidget = put<QLabel>(label);
  std::shared_ptr<TextField> field = toolkit.createTextField({{0, 0}, {50, 22}});
  QLineEdit* fieldWidget = put<QLineEdit>(field);
};

TEST_F(QtTextColorTest, ComesFromThePalette) {
  EXPECT_EQ(colorOf(labelWidget, QPalette::WindowText), QColor("#111111"));
  label->setTextColor(TextColor::disabledControlText);
  field->setTextColor(TextColor::disabledControlText);
  EXPECT_EQ(label->textColor(), TextColor::disabledControlText);
  EXPECT_EQ(colorOf(labelWidget, QPalette::WindowText), QColor("#888888"));
  EXPECT_EQ(colorOf(fieldWidget, QPalette::Text), QColor("#888888"));
  EXPECT_TRUE(labelWidget->isEnabled());
}

TEST_F(QtTextColorTest, GoesBackToTheControlText) {
  label->setTextColor(TextColor::disabledControlText);
  label->setTextColor(TextColor::controlText);
  EXPECT_EQ(label->textColor(), TextColor::controlText);
  EXPECT_EQ(colorOf(labelWidget, QPalette::WindowText), QColor("#111111"));
}

TEST_F(QtTextColorTest, FollowsAChangeFromLightToDark) {
  label->setTextColor(TextColor::disabledControlText);
  QtToolkit::widgetOf(*root)->setPalette(paletteWith("#eeeeee", "#666666"));
  EXPECT_EQ(colorOf(labelWidget, QPalette::WindowText), QColor("#666666"));
  label->setTextColor(TextColor::controlText);
  EXPECT_EQ(colorOf(labelWidget, QPalette::WindowText), QColor("#eeeeee"));
}

TEST_F(QtTextColorTest, OutlivesTheWindow) {
  window.reset();
  label->setTextColor(TextColor::disabledControlText);
  EXPECT_EQ(label->textColor(), TextColor::disabledControlText);
}

TEST_F(QtTextColorTest, LabelShowsMarkupAsItIs) {
  label->setStringValue("<b>a</b> & b");
  EXPECT_EQ(label->stringValue(), "<b>a</b> & b");
  EXPECT_EQ(labelWidget->text(), "<b>a</b> & b");
  EXPECT_EQ(labelWidget->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace cutline
