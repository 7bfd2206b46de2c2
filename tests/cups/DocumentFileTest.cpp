#include <gtest/gtest.h>

#include "cups/DocumentFile.h"

namespace cutline {
namespace {

using namespace std::string_view_literals;

TEST(DocumentFormat, KnowsWhatLabelsComeAs) {
  struct Row {
    std::string_view start;
    const char* format;
  };
  for (const Row& row :
       {Row{"%PDF-1.7\n", "application/pdf"}, Row{"\x89PNG\r\n\x1a\n\0\0"sv, "image/png"},
        Row{"\xff\xd8\xff\xe0", "image/jpeg"}, Row{"%!PS-Adobe-3.0\n", "application/postscript"},
        Row{"\x04%!PS-Adobe", "application/postscript"}, Row{"Shelf 12\nShelf 13\n", "text/plain"},
        Row{"Gr\xc3\xbc\xc3\x9f dich\n", "text/plain"}}) {
    EXPECT_EQ(documentFormat(row.start), row.format) << row.start;
  }
}

TEST(DocumentFormat, APdfHeaderMayStandBehindOtherBytes) {
  EXPECT_EQ(documentFormat(std::string(1000, '\n') + "%PDF-1.4"), "application/pdf");
  EXPECT_NE(documentFormat(std::string(2000, '\n') + "%PDF-1.4"), "application/pdf");
}

TEST(DocumentFormat, LeavesTheRestToTheServer) {
  EXPECT_EQ(documentFormat(""), "application/octet-stream");
  EXPECT_EQ(documentFormat("GIF89a\0\1"sv), "application/octet-stream");
}

}  // namespace
}  // namespace cutline
