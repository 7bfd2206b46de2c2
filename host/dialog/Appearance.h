// The look of the program in light and dark surroundings: its colours and its style.
#pragma once

#include <QPalette>
#include <QProxyStyle>

#include "host/dialog/ControlTexts.h"

namespace cutline {

QPalette lightPalette();
QPalette darkPalette();

bool isDark(const QPalette& palette);

// The style of the whole program. Before the application is made it spares the loading of another.
void applyStyle();

// The palette of the whole program: dark when asked for, or when the desktop's own colours are
// dark; light otherwise.
void applyAppearance(bool dark);

// Fusion with buttons, boxes, lists and scroll bars of our own (ControlDrawing.h), and with
// outlines of fields that can be seen on dark windows: those of Qt 6.4.2 are darker than the
// window.
class OutlinedStyle : public QProxyStyle {
  Q_OBJECT

 public:
  OutlinedStyle();

  using QProxyStyle::polish;
  void polish(QWidget* widget) override;

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  // Messages have the signs of notices.
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawItemText(QPainter* painter, const QRect& room, int flags, const QPalette& palette,
                    bool isEnabled, const QString& text, QPalette::ColorRole role) const override;
  // Long lists open with a scroll bar, where Fusion would cover the screen with them.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;

 private:
  mutable ControlTexts mTexts;  // a cache of what is drawn again and again
};

}  // namespace cutline
