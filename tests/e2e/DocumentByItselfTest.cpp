// Documents that are printed as one job each, in one run of the program.
#include <gtest/gtest.h>

#include "host/core/CommandLine.h"
#include "tests/e2e/Program.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/FigureFiles.h"
#include "tests/support/PdfFile.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

namespace {

constexpr char kOptions[] = " -d tape24 -o 'LxHalfCut=ON label-length=content' ";

bool has(const CommandResult& result, const std::string& part) {
  return result.errors.find(part) != std::string::npos;
}

class DocumentByItself : public EndToEndTest {
 protected:
  // One of each kind, wide and tall in turn.
  std::vector<std::string> figures() {
    std::vector<std::string> paths;
    for (const FigureKind& kind : figureKinds()) {
      paths.push_back(mFolder / kind.name);
      kind.write(paths.back(), paths.size() % 2 == 0 ? kTallFigure : kWideFigure);
    }
    return paths;
  }
  std::string pdf(const std::string& name) {
    writePdf(mFolder / name, 1);
    return mFolder / name;
  }
  static std::string words(const std::vector<std::string>& paths) {
    std::string all;
    for (const std::string& path : paths) all += ' ' + quoted(path);
    return all;
  }

  const TemporaryFolder mFolder;
};

TEST_F(DocumentByItself, IsTheJobThatItIsAlone) {
  const std::vector<std::string> paths = figures();
  std::vector<PrintedJob> alone;
  for (const std::string& path : paths) {
    ASSERT_EQ(runProgram("--print" + std::string(kOptions) + quoted(path)).status, kExitDone);
    alone.push_back(newJob());
  }
  const CommandResult result = runProgram("--print --each" + std::string(kOptions) + words(paths));
  ASSERT_EQ(result.status, kExitDone) << result.errors;
  const std::vector<PrintedJob> each = newJobs();
  ASSERT_EQ(each.size(), paths.size());
  for (std::size_t at = 0; at < paths.size(); ++at) {
    EXPECT_EQ(contentsOf(each[at].picturePath()), contentsOf(alone[at].picturePath())) << paths[at];
    EXPECT_NE(contentsOf(each[at].picturePath()), "") << paths[at];
    EXPECT_EQ(each[at].options(), alone[at].options()) << paths[at];
  }
}

TEST_F(DocumentByItself, IsNamedOnTheOutputInItsOrder) {
  const CommandResult result =
      runProgram("--print --each --wait -d tape24" + words({pdf("a.pdf"), pdf("b.pdf")}));
  EXPECT_EQ(result.status, kExitDone) << result.errors;
  // The server has nothing left to do by then.
  EXPECT_EQ(outputOf("lpstat -W not-completed"), "");
  const std::string line = "request id is tape24-";
  EXPECT_TRUE(result.output.starts_with(line));
  EXPECT_NE(result.output.find("(1 file(s))\n" + line), std::string::npos) << result.output;
  EXPECT_EQ(newJobs().size(), 2U);
}

TEST_F(DocumentByItself, ThatCannotBeReadKeepsNoOtherBack) {
  const std::string damaged = mFolder.write("damaged.pdf", "%PDF-1.4\nno more");
  const CommandResult result =
      runProgram("--print --each -q -d tape24" + words({pdf("a.pdf"), damaged, pdf("b.pdf")}));
  EXPECT_EQ(result.status, kExitError);
  EXPECT_TRUE(has(result, "cutline: cannot read the document \"" + damaged + "\""))
      << result.errors;
  EXPECT_TRUE(has(result, "cutline: 1 of 3 documents was not printed\n")) << result.errors;
  EXPECT_EQ(newJobs().size(), 2U);
}

TEST_F(DocumentByItself, IsNamedInWhatThereIsToSayOfIt) {
  const std::string large = mFolder / "large.pdf";
  figureKinds().front().write(large, {400, 200});
  const CommandResult result =
      runProgram("--print --each -d tape24" + words({pdf("a.pdf"), large, pdf("b.pdf")}));
  EXPECT_EQ(result.status, kExitDone) << result.errors;
  EXPECT_TRUE(has(result, "cutline: " + large + ": a page is larger than its label"))
      << result.errors;
  EXPECT_FALSE(has(result, "a.pdf: ")) << result.errors;
  EXPECT_FALSE(has(result, "b.pdf: ")) << result.errors;
  EXPECT_EQ(newJobs().size(), 3U);
}

TEST_F(DocumentByItself, ThatIsMissingIsToldBeforeAnyIsPrinted) {
  const CommandResult result =
      runProgram("--print --each -d tape24" + words({pdf("a.pdf"), mFolder / "missing.pdf"}));
  EXPECT_EQ(result.status, kExitError);
  EXPECT_TRUE(has(result, "missing.pdf"));
  EXPECT_TRUE(nothingNew());
}

TEST_F(DocumentByItself, BehindOneThatThePrinterDoesNotTakeIsNotTried) {
  const std::vector<std::string> paths{pdf("a.pdf"), pdf("b.pdf"), pdf("c.pdf")};
  outputOf("cupsreject tape24");
  const CommandResult result = runProgram("--print --each -d tape24" + words(paths));
  outputOf("cupsaccept tape24");
  EXPECT_EQ(result.status, kExitError);
  EXPECT_TRUE(has(result, "cutline: \"tape24\" takes no job")) << result.errors;
  EXPECT_TRUE(
      has(result, "3 of 3 documents were not printed; none behind \"" + paths[0] + "\" was tried"))
      << result.errors;
  EXPECT_TRUE(nothingNew());
}

TEST_F(DocumentByItself, ThatDoesNotComeOutIsAnErrorOfTheWaiting) {
  const std::string damaged = mFolder.write("damaged.pdf", "no PDF");
  const CommandResult result =
      runProgram("--print --each --wait -o raw -d tape24" + words({damaged, damaged}));
  EXPECT_EQ(result.status, kExitError);
  EXPECT_TRUE(has(result, "2 of 2 documents were not printed\n")) << result.errors;
}

}  // namespace

}  // namespace cutline::test
