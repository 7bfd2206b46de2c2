// Which changes of the headers that bundles are compiled against are noticed.
#include <gtest/gtest.h>

#include "tests/scripts/TreeCopy.h"

namespace cutline::test {
namespace {

class PortHash : public testing::Test {
 protected:
  bool isNoted() const { return tree.run("scripts/port-hash").status == 0; }
  // Changes a port's header with a command of sed.
  void change(const std::string& command, const std::string& header = "Geometry.h") const {
    const std::string path = "platform/ports/" + header;
    const std::string before = contentsOf(tree / path);
    ASSERT_EQ(tree.run("sed -i " + quoted(command) + ' ' + path).status, 0);
    ASSERT_NE(contentsOf(tree / path), before);
  }

  TreeCopy tree{"base platform scripts"};
};

TEST_F(PortHash, IsThatOfTheHeaders) {
  const CommandResult result = run(source("scripts/port-hash"));
  EXPECT_EQ(result.status, 0) << result.errors;
}

TEST_F(PortHash, SaysWhatToDoAboutAChange) {
  change("s/double width/float width/");
  const CommandResult result = tree.run("scripts/port-hash");
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.errors.find("kPlugInAbiVersion"), std::string::npos) << result.errors;
  EXPECT_NE(result.errors.find("scripts/port-hash --update"), std::string::npos) << result.errors;
  EXPECT_EQ(tree.run("scripts/port-hash --update").status, 0);
  EXPECT_TRUE(isNoted());
}

TEST_F(PortHash, NoticesANewHeader) {
  tree.write("platform/ports/More.h", "#pragma once\n");
  EXPECT_FALSE(isNoted());
}

TEST_F(PortHash, NoticesWhatAPortIncludes) {
  change("s|^#pragma once|&\\n#include \"base/Utf8.h\"|");
  ASSERT_EQ(tree.run("scripts/port-hash --update").status, 0);
  ASSERT_TRUE(isNoted());
  writeFile(tree / "base/Utf8.h", contentsOf(tree / "base/Utf8.h") + "struct More {};\n");
  EXPECT_FALSE(isNoted());
}

TEST_F(PortHash, NoticesAnotherVersion) {
  change("s/kPlugInAbiVersion = /&1/", "PrintDialogPlugIn.h");
  EXPECT_FALSE(isNoted());
}

TEST_F(PortHash, IsNotOfCommentsAndBlanks) {
  change("s|^struct .*|\\n// More words.\\n&  // And more.|");
  EXPECT_TRUE(isNoted());
}

}  // namespace
}  // namespace cutline::test
