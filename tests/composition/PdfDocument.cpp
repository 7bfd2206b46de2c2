#include "tests/composition/PdfDocument.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

namespace cutline::test {

PdfDocument::PdfDocument() { mPdf.emptyPDF(); }

QPDFObjectHandle PdfDocument::add(const std::string& object) {
  return mPdf.makeIndirectObject(QPDFObjectHandle::parse(&mPdf, object));
}

std::string PdfDocument::addStream(const std::string& content, const std::string& entries) {
  QPDFObjectHandle stream = mPdf.newStream(content);
  QPDFObjectHandle dictionary = QPDFObjectHandle::parse(&mPdf, "<<" + entries + ">>");
  for (const std::string& key : dictionary.getKeys())
    stream.getDict().replaceKey(key, dictionary.getKey(key));
  return stream.unparse();
}

QPDFObjectHandle PdfDocument::addPage(const std::string& entries, const std::string& content) {
  std::string page = "<</Type/Page " + entries;
  if (!content.empty()) page += "/Contents " + addStream(content);
  QPDFObjectHandle added = add(page + ">>");
  QPDFPageDocumentHelper(mPdf).addPage(added, /*first=*/false);
  return added;
}

std::string PdfDocument::bytes(const std::function<void(QPDFWriter&)>& prepare) {
  QPDFWriter writer(mPdf);
  writer.setOutputMemory();
  writer.setStaticID(true);
  if (prepare) prepare(writer);
  writer.write();
  const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

std::string markedPdf(double width, double height, const std::string& entries) {
  PdfDocument document;
  document.addPage(
      "/MediaBox[0 0 " + std::to_string(width) + ' ' + std::to_string(height) + "]" + entries,
      kCornerMark);
  return document.bytes();
}

}  // namespace cutline::test
