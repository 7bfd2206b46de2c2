#include <gtest/gtest.h>

#include <string>

#include "composition/reader/DocumentKind.h"

namespace cutline {
namespace {

using namespace std::string_literals;

TEST(DocumentKindTest, IsToldByWhatADocumentContains) {
  struct Row {
    std::string start;
    DocumentKind kind;
  };
  const Row rows[] = {
      {"%PDF-1.7\n", DocumentKind::pdf},
      {std::string(1000, ' ') + "%PDF-1.7\n", DocumentKind::pdf},
      {"%!PS-Adobe-3.0\n", DocumentKind::postScript},
      {"\x04%!PS\n", DocumentKind::postScript},
      {"\x89PNG\r\n\x1a\n\0\0"s, DocumentKind::png},
      {"\xff\xd8\xff\xe0", DocumentKind::jpeg},
      {"II*\0\x08\0\0\0"s, DocumentKind::tiff},
      {"MM\0*\0\0\0\x08"s, DocumentKind::tiff},
      {"II+\0\x08\0\0\0"s, DocumentKind::tiff},
      {"MM\0+\0\x08\0\0"s, DocumentKind::tiff},
      {"RIFF\x10\0\0\0WEBPVP8 "s, DocumentKind::webp},
      {"RIFF\x10\0\0\0WAVEfmt "s, DocumentKind::unknown},
      {"one\ntwo\tthree\r\n\f", DocumentKind::text},
      {"\xef\xbb\xbfK\xc3\xa4se", DocumentKind::text},
      {"K\xe4se", DocumentKind::unknown},
      {"\xff\xfeK\0"s, DocumentKind::unknown},
      {"a\0b"s, DocumentKind::unknown},
      {"a\x1b[1m", DocumentKind::unknown},
      {"a\x7f", DocumentKind::unknown},
      {"", DocumentKind::unknown},
      {"\xef\xbb\xbf", DocumentKind::unknown},
  };
  for (const Row& row : rows)
    EXPECT_EQ(documentKind(row.start), row.kind) << testing::PrintToString(row.start);
}

TEST(DocumentKindTest, ADrawingIsToldByItsRoot) {
  for (const char* drawing :
       {"<svg/>", "<svg xmlns=\"http://www.w3.org/2000/svg\"/>", "\xef\xbb\xbf<svg>", "\n <svg\n>",
        "<?xml version=\"1.0\"?><!-- a > b --><svg>", "<svg:svg xmlns:svg=\"\">",
        "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" \"svg11.dtd\"><svg>",
        "<!DOCTYPE svg [<!ENTITY a \"<b>\">]>\n<svg>"})
    EXPECT_EQ(documentKind(drawing), DocumentKind::svg) << drawing;
  for (const char* text : {"<svgs>", "<html><svg/></html>", "svg", "<!-- <svg>", "<svg"})
    EXPECT_EQ(documentKind(text), DocumentKind::text) << text;
}

TEST(DocumentKindTest, ACharacterMayBeCutWhereTheStartEnds) {
  const std::string start = std::string(kDocumentStart - 1, 'a') + "\xc3";
  EXPECT_EQ(documentKind(start), DocumentKind::text);
  EXPECT_EQ(documentKind(start.substr(1)), DocumentKind::unknown);
  EXPECT_EQ(documentKind(start.substr(100)), DocumentKind::unknown);
}

}  // namespace
}  // namespace cutline
