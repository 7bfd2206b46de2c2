#include "composition/reader/JpegSource.h"

#include <qpdf/Buffer.hh>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/JpegReader.h"
#include "composition/reader/LabelWriter.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr char kInvertedInk[] = "[1 0 1 0 1 0 1 0]";

const char* colourSpace(int components) {
  if (components == 1) return "/DeviceGray";
  return components == 3 ? "/DeviceRGB" : "/DeviceCMYK";
}

QPDFObjectHandle imageOf(QPDF& pdf, const std::string& bytes, const JpegFacts& facts) {
  QPDFObjectHandle image = pdf.newStream();
  image.replaceStreamData(bytes, QPDFObjectHandle::newName("/DCTDecode"),
                          QPDFObjectHandle::newNull());
  QPDFObjectHandle dictionary = image.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
  dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(facts.picture.width));
  dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(facts.picture.height));
  dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
  dictionary.replaceKey("/ColorSpace", QPDFObjectHandle::newName(colourSpace(facts.components)));
  if (facts.isInverted) dictionary.replaceKey("/Decode", QPDFObjectHandle::parse(kInvertedInk));
  return image;
}

}  // namespace

JpegSource::JpegSource(int descriptor) : mBytes(contentsOf(descriptor)) {
  mFacts = jpegFacts(mBytes).picture;
  refuseUnlikelySize(mFacts.width, mFacts.height);
}

DrawnPage JpegSource::draw(int, LabelWriter& labels) {
  if (!isWholeJpeg(mBytes)) throw Refusal{DocumentProblem::damaged, {}};
  return drawnPicture(labels.pdf(), imageOf(labels.pdf(), mBytes, jpegFacts(mBytes)), mFacts);
}

}  // namespace cutline
