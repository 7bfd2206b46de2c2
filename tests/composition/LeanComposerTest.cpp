// The lean composer answers with the very bytes of the other.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "composition/Composer.h"
#include "lean/LeanParts.h"
#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"
#include "tests/composition/Pictures.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

namespace fs = std::filesystem;

const fs::path kHelpers = CUTLINE_BUILD_DIR "/lib/cutline";

constexpr std::size_t kShort = 200;  // no document, but what is said

class LeanComposer : public testing::Test {
 protected:
  void SetUp() override {
    ::unsetenv("LD_LIBRARY_PATH");
    ASSERT_TRUE(mayBeLean(LeanPart::composer));
    for (const char* folder : {"full", "lean/lean", "both/lean"})
      fs::create_directories(mFolder / folder);
    for (const char* file : {"cutline-compose", "cutline-typeset.so", "cutline-picture-reader.so"})
      for (const char* folder : {"full", "both"}) install(file, folder);
    // The one without the other, so nothing but itself answers.
    for (const char* folder : {"lean", "both"}) install(kLeanComposer, folder);
  }

  void install(const char* file, const char* folder) const {
    fs::copy_file(kHelpers / file, mFolder / folder + '/' + file);
  }
  std::string composedBy(const fs::path& helpers, const std::string& document,
                         const CompositionRequest& request) const {
    const auto composed = compose(helpers, {document}, request);
    if (!composed) return composed.error().message;
    return composed->report.asText() + test::contentsOf(composed->file->path());
  }
  void expectTheSame(const std::string& bytes, const fs::path& lean) const {
    const std::string document = mFolder.write("document", bytes);
    for (const int most : {0, 1}) {
      CompositionRequest request = labelRequest();
      request.pages.most = most;
      const std::string full = composedBy(mFolder / "full", document, request);
      EXPECT_NE(full.find("%PDF-"), std::string::npos) << full;
      const std::string other = composedBy(lean, document, request);
      EXPECT_TRUE(other == full) << (other.size() < kShort ? other : "other bytes");
    }
  }
  void expectTheSameAlone(const std::string& bytes) const {
    expectTheSame(bytes, mFolder / "lean");
  }
  std::string refusalOf(const std::string& bytes, const fs::path& helpers) const {
    return composedBy(helpers, mFolder.write("document", bytes), labelRequest());
  }

  TemporaryFolder mFolder;
};

using Encrypt = void (*)(QPDFWriter&);
constexpr Encrypt kEncryptions[] = {
    [](QPDFWriter& writer) {
      writer.setR2EncryptionParametersInsecure("", "owner", true, true, true, true);
    },
    [](QPDFWriter& writer) {
      writer.setR3EncryptionParametersInsecure("", "owner", true, true, true, true, true, true,
                                               qpdf_r3p_full);
    },
    [](QPDFWriter& writer) {
      writer.setR4EncryptionParametersInsecure("", "owner", true, true, true, true, true, true,
                                               qpdf_r3p_full, true, /*use_aes=*/true);
    },
    [](QPDFWriter& writer) {
      writer.setR5EncryptionParameters("", "owner", true, true, true, true, true, true,
                                       qpdf_r3p_full, true);
    },
    [](QPDFWriter& writer) {
      writer.setR6EncryptionParameters("", "owner", true, true, true, true, true, true,
                                       qpdf_r3p_full, true);
    },
};

std::string twoPages(const std::function<void(QPDFWriter&)>& prepare = {}) {
  PdfDocument document;
  for (const char* content : {kCornerMark, "5 5 20 20 re f"})
    document.addPage("/MediaBox[0 0 100 200]", content);
  return document.bytes(prepare);
}

TEST_F(LeanComposer, MakesTheSameOfWhatLabelsMostlyAre) {
  expectTheSameAlone(twoPages());
  const Pixels picture = markedPixels(40, 80);
  expectTheSameAlone(pngOf(picture));
  expectTheSameAlone(jpegOf(picture));
}

// Every way by which a PDF says that it is encrypted: RC4 of two lengths, AES of two lengths, and
// the hashes that make the keys.
TEST_F(LeanComposer, ReadsEachEncryption) {
  for (const Encrypt encrypt : kEncryptions) expectTheSameAlone(twoPages(encrypt));
}

TEST_F(LeanComposer, KnowsAWrongPassword) {
  const std::string locked = twoPages([](QPDFWriter& writer) {
    writer.setR6EncryptionParameters("secret", "owner", true, true, true, true, true, true,
                                     qpdf_r3p_full, true);
  });
  const std::string refused = refusalOf(locked, mFolder / "lean");
  EXPECT_NE(refused.find("password"), std::string::npos) << refused;
  EXPECT_EQ(refused, refusalOf(locked, mFolder / "full"));
}

TEST_F(LeanComposer, BecomesTheOtherForAnyOtherDocument) {
  const Pixels picture = markedPixels(40, 80);
  const std::string svg =
      R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="20"><path d="M0 0h5v5z"/></svg>)";
  for (const std::string& bytes : {tiffOf({picture}), webpOf(picture), svg}) {
    EXPECT_NE(refusalOf(bytes, mFolder / "lean").find("is not installed"), std::string::npos);
    expectTheSame(bytes, mFolder / "both");
  }
}

TEST_F(LeanComposer, IsNotMissedWhereItCannotBeStarted) {
  const std::string document = twoPages();
  fs::copy(mFolder / "full", mFolder / "damaged", fs::copy_options::recursive);
  mFolder.write(std::string("damaged/") + kLeanComposer, "no program");
  expectTheSame(document, mFolder / "damaged");
  expectTheSame(document, mFolder / "full");
}

}  // namespace
}  // namespace cutline::test
