// Every program and library that is installed has the protections that SECURITY.md names.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "lean/LeanParts.h"
#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::string_view kElf =
    "\x7f"
    "ELF";

std::string readelf(const std::string& options, const std::string& file) {
  return outputOf("readelf " + options + " -W " + quoted(file));
}

// Below the build tree's folders that are installed.
std::vector<std::string> installedCode() {
  std::vector<std::string> files;
  for (const char* folder : {"bin", "lib/cutline", "libexec"})
    for (const auto& entry : std::filesystem::recursive_directory_iterator(built(folder)))
      if (entry.is_regular_file() && contentsOf(entry.path()).starts_with(kElf))
        files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::string> installedLibraries() {
  std::vector<std::string> files = installedCode();
  std::erase_if(files, [](const std::string& file) { return !file.ends_with(".so"); });
  return files;
}

// The lines of a text that have `part`.
std::vector<std::string> linesWith(const std::string& part, const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);)
    if (line.find(part) != std::string::npos) lines.push_back(line);
  return lines;
}

class Hardening : public testing::Test {
 protected:
  void SetUp() override {
    if (!CUTLINE_HARDENED) GTEST_SKIP() << "this tree is built with CUTLINE_HARDENING off";
  }
};

TEST(InstalledCode, IsFound) {
  EXPECT_GE(installedCode().size(), 9U);
  EXPECT_GE(installedLibraries().size(), 5U);
}

TEST(InstalledCode, LooksForLibrariesBesideItselfAlone) {
  for (const std::string& file : installedCode()) {
    const std::string facts = readelf("-d", file);
    EXPECT_THAT(linesWith("(RPATH)", facts), testing::IsEmpty()) << file;
    for (const std::string& line : linesWith("(RUNPATH)", facts)) {
      EXPECT_THAT(line, HasSubstr("[$ORIGIN")) << file;
      EXPECT_THAT(line, Not(HasSubstr(":/"))) << file;
      EXPECT_THAT(file, Not(HasSubstr(".plugin/"))) << line;
    }
  }
}

TEST(InstalledCode, ShowsNothingOfOtherLibraries) {
  for (const std::string& file : installedLibraries()) {
    const std::string symbols = outputOf("nm -DC --defined-only " + quoted(file));
    EXPECT_NE(symbols, "") << file;
    std::istringstream in(symbols);
    for (std::string address, kind, name; in >> address >> kind && std::getline(in, name);) {
      // Nobody else can see it; the linker lists what a library that is used has, too.
      const bool isLocal = std::string_view("bdrst").find(kind) != std::string_view::npos;
      EXPECT_TRUE(isLocal || name.find("cutline::") != std::string::npos ||
                  name.find("::") == std::string::npos)
          << file << name;
    }
  }
}

TEST_F(Hardening, LiesAnywhereInMemory) {
  for (const std::string& file : installedCode())
    EXPECT_THAT(readelf("-h", file), HasSubstr("DYN (")) << file;
}

TEST_F(Hardening, HasReadOnlyLinkerTables) {
  for (const std::string& file : installedCode()) {
    EXPECT_THAT(readelf("-l", file), HasSubstr("GNU_RELRO")) << file;
    EXPECT_THAT(readelf("-d", file), HasSubstr("NOW")) << file;
  }
}

// The linker leaves out what is not called; what begins often, calls little.
TEST_F(Hardening, NeedsFewLibrariesToBegin) {
  const auto needed = [](const std::string& file) {
    std::vector<std::string> names = linesWith("(NEEDED)", readelf("-d", built(file)));
    for (std::string& name : names) {
      name.erase(0, name.find('[') + 1);
      name.resize(name.find(']'));
    }
    // The loader itself.
    std::erase_if(names, [](const std::string& name) { return name.starts_with("ld-linux"); });
    return names;
  };
  EXPECT_THAT(needed("bin/cutline"), testing::ElementsAre("libc.so.6"));
  if (!CUTLINE_HAS_LEAN_PARTS) return;
  EXPECT_THAT(needed(std::string("lib/cutline/") + kLeanComposer),
              testing::UnorderedElementsAre("libm.so.6", "libc.so.6"));
  EXPECT_THAT(needed(std::string("lib/cutline/") + kLeanPrintLibrary),
              testing::UnorderedElementsAre("libz.so.1", "libm.so.6", "libc.so.6"));
  EXPECT_THAT(needed("lib/cutline/lean/libsystemd.so.0"), testing::ElementsAre("libc.so.6"));
}

TEST_F(Hardening, HasNoMemoryThatIsWrittenAndRun) {
  for (const std::string& file : installedCode()) {
    const std::string segments = readelf("-l", file);
    const std::vector<std::string> stack = linesWith("GNU_STACK", segments);
    ASSERT_EQ(stack.size(), 1U) << file;
    EXPECT_THAT(stack.front(), HasSubstr(" RW ")) << file;
    for (const std::string& line : linesWith("LOAD", segments))
      EXPECT_THAT(line, Not(HasSubstr(" RWE"))) << file;
  }
}

// It passes on calls, and has nothing on the stack that could be written beyond its end.
bool isStandIn(const std::string& file) {
  return file.find("/lean/") != std::string::npos && !file.ends_with(kLeanPrintLibrary) &&
         !file.ends_with(kLeanComposer);
}

TEST_F(Hardening, GuardsItsStack) {
  for (const std::string& file : installedCode()) {
    if (isStandIn(file)) continue;
    EXPECT_THAT(readelf("--dyn-syms", file), HasSubstr("__stack_chk_fail")) << file;
  }
}

// What a debugger's build does not have: it needs optimisation.
TEST_F(Hardening, ChecksLengths) {
  for (const char* file : {"lib/cutline/libcutline-host.so", "lib/cutline/cutline-compose"})
    EXPECT_THAT(readelf("--dyn-syms", built(file)), HasSubstr("_chk@GLIBC")) << file;
}

TEST_F(Hardening, ChecksIndices) {
  for (const char* file : {"lib/cutline/libcutline-host.so", "lib/cutline/cutline-compose"})
    EXPECT_THAT(readelf("--dyn-syms", built(file)), HasSubstr("glibcxx_assert_fail")) << file;
}

}  // namespace
}  // namespace cutline::test
