#include "tests/composition/DrawnPdf.h"

#include <array>
#include <cstdio>

namespace cutline::test {
namespace {

// Objects in order, numbered from 1.
std::string fileOf(const std::vector<std::string>& objects) {
  std::string file = "%PDF-1.4\n";
  std::string table;
  for (std::size_t at = 0; at < objects.size(); ++at) {
    std::array<char, 32> row{};
    std::snprintf(row.data(), row.size(), "%010zu 00000 n \n", file.size());
    table += row.data();
    file += std::to_string(at + 1) + " 0 obj\n" + objects[at] + "\nendobj\n";
  }
  const std::string size = std::to_string(objects.size() + 1);
  const std::string start = std::to_string(file.size());
  return file + "xref\n0 " + size + "\n0000000000 65535 f \n" + table + "trailer\n<</Size " + size +
         "/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
}

}  // namespace

std::string drawnPdf(const std::vector<DrawnPage>& pages) {
  std::vector<std::string> objects = {"<</Type/Catalog/Pages 2 0 R>>", ""};
  std::string kids;
  for (const DrawnPage& page : pages) {
    const std::string number = std::to_string(objects.size() + 1);
    const std::string contents = std::to_string(objects.size() + 2);
    kids += number + " 0 R ";
    objects.push_back("<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + std::to_string(page.width) + ' ' +
                      std::to_string(page.height) +
                      "]/Resources<</Font<</F<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>"
                      "/Contents " +
                      contents + " 0 R>>");
    objects.push_back("<</Length " + std::to_string(page.contents.size()) + ">>\nstream\n" +
                      page.contents + "\nendstream");
  }
  objects[1] = "<</Type/Pages/Count " + std::to_string(pages.size()) + "/Kids[" + kids + "]>>";
  return fileOf(objects);
}

}  // namespace cutline::test
