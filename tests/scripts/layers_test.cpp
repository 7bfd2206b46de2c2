// Which includes the check of layers refuses, on a copy of the tree with one include more.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/scripts/TreeCopy.h"

namespace cutline::test {
namespace {

constexpr char kFolders[] =
    "base lean composition strip platform bundle plain qt cups host portal ask follow samples "
    "bench "
    "tests "
    "docs scripts";

// Made once: the check reads it and changes nothing.
const TreeCopy& tree() {
  static const TreeCopy copy(kFolders);
  return copy;
}

CommandResult check() { return tree().run("scripts/check-layers"); }

TEST(Layers, AreKeptByTheTreeAsItIs) {
  const CommandResult result = check();
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(result.errors, "");
}

struct Forbidden {
  const char* name;
  const char* file;
  const char* header;  // as it is included
  const char* complaint;

  friend std::ostream& operator<<(std::ostream& out, const Forbidden& row) {
    return out << row.header << " in " << row.file;
  }
};

// A file of the copy that goes with the test.
class ForbiddenIncludes : public testing::TestWithParam<Forbidden> {
 protected:
  void writeInclude(const std::string& file, const std::string& header) {
    mPath = tree().write(file, "// A source.\n#include " + header + "\n");
  }
  ~ForbiddenIncludes() override { std::filesystem::remove(mPath); }

 private:
  std::string mPath;
};

TEST_P(ForbiddenIncludes, AreRefused) {
  const Forbidden& row = GetParam();
  writeInclude(row.file, row.header);
  const CommandResult result = check();
  EXPECT_EQ(result.status, 1);
  const std::string header = std::string(row.header).substr(1, std::string(row.header).size() - 2);
  EXPECT_EQ(result.errors, std::string(row.file) + ":2: " + header + ": " + row.complaint + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Each, ForbiddenIncludes,
    testing::Values(
        Forbidden{"ToolkitInThePanel", "bundle/options/extra.cpp", "<QWidget>",
                  "bundle/ may not include the library Qt"},
        Forbidden{"HostInThePanel", "bundle/plugin/extra.cpp", "\"host/core/PrintModel.h\"",
                  "bundle/ may not include host/core/"},
        Forbidden{"AdapterInThePanel", "bundle/preview/extra.h", "\"plain/PlainToolkit.h\"",
                  "bundle/ may not include plain/"},
        Forbidden{"PanelInThePlatform", "platform/lib/extra.cpp",
                  "\"bundle/options/option_model.h\"", "platform/lib/ may not include bundle/"},
        Forbidden{"LibraryInThePorts", "platform/ports/extra.h", "\"platform/lib/PropertyList.h\"",
                  "platform/ports/ may not include platform/lib/"},
        Forbidden{"PlatformInTheValues", "base/extra.cpp", "\"platform/ports/Geometry.h\"",
                  "base/ may not include platform/ports/"},
        Forbidden{"PrintersInThePlainControls", "plain/extra.cpp", "\"cups/PpdFile.h\"",
                  "plain/ may not include cups/"},
        Forbidden{"PrintLibraryInThePlainControls", "plain/extra.cpp", "<cups/ppd.h>",
                  "plain/ may not include the library libcups"},
        Forbidden{"HostInThePrinters", "cups/extra.cpp", "\"host/core/PrintModel.h\"",
                  "cups/ may not include host/core/"},
        Forbidden{"ToolkitInTheModel", "host/core/extra.cpp", "<QtGui/QImage>",
                  "host/core/ may not include the library Qt"},
        Forbidden{"DialogInTheModel", "host/core/extra.cpp", "\"host/dialog/PrintDialog.h\"",
                  "host/core/ may not include host/dialog/"},
        Forbidden{"PanelInTheModel", "host/core/extra.cpp", "\"bundle/options/option_model.h\"",
                  "host/core/ may not include bundle/"},
        Forbidden{"HostInTheAdapter", "qt/extra.cpp", "\"host/core/PrintModel.h\"",
                  "qt/ may not include host/core/"},
        Forbidden{"DialogInTheComposer", "composition/extra.cpp", "\"host/dialog/PrintDialog.h\"",
                  "composition/ may not include host/dialog/"},
        Forbidden{"PrintersInTheCutPlan", "strip/extra.cpp", "\"cups/PpdFile.h\"",
                  "strip/ may not include cups/"},
        Forbidden{"HostInTheVirtualPrinter", "samples/printer/extra.cpp",
                  "\"host/core/PrintModel.h\"", "samples/printer/ may not include host/core/"},
        Forbidden{"TestsInTheProduct", "host/core/extra.cpp", "\"tests/support/Command.h\"",
                  "host/core/ may not include tests/"},
        Forbidden{"UnnamedLibrary", "host/dialog/extra.cpp", "<gtk/gtk.h>",
                  "host/dialog/ may not include the library gtk/gtk.h"},
        Forbidden{"WayAroundTheTable", "bundle/ppd/extra.cpp", "\"../../host/core/PrintModel.h\"",
                  "there is no such file from the top of the tree"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Layers, AreThoseOfThePicture) {
  const std::string document = tree() / "docs/architecture.md";
  const std::string before = contentsOf(document);
  const CommandResult changed = run("sed -i 's/controls in memory/controls somewhere/' " +
                                    quoted(tree() / "scripts/layers.txt"));
  const CommandResult different = check();
  const CommandResult drawn = tree().run("scripts/check-layers --write-picture");
  const CommandResult same = check();
  EXPECT_EQ(changed.status, 0);
  EXPECT_EQ(different.status, 1);
  EXPECT_NE(different.errors.find("--write-picture"), std::string::npos) << different.errors;
  EXPECT_EQ(drawn.status, 0) << drawn.errors;
  EXPECT_EQ(same.status, 0) << same.errors;
  EXPECT_NE(contentsOf(document), before);
}

}  // namespace
}  // namespace cutline::test
