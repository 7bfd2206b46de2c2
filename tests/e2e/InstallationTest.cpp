// An installation works wherever it is moved to, and of the build nothing is left in it.
#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <memory>

#include "tests/support/Command.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

namespace {

// A machine's library path must not help.
constexpr char kClean[] = "env -u LD_LIBRARY_PATH QT_QPA_PLATFORM=offscreen ";

class Installation : public EndToEndTest {
 protected:
  // Symbols for debugging name the build, so they are left out.
  static void SetUpTestSuite() {
    folder = std::make_unique<TemporaryFolder>();
    const CommandResult installed =
        run(std::string(CUTLINE_CMAKE " --install " CUTLINE_BUILD_DIR " --strip --prefix ") +
            *folder / "first");
    ASSERT_EQ(installed.status, 0) << installed.errors;
    std::filesystem::rename(*folder / "first", prefix());
  }
  static void TearDownTestSuite() { folder.reset(); }

  static std::string prefix() { return *folder / "moved"; }
  static std::string place(const std::string& path) { return prefix() + "/" + path; }
  static CommandResult program(const std::string& words, const std::string& before = {}) {
    return run(kClean + before + " " + place("bin/cutline") + " " + words);
  }
  // The folders that a file looks for libraries in; empty when it names none.
  static std::string runPath(const std::string& path) {
    return run("readelf -d " + place(path) +
               " | sed -nE 's/.*\\((RUNPATH|RPATH)\\).*\\[(.*)\\]/\\2/p' | tr -d '\\n'")
        .output;
  }
  static std::string cutOptions() {
    const std::string found = run("find " + prefix() + " -name CutOptions.so -printf %P").output;
    EXPECT_NE(found, "");
    return found;
  }

 private:
  static inline std::unique_ptr<TemporaryFolder> folder;
};

TEST_F(Installation, SaysItsVersion) {
  const CommandResult result = program("--version");
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_TRUE(result.output.starts_with("cutline ")) << result.output;
}

TEST_F(Installation, FindsItsOwnLibrariesPanelsAndSamples) {
  const CommandResult result =
      program("--options -o LxHalfCut=ON --ppd " + place("share/cutline/samples/ppd/tape-a.ppd"),
              "LD_DEBUG=files");
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(result.output.find("LxHalfCut=ON\n"), std::string::npos) << result.output;
  EXPECT_NE(result.errors.find(place("lib/cutline/libcutline-host.so")), std::string::npos);
  EXPECT_EQ(result.errors.find(CUTLINE_BUILD_DIR), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(place("share/cutline/cut-words.txt")));
  const CommandResult summary =
      program("--summary --ppd " + place("share/cutline/samples/ppd/tape-a.ppd"));
  EXPECT_NE(summary.output.find("Half cut between labels: No"), std::string::npos)
      << summary.output << summary.errors;
}

TEST_F(Installation, DrawsItsDialog) {
  const std::string picture = place("picture.png");
  const CommandResult result =
      program("--snapshot " + picture + " --ppd " + place("share/cutline/samples/ppd/tape-a.ppd") +
                  " " + place("share/cutline/samples/documents/labels.pdf"),
              "LD_DEBUG=files");
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(result.errors.find(CUTLINE_BUILD_DIR), std::string::npos);
  const QImage shown(QString::fromStdString(picture));
  EXPECT_GE(shown.width(), 1000);
  EXPECT_GE(shown.height(), 600);
  std::filesystem::remove(picture);
}

// Loaded by its descriptor, it has no name that the dynamic loader would tell.
TEST_F(Installation, TakesTheDialogFromItsOwnPlace) {
  const std::string module = place("lib/cutline/cutline-dialog.so");
  std::filesystem::rename(module, place("away"));
  const CommandResult result = program("--snapshot " + place("none.png"));
  std::filesystem::rename(place("away"), module);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "cutline: " + module + ": No such file or directory\n");
}

TEST_F(Installation, ListsThePrintersWithTheirPanels) {
  const CommandResult result = program("--list");
  EXPECT_EQ(result.status, 0) << result.errors;
  for (const char* line :
       {"tape24 (default): tape; panels: Cut Options\n", "tapeb: tape; panels: Cut Options\n",
        "roll62: label roll; panels: Cut Options\n"})
    EXPECT_NE(result.output.find(line), std::string::npos) << result.output;
}

TEST_F(Installation, PrintsOnItsOwnSampleServer) {
  const TemporaryFolder folder;
  const std::string script = place("share/cutline/samples/server/private-server.sh");
  const std::string server = folder / "s";
  const std::string unset = "env -u CUTLINE_PREFIX -u CUPS_SERVER ";
  const CommandResult started = run(unset + script + " start " + server);
  ASSERT_EQ(started.status, 0) << started.errors;
  const CommandResult printed =
      run("eval \"$(" + script + " env " + server + ")\"; " + place("bin/cutline") +
          " --print -d tapeb -o LxHalfCut=ON -P 1-2 " +
          place("share/cutline/samples/documents/labels.pdf") + " && " + script + " wait-idle " +
          server);
  EXPECT_EQ(run(script + " stop " + server).status, 0);
  EXPECT_EQ(printed.status, 0) << printed.errors;
  Facts facts = factsOf(server + "/printed/job-1.txt");
  EXPECT_EQ(facts["LxHalfCut"], "ON");
  EXPECT_EQ(facts["labels"], "2");
}

TEST_F(Installation, SaysWhichPartIsMissing) {
  const TemporaryFolder alone;
  const std::string program = alone / "bin/cutline";
  std::filesystem::create_directory(alone / "bin");
  std::filesystem::copy_file(place("bin/cutline"), program);
  for (const char* words : {" --version", " --print labels.pdf"}) {
    const CommandResult result = run(kClean + program + words);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.starts_with("cutline: a part of the program cannot be loaded: " +
                                          alone / "lib/cutline/libcutline-host.so"))
        << result.errors;
  }
}

TEST_F(Installation, TakesItsOwnLibraryWhateverTheEnvironmentNames) {
  const TemporaryFolder other;
  other.write("libcutline-host.so", "no library");
  const CommandResult result = program("--version", "LD_LIBRARY_PATH=" + other.path());
  EXPECT_EQ(result.status, 0) << result.errors;
}

TEST_F(Installation, LooksForLibrariesBesideItself) {
  EXPECT_EQ(runPath("lib/cutline/libcutline-host.so"), "$ORIGIN");
}

// The program loads its library by the path. Modules use what it has loaded, and must not bring
// another; the helpers have none of ours.
TEST_F(Installation, WhatNeedsNoneOfItsLibrariesLooksForNone) {
  EXPECT_EQ(runPath("bin/cutline"), "");
  EXPECT_EQ(runPath(cutOptions()), "");
  for (const char* file : {"cutline-dialog.so", "cutline-typeset.so", "cutline-picture-reader.so",
                           "cutline-compose", "cutline-draw"})
    EXPECT_EQ(runPath(std::string("lib/cutline/") + file), "") << file;
}

TEST_F(Installation, NothingNamesTheBuild) {
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(prefix())) {
    if (!entry.is_regular_file()) continue;
    ++files;
    EXPECT_EQ(contentsOf(entry.path()).find(CUTLINE_BUILD_DIR), std::string::npos) << entry.path();
  }
  EXPECT_GT(files, 40);
}

}  // namespace

}  // namespace cutline::test
