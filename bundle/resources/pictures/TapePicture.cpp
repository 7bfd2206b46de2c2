// Tape: what is cut, how deep, by whom, and what stays in the printer.
#include <array>
#include <string>
#include <vector>

#include "bundle/resources/pictures/Glyphs.h"
#include "bundle/resources/pictures/Picture.h"
#include "bundle/resources/pictures/Printer.h"
#include "bundle/resources/pictures/Signs.h"
#include "bundle/resources/pictures/Strip.h"

namespace cutline::pictures {

namespace {

constexpr std::array<std::string_view, 4> kTexts = {"ABC", "123", "EFG", "456"};
constexpr double kLabelWidth = 49;
constexpr double kLeaderWidth = 22;
constexpr double kLeft = 4;
constexpr double kHidden = 25;  // of a chained label: so much of it still lies in the printer
constexpr double kBladeTip = 26;
constexpr double kTextMiddle = 43.5;

// What lies between a stretch of tape and the one after it.
enum class Join { None, Half, Full, Mark };

constexpr double widthOf(Join join) {
  constexpr std::array<double, 4> kWidths = {0, 3, 9, 0};
  return kWidths.at(static_cast<std::size_t>(join));
}

struct Stretch {
  Span span;
  std::string_view text;    // empty: blank
  Join after = Join::None;  // what lies to its right
  bool leader = false;
};

Join joinBetweenLabels(const Flags& flags, std::size_t index) {
  // Half and full cut together make strips; of a chain, a first strip of two labels is off already.
  if (flags.halfCut && flags.autoCut && flags.chain && index == 1) return Join::Full;
  if (flags.halfCut) return Join::Half;
  if (flags.autoCut) return Join::Full;
  return flags.cutMark ? Join::Mark : Join::None;
}

Join joinAtEnd(const Flags& flags) {
  if (flags.chain) return Join::None;
  if (flags.autoCut) return Join::Full;
  return joinBetweenLabels(flags, 2);
}

Join joinAfterLeader(const Flags& flags) { return joinBetweenLabels(flags, 0); }

// The stretches in printing order, not placed yet: their spans start at 0.
std::vector<Stretch> stretchesFor(const Flags& flags) {
  std::vector<Stretch> stretches;
  if (!flags.chain) stretches.push_back({{0, kLeaderWidth}, {}, joinAfterLeader(flags), true});
  const std::size_t count = flags.chain ? 4 : 3;
  for (std::size_t i = 0; i < count; ++i) {
    const bool last = i + 1 == count;
    stretches.push_back({{0, kLabelWidth},
                         kTexts.at(i),
                         last ? joinAtEnd(flags) : joinBetweenLabels(flags, i)});
  }
  return stretches;
}

// Puts the stretches side by side and gives where the last of them, with its join, ends.
double place(std::vector<Stretch>& stretches, double left) {
  for (Stretch& stretch : stretches) {
    const double width = stretch.span.right - stretch.span.left;
    stretch.span = {left, left + width};
    left += width + widthOf(stretch.after);
  }
  return left;
}

std::vector<Stretch> placedStretchesFor(const Flags& flags) {
  std::vector<Stretch> stretches = stretchesFor(flags);
  const double end = place(stretches, kLeft);
  if (flags.chain) {
    place(stretches, kLeft + kMouth + kHidden - end);
  } else {
    stretches.push_back({{end, kInsideEnd}, {}});  // the tape that was fed behind the last label
  }
  return stretches;
}

// The spans of what hangs together: of the backing with `upTo` Full, of the printed layer with Half.
std::vector<Span> piecesOf(const std::vector<Stretch>& stretches, bool halfCutsToo) {
  std::vector<Span> pieces;
  bool open = false;
  for (const Stretch& stretch : stretches) {
    if (!open) pieces.push_back(stretch.span);
    pieces.back().right = stretch.span.right;
    open = !(stretch.after == Join::Full || (halfCutsToo && stretch.after == Join::Half));
  }
  return pieces;
}

void drawLayers(Svg& svg, const Flags& flags, const std::vector<Stretch>& stretches) {
  for (const Span& span : piecesOf(stretches, false)) {
    flags.special ? drawFabric(svg, span) : drawBacking(svg, span);
  }
  if (flags.special) return;
  for (const Span& span : piecesOf(stretches, true)) {
    flags.halfCut ? drawPeelingFace(svg, span) : drawFace(svg, span);
  }
}

void drawContents(Svg& svg, const Flags& flags, const std::vector<Stretch>& stretches) {
  std::size_t index = 0;
  for (const Stretch& stretch : stretches) {
    if (stretch.leader && !flags.special) drawBin(svg, {stretch.span.centre(), kTextMiddle});
    if (stretch.text.empty()) continue;
    svg.begin("text" + std::to_string(++index));
    write(svg, stretch.text, {stretch.span.centre(), kTextMiddle}, {16, 2.6, flags.mirror});
    svg.end();
  }
}

void drawJoin(Svg& svg, Join join, double x) {
  switch (join) {
    case Join::None:
      return;
    case Join::Half:
      drawBlade(svg, {x, kBladeTip}, kHalfCut);
      return;
    case Join::Full:
      svg.line({x, kBladeTip}, {x, kTapeBottom + 5}, stroked(kCut, 1.6));
      drawBlade(svg, {x, kBladeTip}, kCut);
      return;
    case Join::Mark:
      svg.line({x, kTapeTop + 2}, {x, kTapeFaceBottom - 1}, stroked(kInk, 1.4, "2.5 2.5"));
      return;
  }
}

void drawJoins(Svg& svg, const std::vector<Stretch>& stretches) {
  for (const Stretch& stretch : stretches) {
    drawJoin(svg, stretch.after, stretch.span.right + widthOf(stretch.after) / 2);
  }
}

}  // namespace

void drawTapePicture(Svg& svg, const Flags& flags) {
  const std::vector<Stretch> stretches = placedStretchesFor(flags);
  drawSlot(svg, kTapeTop, kTapeBottom);
  drawLayers(svg, flags, stretches);
  drawContents(svg, flags, stretches);
  drawJoins(svg, stretches);
  drawTapePrinter(svg);
  if (flags.chain) drawLinks(svg, kSignPlace);
  if (flags.mirror) drawMirror(svg, kSecondSignPlace);
}

}  // namespace cutline::pictures
