#include "composition/reader/PdfFrame.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "composition/reader/DocumentSource.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr int kQuarter = 90;
constexpr int kFull = 360;

std::optional<Area> boxNamed(QPDFPageObjectHelper& page, const char* name) {
  QPDFObjectHandle box = page.getAttribute(name, false);
  if (!box.isRectangle()) return std::nullopt;
  const QPDFObjectHandle::Rectangle at = box.getArrayAsRectangle();
  return Area{at.llx, at.lly, at.urx, at.ury};
}

bool isEmpty(const Area& area) { return !(area.right > area.left && area.top > area.bottom); }

Area shownBox(QPDFPageObjectHelper& page) {
  const std::optional<Area> media = boxNamed(page, "/MediaBox");
  const std::optional<Area> crop = boxNamed(page, "/CropBox");
  if (!media) throw Refusal{DocumentProblem::badSize, {}};
  if (!crop) return *media;
  const Area both{std::max(media->left, crop->left), std::max(media->bottom, crop->bottom),
                  std::min(media->right, crop->right), std::min(media->top, crop->top)};
  return isEmpty(both) ? *media : both;
}

// Nothing else than quarters counts.
int rotationOf(QPDFPageObjectHelper& page) {
  double turn = 0;
  if (!page.getAttribute("/Rotate", false).getValueAsNumber(turn)) return 0;
  const double rest = std::fmod(turn, kFull);
  const int degrees = static_cast<int>(rest);
  if (degrees != rest || degrees % kQuarter != 0) return 0;
  return (degrees + kFull) % kFull;
}

double unitOf(QPDFPageObjectHelper& page) {
  double unit = 1;
  QPDFObjectHandle stated = page.getObjectHandle().getKey("/UserUnit");
  return stated.getValueAsNumber(unit) && unit > 0 ? unit : 1;
}

QPDFMatrix shownMatrix(const Area& box, int rotation, double unit) {
  switch (rotation) {
    case kQuarter:
      return {0, -unit, unit, 0, -unit * box.bottom, unit * box.right};
    case 2 * kQuarter:
      return {-unit, 0, 0, -unit, unit * box.right, unit * box.top};
    case 3 * kQuarter:
      return {0, unit, -unit, 0, unit * box.top, -unit * box.left};
    default:
      return {unit, 0, 0, unit, -unit * box.left, -unit * box.bottom};
  }
}

}  // namespace

PdfFrame pdfFrame(QPDFPageObjectHelper page) {
  PdfFrame frame;
  frame.box = shownBox(page);
  frame.rotation = rotationOf(page);
  const double unit = unitOf(page);
  frame.size = {(frame.box.right - frame.box.left) * unit,
                (frame.box.top - frame.box.bottom) * unit};
  const double longest = std::max(frame.size.width, frame.size.height);
  if (isEmpty(frame.box) || !(longest <= kLargestPage)) throw Refusal{DocumentProblem::badSize, {}};
  if (frame.rotation % (2 * kQuarter) != 0) std::swap(frame.size.width, frame.size.height);
  frame.matrix = shownMatrix(frame.box, frame.rotation, unit);
  return frame;
}

}  // namespace cutline
