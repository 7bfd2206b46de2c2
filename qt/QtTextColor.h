// The two text colours of labels and text fields, taken from the palette and kept in step with it
// (the user may switch between light and dark while the panel is open).
#pragma once

#include <QObject>
#include <QPalette>
#include <QWidget>

#include "platform/ports/Controls.h"

namespace cutline {

class QtTextColor : public QObject {
 public:
  // `role` is the palette role that the widget draws its text with.
  QtTextColor(QWidget& widget, QPalette::ColorRole role);

  TextColor color() const noexcept { return mColor; }
  // `widget` may be gone by now: null then.
  void setColor(QWidget* widget, TextColor color) noexcept;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void apply(QWidget& widget) const;

  QPalette::ColorRole mRole;
  TextColor mColor = TextColor::controlText;
};

}  // namespace cutline
