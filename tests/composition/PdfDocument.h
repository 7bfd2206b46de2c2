// PDFs made for a test.
#pragma once

#include <functional>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>
#include <string>

namespace cutline::test {

// A PDF that pages and objects are added to.
class PdfDocument {
 public:
  PdfDocument();

  QPDF& pdf() { return mPdf; }
  // An object from its PDF text; references are those of objects that were added.
  QPDFObjectHandle add(const std::string& object);
  // A stream with a dictionary's entries; gives its reference, such as "3 0 R".
  std::string addStream(const std::string& content, const std::string& entries = {});
  // A page with these entries, and this content; gives it.
  QPDFObjectHandle addPage(const std::string& entries, const std::string& content = {});
  // The file. `prepare` may change the writer's settings first.
  std::string bytes(const std::function<void(QPDFWriter&)>& prepare = {});

 private:
  QPDF mPdf;
};

// A page of this size with a black square of 10 points in its lower left corner.
std::string markedPdf(double width, double height, const std::string& entries = {});

inline constexpr char kCornerMark[] = "0 0 10 10 re f";

}  // namespace cutline::test
