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
constexpr double kLabelWidth = 48;
constexpr double kLeaderWidth = 20;
constexpr double kLeft = 3;
constexpr double kHidden = 25;  // of a chained label: so much of it still lies in the printer
constexpr double kCutEnd = kMouth - 5;  // to here the gap of a cut at the end reaches
constexpr double kHandCutDistance = 6;  // behind the last label that was fed out
constexpr double kRaised = 1;  // of the text, so that a corner that comes off leaves it alone
constexpr Lettering kLettering = {14, 2.4};

// What lies between a stretch of tape and the one after it.
enum class Join { None, Half, Full, Mark };

constexpr double widthOf(Join join) {
  constexpr std::array<double, 4> kWidths = {0, 4, 10, 0};
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
    stretches.push_back(
        {{0, kLabelWidth}, kTexts.at(i), last ? joinAtEnd(flags) : joinBetweenLabels(flags, i)});
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
    return stretches;
  }
  const double right = flags.autoCut ? kCutEnd : end;
  place(stretches, kLeft + right - end);
  stretches.push_back({{right, kInsideEnd}, {}});  // the tape that was fed behind the last label
  return stretches;
}

// The spans of what hangs together: only a full cut parts the backing.
std::vector<Span> piecesOf(const std::vector<Stretch>& stretches) {
  std::vector<Span> pieces;
  bool parted = true;
  for (const Stretch& stretch : stretches) {
    if (parted) pieces.push_back(stretch.span);
    pieces.back().right = stretch.span.right;
    parted = stretch.after == Join::Full;
  }
  return pieces;
}

void drawHalfCutFaces(Svg& svg, const std::vector<Stretch>& stretches) {
  for (const Stretch& stretch : stretches) {
    stretch.text.empty() ? drawFace(svg, stretch.span) : drawPeelingFace(svg, stretch.span);
  }
}

void drawLayers(Svg& svg, const Flags& flags, const std::vector<Stretch>& stretches) {
  const std::vector<Span> pieces = piecesOf(stretches);
  for (const Span& span : pieces) flags.special ? drawFabric(svg, span) : drawBacking(svg, span);
  if (flags.special) return;
  if (flags.halfCut) return drawHalfCutFaces(svg, stretches);
  for (const Span& span : pieces) drawFace(svg, span);
}

void drawContents(Svg& svg, const Flags& flags, const std::vector<Stretch>& stretches) {
  const double middle = (kTapeTop + (flags.special ? kTapeBottom : kTapeFaceBottom)) / 2 - kRaised;
  Lettering lettering = kLettering;
  lettering.mirrored = flags.mirror;
  std::size_t index = 0;
  for (const Stretch& stretch : stretches) {
    if (stretch.leader) drawBin(svg, {stretch.span.centre(), middle});
    if (stretch.text.empty()) continue;
    svg.begin("text" + std::to_string(++index));
    write(svg, stretch.text, {stretch.span.centre(), middle}, lettering);
    svg.end();
  }
}

// A mark in print: a tick at either edge and dots between them.
void drawMark(Svg& svg, double x) {
  svg.line({x, kTapeTop + 2}, {x, kTapeTop + 6}, stroked(kInk, 2));
  svg.line({x, kTapeTop + 9}, {x, kTapeFaceBottom - 8}, stroked(kInk, 1.6, "1.6 2.4"));
  svg.line({x, kTapeFaceBottom - 6}, {x, kTapeFaceBottom - 2}, stroked(kInk, 2));
}

void drawJoin(Svg& svg, Join join, double x) {
  switch (join) {
    case Join::None:
      return;
    case Join::Half:
      return drawHalfCutKnife(svg, x);
    case Join::Full:
      return drawFullCutKnife(svg, x);
    case Join::Mark:
      return drawMark(svg, x);
  }
}

double middleAfter(const Stretch& stretch) {
  return stretch.span.right + widthOf(stretch.after) / 2;
}

void drawJoins(Svg& svg, const std::vector<Stretch>& stretches) {
  for (const Stretch& stretch : stretches) drawJoin(svg, stretch.after, middleAfter(stretch));
}

// Where somebody without a cutter cuts: at each mark, or else behind the last label in sight.
std::vector<double> handCutsOf(const Flags& flags, const std::vector<Stretch>& stretches) {
  if (flags.family == Family::Tape) return {};
  std::vector<double> cuts;
  for (const Stretch& stretch : stretches) {
    if (stretch.after == Join::Mark) cuts.push_back(stretch.span.right);
  }
  if (!cuts.empty()) return cuts;
  const double end = stretches[stretches.size() - 2].span.right;
  return {flags.chain ? end : end + kHandCutDistance};
}

void drawHandCuts(Svg& svg, const Flags& flags, const std::vector<Stretch>& stretches) {
  for (const double x : handCutsOf(flags, stretches)) {
    if (flags.special) drawNoKnife(svg, x);
    if (!flags.cutMark) svg.line({x, kTapeTop}, {x, kTapeBottom}, stroked(kHand, 2, "3 2.5"));
    drawScissors(svg, x);
  }
}

}  // namespace

void drawTapePicture(Svg& svg, const Flags& flags) {
  const std::vector<Stretch> stretches = placedStretchesFor(flags);
  drawSlot(svg, kTapeTop, kTapeBottom);
  drawLayers(svg, flags, stretches);
  drawContents(svg, flags, stretches);
  drawJoins(svg, stretches);
  drawHandCuts(svg, flags, stretches);
  drawTapePrinter(svg);
  if (flags.chain) drawLinks(svg, kLowerSign);
  if (flags.mirror) drawMirror(svg, kUpperSign);
}

}  // namespace cutline::pictures
