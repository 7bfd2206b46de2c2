#include "host/dialog/StripColours.h"

#include "host/dialog/Appearance.h"

namespace cutline {

StripColours StripColours::of(const QPalette& palette) {
  StripColours colours;
  const bool dark = isDark(palette);
  colours.desk = dark ? QColor(0xff15171a) : QColor(0xffdfe2e3);
  colours.shadow = dark ? QColor(0, 0, 0, 90) : QColor(40, 50, 60, 40);
  colours.ruler = dark ? QColor(0xff5b6166) : QColor(0xffa4aaae);
  colours.rulerText = dark ? QColor(0xff8f969b) : QColor(0xff6c7377);
  colours.caption = dark ? QColor(0xffa9aeb2) : QColor(0xff4d5256);
  return colours;
}

}  // namespace cutline
