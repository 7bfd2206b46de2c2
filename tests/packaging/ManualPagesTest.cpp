// The manual pages: their form, and that they know what the program's own files and documents know.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

std::string page(const std::string& name) { return contentsOf(source("packaging/man/" + name)); }

TEST(ManualPages, AreClean) {
  const CommandResult result =
      run("cd " + quoted(source("packaging/man")) + " && mandoc -T lint -W warning *.[1-9]");
  EXPECT_EQ(result.status, 0) << result.output;
  EXPECT_EQ(result.output, "");
}

// The table of docs/cut-words.md has an effect, or a value of one, in backquotes in each row.
TEST(ManualPages, KnowTheEffectsOfCutWords) {
  const std::string effects =
      outputOf("sed -n '/^| Effect /,/^$/p' " + quoted(source("docs/cut-words.md")) +
               " | cut -d'|' -f2,3 | grep -o '`[a-z-]*`' | tr -d '`' | sort -u");
  std::istringstream in(effects);
  int count = 0;
  for (std::string word; in >> word; ++count)
    EXPECT_NE(page("cut-words.5").find("Cm " + word), std::string::npos) << word;
  EXPECT_GE(count, 15);
}

TEST(ManualPages, NameTheFilesThatAreInstalled) {
  EXPECT_NE(page("cut-words.5").find("share/cutline/cut-words.txt"), std::string::npos);
  EXPECT_NE(contentsOf(built("share/cutline/cut-words.txt")), "");
}

}  // namespace
}  // namespace cutline::test
