// Fusion with outlines that can be seen on dark windows: its own are darker than the window.
#pragma once

#include <QProxyStyle>

namespace cutline {

class OutlinedStyle : public QProxyStyle {
  Q_OBJECT

 public:
  OutlinedStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace cutline
