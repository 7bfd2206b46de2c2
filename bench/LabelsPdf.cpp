#include "bench/LabelsPdf.h"

#include <vector>

namespace cutline {
namespace {

constexpr int kFontObject = 3;

// A label page of 50 x 24 mm, with its place in the file's table.
class PdfText {
 public:
  void add(const std::string& body) {
    mPlaces.push_back(mText.size());
    mText += std::to_string(mPlaces.size()) + " 0 obj\n" + body + "\nendobj\n";
  }

  std::string finished() {
    const std::size_t start = mText.size();
    mText += "xref\n0 " + std::to_string(mPlaces.size() + 1) + "\n0000000000 65535 f \n";
    for (const std::size_t place : mPlaces) {
      char line[24];
      std::snprintf(line, sizeof line, "%010zu 00000 n \n", place);
      mText += line;
    }
    mText += "trailer\n<</Size " + std::to_string(mPlaces.size() + 1) +
             "/Root 1 0 R>>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n";
    return mText;
  }

 private:
  std::string mText = "%PDF-1.4\n";
  std::vector<std::size_t> mPlaces;
};

std::string contentOf(int page) {
  std::string text = "BT /F1 14 Tf 10 40 Td (Asset " + std::to_string(page + 1) + ") Tj ET\n";
  for (int bar = 0; bar < 40; ++bar)
    text += std::to_string(10 + bar * 3) + " 8 " + std::to_string(1 + (bar * 7 + page) % 2) +
            " 24 re f\n";
  return text;
}

}  // namespace

std::string labelsPdf(int pages) {
  PdfText pdf;
  pdf.add("<</Type/Catalog/Pages 2 0 R>>");
  std::string kids;
  for (int page = 0; page < pages; ++page)
    kids += std::to_string(kFontObject + 1 + page * 2) + " 0 R ";
  pdf.add("<</Type/Pages/Kids[" + kids + "]/Count " + std::to_string(pages) + ">>");
  pdf.add("<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>");
  for (int page = 0; page < pages; ++page) {
    const std::string content = contentOf(page);
    pdf.add("<</Type/Page/Parent 2 0 R/MediaBox[0 0 141.73 68.03]/Contents " +
            std::to_string(kFontObject + 2 + page * 2) + " 0 R/Resources<</Font<</F1 3 0 R>>>>>>");
    pdf.add("<</Length " + std::to_string(content.size()) + ">>\nstream\n" + content + "endstream");
  }
  return pdf.finished();
}

}  // namespace cutline
