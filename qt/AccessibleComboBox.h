// A list to choose from as assistive technology has it. Unlike Qt's own it can be given the
// keyboard, and an entry can be chosen without one.
#pragma once

#include <QAccessibleWidget>
#include <QComboBox>

namespace cutline {

class AccessibleComboBox : public QAccessibleWidget {
 public:
  // For boxes that are not edited.
  explicit AccessibleComboBox(QComboBox& box);

  // The name is the current entry; what the list is for says its label. An entry without a text is
  // named by the widget's own accessible name.
  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;

  // The list is its one child.
  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

  // To open the list, to choose the next or the previous entry, to take the keyboard.
  QStringList actionNames() const override;
  void doAction(const QString& name) override;

 private:
  QComboBox& mBox;
};

}  // namespace cutline
