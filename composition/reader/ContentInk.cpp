#include "composition/reader/ContentInk.h"

#include <stdexcept>

namespace cutline {
namespace {

[[noreturn]] void failAsUnknown(const char* what) { throw std::runtime_error(what); }

QPDFMatrix matrixOfForm(QPDFObjectHandle form) {
  QPDFObjectHandle matrix = form.getDict().getKey("/Matrix");
  if (matrix.isNull()) return {};
  if (!matrix.isMatrix()) failAsUnknown("a form's matrix");
  return QPDFMatrix(matrix.getArrayAsMatrix());
}

Area boxOfForm(QPDFObjectHandle form) {
  QPDFObjectHandle box = form.getDict().getKey("/BBox");
  if (!box.isRectangle()) failAsUnknown("a form without a box");
  const auto corners = box.getArrayAsRectangle();
  return {corners.llx, corners.lly, corners.urx, corners.ury};
}

double numberIn(QPDFObjectHandle dictionary, const char* key, double otherwise) {
  dictionary.getKey(key).getValueAsNumber(otherwise);
  return otherwise;
}

}  // namespace

InkArea ContentInk::ofStream(QPDFObjectHandle stream) {
  const InkWork::Within within(mWork);
  ContentOperations operations(mWork.contentOf(std::move(stream)));
  for (Operation operation; operations.next(operation);) act(operation);
  return mInk;
}

InkArea ContentInk::ofForm(QPDFObjectHandle form) const {
  State inner = mState;
  inner.matrix.concat(matrixOfForm(form));
  inner.clip = common(mState.clip, moved(inner.matrix, boxOfForm(form)));
  QPDFObjectHandle own = form.getDict().getKey("/Resources");
  return ContentInk(mWork, own.isDictionary() ? own : mResources, inner).ofStream(form);
}

QPDFObjectHandle ContentInk::resource(const char* kind, const std::string& name) {
  QPDFObjectHandle all = mResources.isDictionary() ? mResources.getKey(kind) : mResources;
  return all.isDictionary() ? all.getKey(name) : QPDFObjectHandle::newNull();
}

QPDFMatrix ContentInk::matrixOf(const Operation& operation) {
  const auto at = [&](std::size_t index) { return operation.operands[index].number; };
  return {at(0), at(1), at(2), at(3), at(4), at(5)};
}

std::string ContentInk::nameIn(const Operation& operation) {
  const auto& operands = operation.operands;
  if (operands.empty() || operands.front().kind != Operand::Kind::name)
    failAsUnknown("an operator without its name");
  return operands.front().text;
}

void ContentInk::restore() {
  if (mSaved.empty()) failAsUnknown("nothing to restore");
  mState = mSaved.back();
  mSaved.pop_back();
}

void ContentInk::addPoints(const Operation& operation) {
  const auto& numbers = operation.operands;
  for (std::size_t at = 0; at + 1 < numbers.size(); at += 2)
    mPath.addPoint(mState.matrix, numbers[at].number, numbers[at + 1].number);
}

void ContentInk::paintPath(bool isFilled, bool isStroked) {
  if (isFilled) paint(mPath.filled());
  if (isStroked) paint(mPath.stroked(mState.matrix, mState.stroke));
  endPath();
}

void ContentInk::endPath() {
  if (mClipsNext) mState.clip = common(mState.clip, mPath.filled());
  mClipsNext = false;
  mPath = {};
}

void ContentInk::setParameters(const Operation& operation) {
  QPDFObjectHandle parameters = resource("/ExtGState", nameIn(operation));
  if (!parameters.isDictionary()) return;
  StrokeStyle& stroke = mState.stroke;
  stroke.width = numberIn(parameters, "/LW", stroke.width);
  stroke.miterLimit = numberIn(parameters, "/ML", stroke.miterLimit);
  stroke.isMitered = numberIn(parameters, "/LJ", stroke.isMitered ? 0 : 1) == 0;
  QPDFObjectHandle font = parameters.getKey("/Font");
  double size = 0;
  if (!font.isArray() || font.getArrayNItems() != 2) return;
  if (font.getArrayItem(1).getValueAsNumber(size)) useFont(font.getArrayItem(0), size);
}

void ContentInk::drawObject(const Operation& operation) {
  QPDFObjectHandle object = resource("/XObject", nameIn(operation));
  if (!object.isStream()) return;
  QPDFObjectHandle kind = object.getDict().getKey("/Subtype");
  if (kind.isNameAndEquals("/Image")) return drawImage();
  if (!kind.isNameAndEquals("/Form")) failAsUnknown("an object of another kind");
  mInk.add(ofForm(object).area());
}

}  // namespace cutline
