// Paper labels from a roll: how many of them come off in one piece.
#include <array>
#include <string>

#include "bundle/resources/pictures/Glyphs.h"
#include "bundle/resources/pictures/Picture.h"
#include "bundle/resources/pictures/Printer.h"
#include "bundle/resources/pictures/Signs.h"
#include "bundle/resources/pictures/Strip.h"

namespace cutline::pictures {

namespace {

constexpr std::array<std::string_view, 3> kRollTexts = {"ABC", "123", "EFG"};
constexpr double kRollLabelWidth = 57;
constexpr double kGap = 10;
constexpr double kRollLeft = 3;

// The sample text and, below it, two lines of small print; a mirrored label mirrors both.
void drawText(Svg& svg, std::size_t index, double centre, bool mirror) {
  const double direction = mirror ? -1 : 1;
  const double start = centre - direction * 18;
  svg.begin("text" + std::to_string(index + 1));
  write(svg, kRollTexts.at(index), {centre, 41}, {15, 2.6, mirror});
  svg.line({start, 57}, {start + direction * 36, 57}, stroked(kFaintInk, 2.4));
  svg.line({start, 64}, {start + direction * 22, 64}, stroked(kFaintInk, 2.4));
  svg.end();
}

void drawTexts(Svg& svg, double left, double pitch, bool mirror) {
  for (std::size_t i = 0; i < kRollTexts.size(); ++i) {
    drawText(svg, i, left + static_cast<double>(i) * pitch + kRollLabelWidth / 2, mirror);
  }
}

void drawSeparateLabels(Svg& svg, const Flags& flags) {
  for (std::size_t i = 0; i < kRollTexts.size(); ++i) {
    const double left = kRollLeft + static_cast<double>(i) * (kRollLabelWidth + kGap);
    drawPaper(svg, {left, left + kRollLabelWidth});
    drawFullCutKnife(svg, left + kRollLabelWidth + kGap / 2);
  }
  drawTexts(svg, kRollLeft, kRollLabelWidth + kGap, flags.mirror);
}

void drawStripCutAtEnd(Svg& svg, const Flags& flags) {
  const double right = kRollLeft + 3 * (kRollLabelWidth + kGap) - kGap;
  const double left = right - 3 * kRollLabelWidth;
  drawPaper(svg, {left, right});
  drawFullCutKnife(svg, right + kGap / 2);
  drawTexts(svg, left, kRollLabelWidth, flags.mirror);
}

void drawUncutStrip(Svg& svg, const Flags& flags) {
  drawPaper(svg, {kRollLeft, kInsideEnd});
  drawTexts(svg, kRollLeft, kRollLabelWidth, flags.mirror);
}

}  // namespace

void drawRollPicture(Svg& svg, const Flags& flags) {
  drawSlot(svg, kPaperTop, kPaperBottom);
  if (flags.every) {
    drawSeparateLabels(svg, flags);
  } else if (flags.end) {
    drawStripCutAtEnd(svg, flags);
  } else {
    drawUncutStrip(svg, flags);
  }
  drawRollPrinter(svg);
  if (flags.mirror) drawMirror(svg, kLowerSign);
}

}  // namespace cutline::pictures
