// The example bundle, built outside the tree against the installed ports, in the program.
#include <gtest/gtest.h>

#include "tests/support/Command.h"
#include "tests/support/PpdText.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

constexpr int kPatience = 300;

class ExampleBundle : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = std::make_unique<TemporaryFolder>();
    const std::string cmake = CUTLINE_CMAKE;
    installed = run(cmake + " --install " CUTLINE_BUILD_DIR " --component ports --prefix " +
                        *folder / "installed",
                    kPatience);
    // A copy, so that nothing of the tree about it is found.
    configured = run("cp -r " + source("samples/example-bundle") + ' ' + *folder / "source && " +
                         cmake + " -S " + *folder / "source" + " -B " + *folder / "built" + " -G " +
                         quoted(CUTLINE_GENERATOR) +
                         " -DCMAKE_CXX_COMPILER=" CUTLINE_COMPILER " -DCMAKE_PREFIX_PATH=" +
                         *folder / "installed",
                     kPatience);
    compiled = run(cmake + " --build " + *folder / "built", kPatience);
  }
  static void TearDownTestSuite() { folder.reset(); }

  // The program on a printer whose PPD asks for the bundle.
  static CommandResult program(const std::string& words) {
    PpdText ppd;
    ppd.attribute("APDialogExtension", "/Library/Example.plugin").pageSizes({"W24"});
    ppd.attribute("NickName", "Example printer");
    return run(quoted(built("bin/cutline")) + " --plugin-dir " + *folder / "built" + " --ppd " +
               folder->write("printer.ppd", ppd.text()) + ' ' + words);
  }

  static inline std::unique_ptr<TemporaryFolder> folder;
  static inline CommandResult installed, configured, compiled;
};

TEST_F(ExampleBundle, IsBuiltAgainstWhatIsInstalled) {
  EXPECT_EQ(installed.status, 0) << installed.errors;
  EXPECT_EQ(configured.status, 0) << configured.output << configured.errors;
  EXPECT_EQ(compiled.status, 0) << compiled.output << compiled.errors;
}

TEST_F(ExampleBundle, NeedsNothingOfTheTree) {
  const CommandResult found = run("grep -rl " + quoted(source("")) + ' ' + *folder / "installed");
  EXPECT_EQ(found.output, "");
}

TEST_F(ExampleBundle, HasItsPanelInTheProgram) {
  const CommandResult summary = program("--summary");
  EXPECT_EQ(summary.status, 0);
  EXPECT_EQ(summary.errors, "");
  EXPECT_NE(summary.output.find("Hello, printer"), std::string::npos) << summary.output;
}

}  // namespace
}  // namespace cutline::test
