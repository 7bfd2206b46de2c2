// The lean parts of an installation: what they spare, and that nothing but time depends on them.
#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string_view>

#include "lean/LeanOrigins.h"
#include "tests/support/Command.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using testing::AnyOf;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

constexpr char kStandIn[] = "lean/libsystemd.so.0";

// As the dynamic loader tells it.
std::vector<std::string> loadedBy(const CommandResult& result) {
  static constexpr std::string_view kBegins = "calling init: ";
  std::vector<std::string> libraries;
  std::istringstream lines(result.errors);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t at = line.find(kBegins);
    if (at != std::string::npos) libraries.push_back(line.substr(at + kBegins.size()));
  }
  return libraries;
}

class LeanInstallation : public EndToEndTest {
 protected:
  void SetUp() override {
    EndToEndTest::SetUp();
    ::unsetenv("LD_LIBRARY_PATH");
    ASSERT_TRUE(mayBeLean(LeanPart::printLibrary));
    for (const char* part : {"bin", "lib", "share"})
      fs::copy(built(part), mPrefix / part, fs::copy_options::recursive);
  }

  fs::path part(const std::string& name) const { return mPrefix / ("lib/cutline/" + name); }
  CommandResult program(const std::string& words, const std::string& before = {}) const {
    return run("env " + before + " " + mPrefix / "bin/cutline" + " " + words);
  }
  void withoutLeanParts() const { fs::remove_all(part("lean")); }
  // As after an update that went wrong.
  void withDamagedLeanParts() const {
    for (const char* file : {kLeanPrintLibrary, kLeanComposer, kStandIn}) {
      fs::remove(part(file));
      mPrefix.write(std::string("lib/cutline/") + file, "neither library nor program");
      fs::permissions(part(file), fs::perms::owner_all);
    }
  }
  std::string picture() const {
    const CommandResult result = program("--snapshot " + mPrefix / "dialog.png" + " -d tape24");
    EXPECT_EQ(result.status, 0) << result.errors;
    return contentsOf(mPrefix / "dialog.png");
  }
  // What the virtual printer stores of a job.
  std::string printed() const {
    const CommandResult sent = program("--print -q -d tape24 -o LxHalfCut=ON " +
                                       quoted(built("share/cutline/samples/documents/labels.pdf")));
    EXPECT_EQ(sent.status, 0) << sent.errors;
    server().waitUntilIdle();
    return contentsOf(server().printedFile(*server().printedJobs().rbegin(), ".png"));
  }

  TemporaryFolder mPrefix;
};

TEST_F(LeanInstallation, CommandsLoadNothingForEncryptionOrTheNetwork) {
  for (const char* words : {"--options -d tape24", "--plan -q -d tape24", "--list"}) {
    const CommandResult result = program(words, "LD_DEBUG=files");
    EXPECT_EQ(result.status, 0) << words;
    const std::vector<std::string> libraries = loadedBy(result);
    EXPECT_THAT(libraries, Contains(part(kLeanPrintLibrary))) << words;
    EXPECT_THAT(
        libraries,
        Each(Not(AnyOf(HasSubstr("/libgnutls"), HasSubstr("/libkrb5"), HasSubstr("-gnu/libcups")))))
        << words;
    // For a list the print library looks around on the network.
    EXPECT_EQ(testing::Value(libraries, Contains(HasSubstr("/libavahi"))),
              words == std::string_view("--list"));
  }
}

TEST_F(LeanInstallation, SaysTheSameWithoutThem) {
  const std::string words = "--options -d tape24";
  const CommandResult lean = program(words);
  withoutLeanParts();
  const CommandResult other = program(words, "LD_DEBUG=files");
  EXPECT_THAT(loadedBy(other), Contains(HasSubstr("/libgnutls")));
  EXPECT_EQ(other.status, 0);
  EXPECT_EQ(other.output, lean.output);
}

TEST_F(LeanInstallation, StandsAsideAfterAnUpdateOfTheLibrary) {
  const fs::path file = mPrefix / "bin/cutline";
  std::string bytes = contentsOf(file);
  const std::string_view id = originsOf(LeanPart::printLibrary).front().buildId;
  const std::size_t at = bytes.find(id);
  ASSERT_NE(at, std::string::npos);
  bytes[at] ^= 1;
  mPrefix.write("bin/cutline", bytes);
  const CommandResult result = program("--options -d tape24", "LD_DEBUG=files");
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_THAT(loadedBy(result), Not(Contains(part(kLeanPrintLibrary))));
  EXPECT_THAT(result.output, HasSubstr("LxHalfCut="));
}

TEST_F(LeanInstallation, TheDialogLoadsNothingForCallsThatItDoesNotMake) {
  const CommandResult result = program("--marks -d tape24", "LD_DEBUG=files");
  EXPECT_EQ(result.status, 0);
  const std::vector<std::string> libraries = loadedBy(result);
  EXPECT_THAT(libraries, Contains(part(kStandIn)));
  EXPECT_THAT(libraries, Contains(HasSubstr("/libdbus")));
  EXPECT_THAT(libraries, Each(Not(AnyOf(HasSubstr("-gnu/libsystemd"), HasSubstr("/libgcrypt"),
                                        HasSubstr("-gnu/libb2"), HasSubstr("/libgomp"),
                                        HasSubstr("/libQt6Svg")))));
}

// The dialog as it opens, and what comes out of a printer.
TEST_F(LeanInstallation, LooksAndPrintsTheSameWithoutThem) {
  const std::string lean[] = {picture(), printed()};
  for (const std::string& each : lean) EXPECT_TRUE(each.starts_with("\x89PNG"));
  const auto isTheSame = [&] { return picture() == lean[0] && printed() == lean[1]; };
  withDamagedLeanParts();
  EXPECT_TRUE(isTheSame());
  withoutLeanParts();
  EXPECT_TRUE(isTheSame());
}

}  // namespace
}  // namespace cutline::test
