#include "composition/reader/LabelWriter.h"

#include <cerrno>
#include <cstring>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "base/FileDescriptor.h"
#include "composition/reader/PdfNumbers.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr char kVersion[] = "1.7";
constexpr std::size_t kBlock = 65536;

// To an open file, in large blocks: qpdf ends its output behind every stream, at which a file of
// the C library is written out, too.
class BlockOutput : public Pipeline {
 public:
  explicit BlockOutput(int file) : Pipeline("labels", nullptr), mFile(file) {}

  void write(const unsigned char* bytes, std::size_t size) override {
    if (mBlock.size() + size > kBlock) flush();
    // A large stream is not kept twice.
    if (size > kBlock) return put(bytes, size);
    mBlock.append(reinterpret_cast<const char*>(bytes), size);
  }
  void finish() override {}

  void flush() {
    put(mBlock.data(), mBlock.size());
    mBlock.clear();
  }

 private:
  void put(const void* bytes, std::size_t size) const {
    if (!writeAll(mFile, bytes, size)) throw Refusal{DocumentProblem::broken, std::strerror(errno)};
  }

  int mFile;
  std::string mBlock;
};

}  // namespace

LabelWriter::LabelWriter() {
  mPdf.setSuppressWarnings(true);
  mPdf.emptyPDF();
}

void LabelWriter::setLabel(const LabelPage& label, bool isMirrored) {
  mLabel = label;
  mIsMirrored = isMirrored;
}

QPDFMatrix LabelWriter::placing(const DrawnPage& page, const Placement& at) const {
  QPDFMatrix matrix;
  if (mIsMirrored) matrix.concat(mirror());
  matrix.concat({at.a, at.b, at.c, at.d, at.e, at.f});
  matrix.concat(page.matrix);
  return matrix;
}

// About the paper's vertical axis.
QPDFMatrix LabelWriter::mirror() const { return {-1, 0, 0, 1, mLabel.width, 0}; }

void LabelWriter::addPage(const DrawnPage& drawn, const Placement& placement) {
  std::string content;
  if (mIsMirrored) content = concatenation(mirror());
  content +=
      concatenation({placement.a, placement.b, placement.c, placement.d, placement.e, placement.f});
  if (drawn.matrix != QPDFMatrix()) content += concatenation(drawn.matrix);
  content += "/Page Do\n";

  QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
  forms.replaceKey("/Page", drawn.form);
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/XObject", forms);
  QPDFObjectHandle page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
  page.replaceKey("/MediaBox", pdfBox({0, 0, mLabel.width, mLabel.length}));
  page.replaceKey("/Resources", resources);
  page.replaceKey("/Contents", contentStream(content));
  QPDFPageDocumentHelper(mPdf).addPage(mPdf.makeIndirectObject(page), /*first=*/false);
}

// Most labels of a job are placed alike, and each stream is compressed by itself.
QPDFObjectHandle LabelWriter::contentStream(const std::string& content) {
  QPDFObjectHandle& stream = mContents[content];
  if (!stream.isInitialized()) stream = mPdf.newStream(content);
  return stream;
}

void LabelWriter::addLayer(const QPDFObjectHandle& layer, bool isHidden) {
  QPDFObjectHandle root = mPdf.getRoot();
  if (!root.hasKey("/OCProperties"))
    root.replaceKey("/OCProperties", QPDFObjectHandle::parse("<</OCGs[]/D<</OFF[]>>>>"));
  QPDFObjectHandle properties = root.getKey("/OCProperties");
  properties.getKey("/OCGs").appendItem(layer);
  if (isHidden) properties.getKey("/D").getKey("/OFF").appendItem(layer);
}

void LabelWriter::write(int output) {
  BlockOutput blocks(output);
  QPDFWriter writer(mPdf);
  writer.setOutputPipeline(&blocks);
  // What came packed is packed, and what did not is small or was no larger before: to pack it, and
  // the objects, would take as long as all the rest.
  writer.setStreamDataMode(qpdf_s_preserve);
  writer.setMinimumPDFVersion(kVersion);
  writer.setDeterministicID(true);
  writer.write();
  blocks.flush();
}

}  // namespace cutline
