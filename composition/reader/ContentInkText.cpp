#include <stdexcept>

#include "composition/reader/ContentInk.h"

namespace cutline {
namespace {

// The operand at a place, of this kind.
const Operand& operandAt(const Operation& operation, std::size_t at, Operand::Kind kind) {
  if (operation.operands.size() <= at || operation.operands[at].kind != kind)
    throw std::runtime_error("a text's operator without its operands");
  return operation.operands[at];
}

}  // namespace

void ContentInk::setFont(const Operation& operation) {
  const double size = operandAt(operation, 1, Operand::Kind::number).number;
  useFont(resource("/Font", nameIn(operation)), size);
}

void ContentInk::useFont(QPDFObjectHandle font, double size) {
  mState.text.size = size;
  mState.text.font = &mWork.fontOf(std::move(font), mResources);
}

void ContentInk::moveLineAndLead(double across, double up) {
  mState.text.leading = -up;
  mCursor.moveLine(across, up);
}

void ContentInk::showText(const Operation& operation, std::size_t at) {
  show(operandAt(operation, at, Operand::Kind::string).text);
}

void ContentInk::showTexts(const Operation& operation) {
  for (const Operand& item : operandAt(operation, 0, Operand::Kind::list).items) {
    if (item.kind == Operand::Kind::number)
      mCursor.moveBack(item.number, mState.text);
    else
      show(item.text);
  }
}

void ContentInk::showSpacedOnNextLine(const Operation& operation) {
  mState.text.wordSpacing = operandAt(operation, 0, Operand::Kind::number).number;
  mState.text.charSpacing = operandAt(operation, 1, Operand::Kind::number).number;
  nextLine();
  showText(operation, 2);
}

void ContentInk::show(const std::string& codes) {
  mCursor.show(codes, mState.text, [this](const Glyph& glyph, const QPDFMatrix& at) {
    if (isNowhere(glyph.ink)) return;
    QPDFMatrix matrix = mState.matrix;
    matrix.concat(at);
    const Area ink = moved(matrix, glyph.ink);
    if (mState.text.isFilled()) paint(ink);
    if (mState.text.isStroked()) paint(mState.stroke.around(ink, mState.matrix, true));
  });
}

}  // namespace cutline
