// The colours of the strip. What the knife does has those of the pictures in the cut panel; the
// tape is the same on a light and on a dark desk.
#pragma once

#include <QColor>

class QPalette;

namespace cutline {

struct StripColours {
  static StripColours of(const QPalette& palette);

  // Around the tape.
  QColor desk;
  QColor shadow;
  QColor ruler;
  QColor rulerText;
  QColor caption;

  // The tape.
  QColor face{0xfffdfdfb};
  QColor backing{0xfff2b544};
  QColor edge{0xff76808b};
  QColor boundary{0xffb9bfc4};   // between labels that nothing parts
  QColor printable{0xffbdd3ea};  // the edge of what can be printed
  QColor waste{0xffe4e6e7};      // tape without a label
  QColor hatching{0xffa3a9ae};
  QColor wasteText{0xff4d5256};
  QColor fabric{0xffe6eef8};
  QColor weave{0xffccd8e8};
  QColor stitch{0xff5f83b5};

  // What is done to it.
  QColor fullCut{0xffe5432d};
  QColor halfCut{0xffcc6f0c};
  QColor cutMark{0xff1c8f6b};
  QColor blade{0xffd3d8dd};
  QColor bladeEdge{0xff4b5561};
  QColor printer{0xff8e99a5};
  QColor printerEdge{0xff4b5561};
};

}  // namespace cutline
