#include "host/dialog/ControlTexts.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <ranges>
#include <utility>

#include "host/dialog/mnemonics.h"

namespace cutline {
namespace {

// More than a dialog shows.
constexpr std::size_t kMostTexts = 512;
constexpr double kNoLimit = 1e6;
// What has room on one line is not wrapped, and what has no tabs has none to expand.
constexpr int kKnownFlags = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask | Qt::TextSingleLine |
                            Qt::TextShowMnemonic | Qt::TextWordWrap | Qt::TextExpandTabs |
                            Qt::TextForceLeftToRight;

// What the toolkit takes for a line's end, a tab or the end of a longer form of a text.
bool isSpecial(QChar character) {
  return character < QLatin1Char(' ') || character == QChar(0x9c) ||
         character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

bool isPlain(const QString& text, int flags) {
  return !text.isEmpty() && (flags & ~kKnownFlags) == 0 && std::ranges::none_of(text, isSpecial) &&
         !text.isRightToLeft();
}

struct Marked {
  QString text;
  std::vector<int> underlined;
};

// The letter behind a sign is underlined; two signs are one that is written.
Marked marked(const QString& text) {
  Marked all;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] == kMnemonicMark) {
      if (++at == text.size()) break;
      if (text[at] != kMnemonicMark) all.underlined.push_back(static_cast<int>(all.text.size()));
    }
    all.text.append(text[at]);
  }
  return all;
}

// Where the toolkit draws the line under a letter: on whole points from left to right, and a little
// lower than the font has it, but within its descent.
QLineF underline(const QTextLine& line, int letter, const QFontMetricsF& metrics, QPointF place) {
  const double offset = metrics.underlinePos();
  double below = std::ceil(offset) + 0.5;
  if (offset <= metrics.descent()) below = std::min(below, metrics.descent() - 0.5);
  const double y = place.y() + line.ascent() + below;
  return {std::floor(place.x() + line.cursorToX(letter)), y,
          std::floor(place.x() + line.cursorToX(letter + 1)), y};
}

std::unique_ptr<QTextLayout> layoutOf(const QString& text, const QFont& font) {
  auto layout = std::make_unique<QTextLayout>(text, font);
  layout->setCacheEnabled(true);
  QTextOption option;
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout->setTextOption(option);
  layout->beginLayout();
  layout->createLine().setLineWidth(kNoLimit);
  layout->endLayout();
  return layout;
}

QPointF placeIn(const QRect& room, const QSizeF& size, int flags) {
  QPointF place = room.topLeft();
  if (flags & Qt::AlignBottom)
    place.ry() += room.height() - size.height();
  else if (flags & Qt::AlignVCenter)
    place.ry() += (room.height() - size.height()) / 2;
  if (flags & Qt::AlignRight)
    place.rx() += room.width() - size.width();
  else if (flags & Qt::AlignHCenter)
    place.rx() += (room.width() - size.width()) / 2;
  return place;
}

}  // namespace

ControlTexts::ControlTexts() = default;
ControlTexts::~ControlTexts() = default;

bool ControlTexts::draw(QPainter& painter, const QRect& room, int flags, const QString& text) {
  if (!isPlain(text, flags) || painter.layoutDirection() == Qt::RightToLeft) return false;
  const Line& line = laidOut(text, painter, (flags & Qt::TextShowMnemonic) != 0);
  const QPointF place = placeIn(room, line.size, flags);
  if (!QRectF(room).contains(QRectF(place, line.size))) return false;
  line.layout->draw(&painter, place);
  if (!line.underlined.empty()) drawUnderlines(painter, line, place);
  return true;
}

void ControlTexts::drawUnderlines(QPainter& painter, const Line& line, QPointF place) {
  const QFontMetricsF metrics(line.font);
  const QPen before = painter.pen();
  painter.setPen(QPen(before.brush(), metrics.lineWidth(), Qt::SolidLine, Qt::FlatCap));
  for (const int letter : line.underlined)
    painter.drawLine(underline(line.layout->lineAt(0), letter, metrics, place));
  painter.setPen(before);
}

const ControlTexts::Line& ControlTexts::laidOut(const QString& text, const QPainter& painter,
                                                bool hasMnemonic) {
  if (mLines.size() > kMostTexts) mLines.clear();
  std::vector<Line>& lines = mLines[text];
  const QFont& font = painter.font();
  const int dotsPerInch = painter.device()->logicalDpiY();
  const auto known = std::ranges::find_if(lines, [&](const Line& line) {
    return line.hasMnemonic == hasMnemonic && line.dotsPerInch == dotsPerInch && line.font == font;
  });
  if (known != lines.end()) return *known;
  Marked words = hasMnemonic ? marked(text) : Marked{text, {}};
  std::unique_ptr<QTextLayout> layout = layoutOf(words.text, font);
  const QTextLine line = layout->lineAt(0);
  const QSizeF size(line.naturalTextWidth(), line.ascent() + line.descent());
  lines.push_back(
      {font, dotsPerInch, hasMnemonic, std::move(layout), std::move(words.underlined), size});
  return lines.back();
}

}  // namespace cutline
