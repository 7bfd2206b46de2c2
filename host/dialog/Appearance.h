// The look of the program in light and dark surroundings: its colours and its style.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace cutline {

QPalette lightPalette();
QPalette darkPalette();

bool isDark(const QPalette& palette);

// The style of the whole program. Before the application is made it spares the loading of another.
void applyStyle();

// The palette of the whole program: dark when asked for, or when the desktop's own colours are
// dark; light otherwise.
void applyAppearance(bool dark);

// Fusion with outlines that can be seen on dark windows. Those of Qt 6.4.2 are darker than the
// window: check boxes and fields have no edge there.
class OutlinedStyle : public QProxyStyle {
  Q_OBJECT

 public:
  OutlinedStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  // Long lists open with a scroll bar, where Fusion would cover the screen with them.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
};

}  // namespace cutline
