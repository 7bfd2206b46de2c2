// How the dialog's buttons, check boxes, lists and scroll bars look: flat, in the palette's
// colours, with the accent where something is on, is the way to print, or has the keyboard.
#pragma once

#include <QRect>

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionSlider;

namespace cutline {

// The button that Return presses is filled with the accent; those with a sign of their own are not.
bool isFilled(const QStyleOptionButton& button);

// One without a frame shows its ground only while it is touched.
void drawFlatButton(QPainter& painter, const QStyleOption& option);
void drawButtonPanel(QPainter& painter, const QStyleOption& option);
void drawCheckMark(QPainter& painter, const QStyleOption& option);
// The frame and the arrow of a closed list; its text is the style's.
void drawClosedList(QPainter& painter, const QStyleOptionComboBox& list, const QRect& arrow);

// A bar has no arrows: its handle runs in all of it.
constexpr int kScrollBarExtent = 12;
QRect scrollHandle(const QStyleOptionSlider& bar);
void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar);

}  // namespace cutline
