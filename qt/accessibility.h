// What assistive technology is told of this program's widgets where Qt would say too little of
// them, or something else.
#pragma once

#include <QAccessible>

class QWidget;

namespace cutline {

// From now on Qt asks this program first for what assistive technology is told. More calls change
// nothing.
void makeAccessible();

// What kind of thing the widget is, for a widget class that says nothing about it. To be called
// before anybody has asked for the widget: Qt asks once. Name and description are the widget's own.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

// QWidget's setters announce a change even where nothing has changed; these do not.
void tellAccessibleName(QWidget& widget, const QString& name);
void tellAccessibleDescription(QWidget& widget, const QString& description);

}  // namespace cutline
