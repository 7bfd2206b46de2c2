// What assistive technology is told of this program's widgets where Qt would say too little of
// them, or something else.
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>

class QWidget;

namespace cutline {

class ClientWidget;

// From now on Qt asks this program first for what assistive technology is told. More calls change
// nothing.
void makeAccessible();

// What kind of thing the widget is, for a widget class that says nothing about it. To be called
// before anybody has asked for the widget: Qt asks once. Name and description are the widget's own.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

// QWidget's setters in Qt 6.4.2 announce a change even where nothing has changed, and a screen
// reader says the words again; these do not.
void tellAccessibleName(QWidget& widget, const QString& name);
void tellAccessibleDescription(QWidget& widget, const QString& description);

// A check box as assistive technology has it. Qt 6.4.2's own is ticked without a click, so that
// whoever listens to the user's clicks does not hear of it, and says of a mixed box that it is
// checked as well.
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

// A list to choose from as assistive technology has it. Qt 6.4.2's own can only be opened, even
// when it is greyed: it is not given the keyboard, no entry is chosen without one, and the opened
// list has no name.
class AccessibleComboBox : public QAccessibleWidget {
 public:
  // For boxes that are not edited.
  explicit AccessibleComboBox(QComboBox& box);

  // The name is the current entry; what the list is for says its label. An entry without a text is
  // named by the widget's own accessible name. The value is the entry's text, or in place of an
  // empty one its words, or without an entry what the box shows instead.
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
  QString value() const;

  QComboBox& mBox;
};

// What assistive technology is told of a client's drawing: that it is a graphic, and what it shows.
// A name that was set for the widget stays its name, and the words then describe it.
class AccessibleDrawing : public QAccessibleWidget {
 public:
  explicit AccessibleDrawing(ClientWidget& widget);

  // The kind of text that gives the client's words: name or description.
  static QAccessible::Text whereWordsAre(const ClientWidget& widget);

  QString text(QAccessible::Text kind) const override;

 private:
  const ClientWidget& mWidget;
};

}  // namespace cutline
