#include <gtest/gtest.h>
#include <poppler-document.h>
#include <poppler-page.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <thread>

#include "composition/helper/PostScript.h"
#include "tests/composition/Children.h"
#include "tests/composition/MemoryFile.h"
#include "tests/composition/RefusedCall.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

std::string bytesOf(int file) {
  std::string bytes(static_cast<std::size_t>(::lseek(file, 0, SEEK_END)), '\0');
  EXPECT_EQ(::pread(file, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
  return bytes;
}

// Asks again and again, for a minute at most.
bool comesTrue(const std::function<bool()>& condition) {
  using namespace std::chrono_literals;
  for (int i = 0; i < 6000 && !condition(); ++i) std::this_thread::sleep_for(10ms);
  return condition();
}

class PostScript : public testing::Test {
 protected:
  void SetUp() override { ::setenv("TMPDIR", mOwn.path().c_str(), 1); }
  void TearDown() override {
    ::unsetenv("TMPDIR");
    EXPECT_TRUE(test::childrenOfThisProcess().empty());
  }
  static PostScriptResult interpret(const std::string& program, int most = 0,
                                    const ProcessLimits& limits = kInterpreterLimits) {
    const test::MemoryFile document("%!PS\n" + program);
    ::lseek(document.descriptor(), 0, SEEK_SET);
    return pdfOfPostScript(document.descriptor(), most, limits);
  }
  static std::optional<DocumentProblem> problemOf(const PostScriptResult& result) {
    return result.problem ? std::optional(result.problem->problem) : std::nullopt;
  }
  static std::unique_ptr<poppler::document> opened(const PostScriptResult& result) {
    EXPECT_FALSE(result.problem);
    if (result.problem) return nullptr;
    std::string bytes = bytesOf(result.pdf.get());
    poppler::byte_array copy(bytes.begin(), bytes.end());
    return std::unique_ptr<poppler::document>(poppler::document::load_from_data(&copy));
  }
  static std::string textOf(const PostScriptResult& result) {
    const auto document = opened(result);
    if (!document || document->pages() < 1) return "";
    const std::unique_ptr<poppler::page> page(document->create_page(0));
    const poppler::byte_array bytes = page->text().to_utf8();
    return {bytes.begin(), bytes.end()};
  }
  // A page that shows what the program leaves on the stack.
  static std::string shown(const std::string& program) {
    return "/Helvetica findfont 20 scalefont setfont 5 72 moveto " + program + " show showpage\n";
  }

  test::TemporaryFolder mOwn;
  test::TemporaryFolder mFolder;
};

TEST_F(PostScript, BecomesAPdf) {
  const PostScriptResult result =
      interpret("<</PageSize [80 160]>> setpagedevice " + shown("(Shelf 12)") + shown("(two)"));
  const auto document = opened(result);
  ASSERT_TRUE(document);
  EXPECT_EQ(document->pages(), 2);
  const std::unique_ptr<poppler::page> page(document->create_page(0));
  EXPECT_NEAR(page->page_rect().width(), 80, 0.5);
  EXPECT_NEAR(page->page_rect().height(), 160, 0.5);
  EXPECT_NE(textOf(result).find("Shelf 12"), std::string::npos);
}

TEST_F(PostScript, MakesNoMorePagesThanNeeded) {
  const auto document = opened(interpret("1 1 50 { pop showpage } for", 3));
  ASSERT_TRUE(document);
  EXPECT_EQ(document->pages(), 3);
}

TEST_F(PostScript, IsDamagedWhereTheInterpreterSaysSo) {
  EXPECT_EQ(problemOf(interpret("no such operator")), DocumentProblem::damaged);
  EXPECT_EQ(problemOf(interpret("(not ended")), DocumentProblem::damaged);
}

TEST_F(PostScript, AnEndlessLoopIsTooSlow) {
  ProcessLimits limits = kInterpreterLimits;
  limits.cpuSeconds = 1;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(problemOf(interpret("{} loop", 0, limits)), DocumentProblem::tooSlow);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(PostScript, WhatEatsMemoryIsTooLarge) {
  ProcessLimits limits = kInterpreterLimits;
  limits.memory = 128U << 20U;
  EXPECT_EQ(problemOf(interpret("[ { 60000 string } loop", 0, limits)), DocumentProblem::tooLarge);
}

TEST_F(PostScript, WhatWritesForEverIsTooLarge) {
  ProcessLimits limits = kInterpreterLimits;
  limits.fileSize = 1U << 20U;
  EXPECT_EQ(problemOf(interpret("{ (words and words and words) print } loop", 0, limits)),
            DocumentProblem::tooLarge);
}

TEST_F(PostScript, ReadsNoFile) {
  const std::string secret = mFolder.write("secret", "SECRET");
  EXPECT_EQ(problemOf(interpret("(/etc/passwd) (r) file closefile showpage")),
            DocumentProblem::damaged);
  const PostScriptResult result = interpret(
      shown("{ (" + secret + ") (r) file 20 string readstring pop } stopped { (no) } if"));
  EXPECT_EQ(textOf(result).find("SECRET"), std::string::npos);
}

TEST_F(PostScript, ChangesNoFile) {
  const std::string file = mFolder.write("file", "whole");
  const std::string other = mFolder / "other";
  for (const std::string& program :
       {"(" + file + ") deletefile", "(" + file + ") (w) file closefile",
        "(" + other + ") (w) file closefile", "(" + file + ") (" + other + ") renamefile"})
    EXPECT_EQ(problemOf(interpret(program + " showpage")), DocumentProblem::damaged) << program;
  EXPECT_EQ(mFolder.names(), std::vector<std::string>{"file"});
  EXPECT_EQ(test::contentsOf(file), "whole");
}

TEST_F(PostScript, StartsNoProgram) {
  const std::string made = mFolder / "made";
  EXPECT_EQ(problemOf(interpret("(%pipe%touch " + made + ") (w) file closefile showpage")),
            DocumentProblem::damaged);
  EXPECT_TRUE(mFolder.isEmpty());
}

TEST_F(PostScript, LeavesNothingWhoeverIsKilled) {
  for (const bool isWhole : {false, true}) {
    const pid_t reader = ::fork();
    if (reader == 0) {
      if (isWhole) ::setpgid(0, 0);
      interpret("{} loop");
      ::_exit(0);
    }
    const auto hasFolder = [&] { return !mOwn.isEmpty(); };
    ASSERT_TRUE(comesTrue(hasFolder));
    ::kill(isWhole ? -reader : reader, SIGKILL);
    ::waitpid(reader, nullptr, 0);
    EXPECT_TRUE(comesTrue([&] { return !hasFolder(); })) << isWhole;
  }
}

TEST_F(PostScript, AnInterpreterThatIsMissingIsNamed) {
  const std::string path = std::getenv("PATH");
  ::setenv("PATH", mFolder.path().c_str(), 1);
  const PostScriptResult result = interpret("showpage");
  ::setenv("PATH", path.c_str(), 1);
  ASSERT_EQ(problemOf(result), DocumentProblem::missingModule);
  EXPECT_EQ(result.problem->detail, "gs");
}

TEST_F(PostScript, SaysWhyItsFilesCannotBeKept) {
  const auto detailWithout = [](const test::RefusedCall& call) {
    return test::saidWithout(call, [] {
      const PostScriptResult result = interpret("showpage");
      return result.problem ? result.problem->detail : "no problem";
    });
  };
  EXPECT_EQ(detailWithout({"socketpair", {}, EMFILE}),
            "cannot keep temporary files: Too many open files");
  EXPECT_EQ(detailWithout({"clone", {}, EAGAIN}),
            "cannot keep temporary files: Resource temporarily unavailable");
  const std::string unmade = detailWithout({"mkdir", {}, ENOSPC});
  EXPECT_TRUE(unmade.starts_with("cannot keep temporary files: " + mOwn.path())) << unmade;
  EXPECT_TRUE(unmade.ends_with(": No space left on device")) << unmade;
}

TEST_F(PostScript, IsNotInterpretedWhereItCannotBeConfined) {
  EXPECT_EQ(test::saidWithout({"landlock_add_rule"},
                              [] {
                                const PostScriptResult result = interpret("showpage");
                                return result.problem ? result.problem->detail : "no problem";
                              }),
            "it cannot be confined");
}

}  // namespace
}  // namespace cutline
