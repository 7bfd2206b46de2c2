#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>

#include "host/core/DocumentCheck.h"
#include "tests/support/PdfFile.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

using test::PdfLock;
using test::writePdf;

class DocumentCheck : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return mFolder.path() + "/" + name; }
  std::string write(const std::string& name, const std::string& bytes) const {
    return mFolder.write(name, bytes);
  }
  std::string pdf(int pages, const PdfLock& lock = {}) const {
    writePdf(path("labels.pdf"), pages, lock);
    return path("labels.pdf");
  }
  static std::string bytesOf(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::string samplePicture() {
    return bytesOf(CUTLINE_SOURCE_DIR "/samples/documents/label.png");
  }
  static std::string errorOf(const std::string& path) {
    const Result<DocumentFacts> facts = checkDocument(path);
    return facts ? "" : facts.error().message;
  }
  static void expectError(const std::string& path, const std::string& reason) {
    EXPECT_EQ(errorOf(path), "cannot read the document \"" + path + "\": " + reason);
  }

  test::TemporaryFolder mFolder;
};

TEST_F(DocumentCheck, CountsThePagesOfAPdf) {
  for (const int pages : {1, 12}) {
    const Result<DocumentFacts> facts = checkDocument(pdf(pages));
    ASSERT_TRUE(facts) << facts.error().message;
    EXPECT_EQ(facts->pages, pages);
    EXPECT_EQ(facts->format, "application/pdf");
  }
}

TEST_F(DocumentCheck, RefusesAPdfWithoutPages) { expectError(pdf(0), "the PDF has no pages"); }

TEST_F(DocumentCheck, RefusesADamagedPdf) {
  const std::string whole = bytesOf(pdf(3));
  const std::string reason = "the PDF is damaged; open it elsewhere and save it again";
  expectError(write("half.pdf", whole.substr(0, whole.size() / 2)), reason);
  expectError(write("head.pdf", "%PDF-1.7\nnothing of it\n"), reason);
}

TEST_F(DocumentCheck, RefusesAPdfThatNeedsAPassword) {
  expectError(pdf(2, {"secret", true, true}),
              "the PDF is locked with a password; save it without one");
}

TEST_F(DocumentCheck, RefusesAPdfWhoseOwnerDoesNotAllowPrinting) {
  expectError(pdf(2, {"", false, true}),
              "the PDF is locked against printing; ask its owner for another one");
  EXPECT_EQ(checkDocument(pdf(2, {"", true, true}))->pages, 2);
}

TEST_F(DocumentCheck, APictureIsOnePage) {
  EXPECT_EQ(checkDocument(write("label.png", samplePicture()))->pages, 1);
  EXPECT_EQ(checkDocument(write("label.jpg", "\xff\xd8\xff\xe0"))->pages, 1);
}

TEST_F(DocumentCheck, RefusesAPictureThatBreaksOff) {
  const std::string whole = samplePicture();
  for (const std::size_t length : {std::size_t{20}, whole.size() / 2, whole.size() - 1})
    expectError(write("label.png", whole.substr(0, length)),
                "the picture is damaged; open it elsewhere and save it again");
}

TEST_F(DocumentCheck, TheLengthOfATextIsNotKnown) {
  for (const char* bytes : {"Shelf 12\n", "%!PS-Adobe-3.0\nshowpage\n", "GIF89a\1\2\3"}) {
    const Result<DocumentFacts> facts = checkDocument(write("label", bytes));
    ASSERT_TRUE(facts) << bytes;
    EXPECT_FALSE(facts->pages) << bytes;
  }
}

TEST_F(DocumentCheck, RefusesWhatIsNoFile) {
  expectError(path("missing.pdf"), "No such file or directory");
  expectError(mFolder.path(), "it is a folder");
  expectError(write("empty.pdf", ""), "it is empty");
  ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
  expectError(path("pipe"), "it is not a file");
}

TEST_F(DocumentCheck, PagesThatTheDocumentLacksAreAnError) {
  const DocumentFacts twelve{"application/pdf", 12};
  EXPECT_TRUE(checkPages(twelve, {{"copies", "99"}}));
  EXPECT_TRUE(checkPages(twelve, {{"page-ranges", "2-12"}}));
  EXPECT_FALSE(checkPages(twelve, {{"page-ranges", "2-13"}}));
  EXPECT_FALSE(checkPages(twelve, {{"page-ranges", "4-2"}}));
  EXPECT_TRUE(checkPages({"text/plain", std::nullopt}, {{"page-ranges", "99"}}));
}

}  // namespace
}  // namespace cutline
