// The texts of controls on one line, each laid out once: that takes ten times as long as to draw
// it.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <memory>
#include <unordered_map>
#include <vector>

class QTextLayout;

namespace cutline {

class ControlTexts {
 public:
  ControlTexts();
  ~ControlTexts();

  // Draws with the painter's font and pen what QPainter::drawText draws with these flags
  // (Qt::Alignment, Qt::TextFlag). False, and nothing drawn, for what is seldom asked of a control:
  // several lines, tabs, words from right to left, or more than there is room for.
  bool draw(QPainter& painter, const QRect& room, int flags, const QString& text);

 private:
  struct Line {
    QFont font;
    int dotsPerInch;  // of the screen, which another one may not have
    bool hasMnemonic;
    std::unique_ptr<QTextLayout> layout;
    std::vector<int> underlined;  // letters of the layout's text
    QSizeF size;
  };

  static void drawUnderlines(QPainter& painter, const Line& line, QPointF place);
  const Line& laidOut(const QString& text, const QPainter& painter, bool hasMnemonic);

  std::unordered_map<QString, std::vector<Line>> mLines;
};

}  // namespace cutline
