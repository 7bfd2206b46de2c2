#include "composition/reader/EmbeddedFont.h"

#include <stdexcept>
#include <utility>
#include <vector>

namespace cutline {
namespace {

constexpr double kUnits = 1000;  // of a width, for a font of size 1
constexpr unsigned kMostCodes = 65536;

double numberOf(QPDFObjectHandle object, double otherwise = 0) {
  object.getValueAsNumber(otherwise);
  return otherwise;
}

unsigned codeOf(QPDFObjectHandle object) {
  const double code = numberOf(std::move(object), -1);
  if (!(code >= 0 && code < kMostCodes)) throw std::runtime_error("a font's width of no code");
  return static_cast<unsigned>(code);
}

QPDFObjectHandle dictionaryIn(QPDFObjectHandle dictionary, const char* key) {
  QPDFObjectHandle found = dictionary.getKey(key);
  if (!found.isDictionary()) throw std::runtime_error("a font without its description");
  return found;
}

QPDFObjectHandle fileIn(QPDFObjectHandle descriptor) {
  for (const char* key : {"/FontFile", "/FontFile2", "/FontFile3"})
    if (QPDFObjectHandle file = descriptor.getKey(key); file.isStream()) return file;
  throw std::runtime_error("a font without its file");
}

}  // namespace

EmbeddedFont::EmbeddedFont(QPDFObjectHandle font, const Read& read) {
  const bool isComposite = font.getKey("/Subtype").isNameAndEquals("/Type0");
  mShapes.emplace(read(fileIn(isComposite ? readComposite(font) : readSimple(font))));
}

QPDFObjectHandle EmbeddedFont::readSimple(QPDFObjectHandle font) {
  QPDFObjectHandle descriptor = dictionaryIn(font, "/FontDescriptor");
  mOtherWidth = numberOf(descriptor.getKey("/MissingWidth"));
  readWidths(font.getKey("/Widths"), codeOf(font.getKey("/FirstChar")));
  return descriptor;
}

QPDFObjectHandle EmbeddedFont::readComposite(QPDFObjectHandle font) {
  mCodeBytes = 2;
  QPDFObjectHandle descendants = font.getKey("/DescendantFonts");
  if (!font.getKey("/Encoding").isNameAndEquals("/Identity-H") || !descendants.isArray() ||
      descendants.getArrayNItems() != 1 || !descendants.getArrayItem(0).isDictionary())
    throw std::runtime_error("a composite font of another kind");
  QPDFObjectHandle descendant = descendants.getArrayItem(0);
  mOtherWidth = numberOf(descendant.getKey("/DW"), kUnits);
  mAreCodesGlyphs = !descendant.getKey("/CIDToGIDMap").isStream();
  if (QPDFObjectHandle runs = descendant.getKey("/W"); runs.isArray()) readRuns(runs);
  return dictionaryIn(descendant, "/FontDescriptor");
}

void EmbeddedFont::readWidths(QPDFObjectHandle widths, unsigned first) {
  if (!widths.isArray()) throw std::runtime_error("a font without widths");
  unsigned code = first;
  for (const QPDFObjectHandle& width : widths.getArrayAsVector()) {
    if (code >= kMostCodes) return;
    setWidth(code++, numberOf(width));
  }
}

// Runs upon each other could be without end.
void EmbeddedFont::setWidth(unsigned code, double width) {
  if (!mWidths.emplace(code, width).second) throw std::runtime_error("a code of two widths");
}

// A run is a code and a list of widths, or a first code, a last one, and their width.
void EmbeddedFont::readRuns(QPDFObjectHandle runs) {
  const std::vector<QPDFObjectHandle> items = runs.getArrayAsVector();
  for (std::size_t at = 0; at + 1 < items.size();) {
    const unsigned first = codeOf(items[at]);
    QPDFObjectHandle next = items[at + 1];
    if (next.isArray()) {
      readWidths(next, first);
      at += 2;
      continue;
    }
    if (at + 2 >= items.size()) return;
    for (unsigned code = first, last = codeOf(next); code <= last; ++code)
      setWidth(code, numberOf(items[at + 2]));
    at += 3;
  }
}

const Glyph& EmbeddedFont::glyph(unsigned code) {
  const auto [known, isNew] = mGlyphs.try_emplace(code);
  if (!isNew) return known->second;
  const auto width = mWidths.find(code);
  const double advance = (width == mWidths.end() ? mOtherWidth : width->second) / kUnits;
  known->second = {mAreCodesGlyphs ? mShapes->inkOf(code) : mShapes->inkOfAll(), advance};
  return known->second;
}

}  // namespace cutline
