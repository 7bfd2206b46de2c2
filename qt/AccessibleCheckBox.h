// A check box as assistive technology has it. Unlike Qt's own it is ticked as by a click, so that
// whoever listens to the user's clicks hears of it.
#pragma once

#include <QAccessibleWidget>
#include <QCheckBox>

namespace cutline {

class AccessibleCheckBox : public QAccessibleWidget {
 public:
  explicit AccessibleCheckBox(QCheckBox& box);

  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;
  QStringList actionNames() const override;
  // Comes back before the click: what it sets off may be a question to the user, and assistive
  // technology must not wait until that is answered.
  void doAction(const QString& name) override;

 private:
  QCheckBox& mBox;
};

}  // namespace cutline
