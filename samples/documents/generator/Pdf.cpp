#include "samples/documents/generator/Pdf.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <set>

namespace cutline::documents {
namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;

// The objects that every document has, by their numbers; those of the pages follow.
enum Fixed : int { kCatalog = 1, kPages, kInfo, kRegular, kBold, kFirstFree };

std::string number(double value) {
  std::array<char, 32> text{};
  const double rounded = std::round(value * 100) / 100;
  std::snprintf(text.data(), text.size(), "%.10g", rounded == 0 ? 0 : rounded);
  return text.data();
}

std::string numbers(std::initializer_list<double> values) {
  std::string text;
  for (const double value : values) text += number(value) + ' ';
  return text;
}

std::string reference(int object) { return std::to_string(object) + " 0 R"; }

class File {
 public:
  File() { mObjects.resize(kFirstFree); }
  int add(std::string body) {
    mObjects.push_back(std::move(body));
    return static_cast<int>(mObjects.size()) - 1;
  }
  int addStream(const std::string& content) {
    return add("<</Length " + std::to_string(content.size()) + ">>\nstream\n" + content +
               "\nendstream");
  }
  void set(int object, std::string body) {
    mObjects.at(static_cast<std::size_t>(object)) = std::move(body);
  }
  std::string bytes() const;

 private:
  std::vector<std::string> mObjects;  // by number; the first is none
};

std::string File::bytes() const {
  std::string out = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
  std::string places = "0000000000 65535 f \n";
  for (std::size_t at = 1; at < mObjects.size(); ++at) {
    std::array<char, 32> place{};
    std::snprintf(place.data(), place.size(), "%010zu 00000 n \n", out.size());
    places += place.data();
    out += std::to_string(at) + " 0 obj\n" + mObjects[at] + "\nendobj\n";
  }
  const std::string size = std::to_string(mObjects.size());
  const std::size_t table = out.size();
  return out + "xref\n0 " + size + '\n' + places + "trailer\n<</Size " + size + "/Root " +
         reference(kCatalog) + "/Info " + reference(kInfo) + ">>\nstartxref\n" +
         std::to_string(table) + "\n%%EOF\n";
}

// The names by which a reader knows what a letter means.
std::string glyphName(char letter) {
  static constexpr std::array<const char*, 10> kDigits = {"zero", "one", "two",   "three", "four",
                                                          "five", "six", "seven", "eight", "nine"};
  if (letter >= '0' && letter <= '9') return kDigits.at(static_cast<std::size_t>(letter - '0'));
  if (letter == ' ') return "space";
  if (letter == ',') return "comma";
  if (letter == '.') return "period";
  return {letter};
}

std::string pathOf(const QPainterPath& outline) {
  std::string path;
  const auto point = [&](int at) {
    const auto element = outline.elementAt(at);
    path += numbers({std::round(element.x), std::round(-element.y)});
  };
  for (int at = 0; at < outline.elementCount(); ++at) {
    point(at);
    switch (outline.elementAt(at).type) {
      case QPainterPath::MoveToElement:
        path += "m ";
        break;
      case QPainterPath::LineToElement:
        path += "l ";
        break;
      default:
        point(++at);
        point(++at);
        path += "c ";
    }
  }
  return path + 'f';
}

std::string glyphOf(const Face& face, char letter) {
  const QPainterPath outline = face.outline(letter);
  const QRectF box = outline.boundingRect();
  return numbers({std::round(face.advance(letter)), 0, std::floor(box.left()),
                  std::floor(-box.bottom()), std::ceil(box.right()), std::ceil(-box.top())}) +
         "d1 " + pathOf(outline);
}

void addFont(File& file, int object, const Face& face, const std::set<char>& letters) {
  std::string names;
  std::string glyphs;
  std::string widths;
  for (const char letter : letters) {
    names += std::to_string(static_cast<int>(letter)) + '/' + glyphName(letter) + ' ';
    glyphs += '/' + glyphName(letter) + ' ' + reference(file.addStream(glyphOf(face, letter)));
  }
  const int first = letters.empty() ? 0 : *letters.begin();
  const int last = letters.empty() ? -1 : *letters.rbegin();
  for (int code = first; code <= last; ++code) {
    const auto letter = static_cast<char>(code);
    widths += number(letters.contains(letter) ? std::round(face.advance(letter)) : 0) + ' ';
  }
  file.set(object,
           "<</Type/Font/Subtype/Type3/FontBBox[0 0 0 0]/FontMatrix[.001 0 0 .001 0 0]"
           "/Resources<<>>/FirstChar " +
               std::to_string(first) + "/LastChar " + std::to_string(last) + "/Widths[" + widths +
               "]\n/Encoding<</Type/Encoding/Differences[" + names + "]>>\n/CharProcs<<" + glyphs +
               ">>>>");
}

std::string shadeOf(Shade shade) { return shade == Shade::Black ? "0 g " : "1 g "; }

std::string contentOf(const Box& box, double height) {
  const double scale = kPointsPerMillimetre;
  return shadeOf(box.shade) +
         numbers({box.x * scale, (height - box.y - box.height) * scale, box.width * scale,
                  box.height * scale}) +
         "re f\n";
}

std::string contentOf(const Text& text, double height) {
  const double scale = kPointsPerMillimetre;
  return shadeOf(text.shade) + "BT /" + (text.bold ? "B " : "R ") + number(text.size * scale) +
         " Tf " + numbers({text.x * scale, (height - text.baseline) * scale}) + "Td (" +
         text.letters + ") Tj ET\n";
}

int addPage(File& file, const Drawing& page) {
  std::string content;
  for (const auto& mark : page.marks) {
    content += std::visit([&](const auto& what) { return contentOf(what, page.height); }, mark);
  }
  const int stream = file.addStream(content);
  return file.add("<</Type/Page/Parent " + reference(kPages) + "/MediaBox[0 0 " +
                  number(page.width * kPointsPerMillimetre) + ' ' +
                  number(page.height * kPointsPerMillimetre) + "]/Contents " + reference(stream) +
                  "/Resources<</Font<</R " + reference(kRegular) + "/B " + reference(kBold) +
                  ">>>>>>");
}

std::set<char> lettersOf(const std::vector<Drawing>& pages, bool bold) {
  std::set<char> letters;
  for (const Drawing& page : pages) {
    for (const auto& mark : page.marks) {
      const auto* text = std::get_if<Text>(&mark);
      if (text != nullptr && text->bold == bold)
        letters.insert(text->letters.begin(), text->letters.end());
    }
  }
  return letters;
}

}  // namespace

std::string pdfOf(const std::vector<Drawing>& pages, const Faces& faces, const std::string& title) {
  File file;
  std::string kids;
  for (const Drawing& page : pages) kids += reference(addPage(file, page)) + ' ';
  addFont(file, kRegular, faces.regular, lettersOf(pages, false));
  addFont(file, kBold, faces.bold, lettersOf(pages, true));
  file.set(kCatalog, "<</Type/Catalog/Pages " + reference(kPages) + ">>");
  file.set(kPages, "<</Type/Pages/Count " + std::to_string(pages.size()) + "/Kids[" + kids + "]>>");
  file.set(kInfo, "<</Title(" + title + ")>>");
  return file.bytes();
}

}  // namespace cutline::documents
