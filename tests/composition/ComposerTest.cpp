#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "base/FileDescriptor.h"
#include "composition/Composer.h"
#include "composition/PageDrawer.h"
#include "tests/composition/Children.h"
#include "tests/composition/Composed.h"
#include "tests/composition/DrawnPdf.h"
#include "tests/composition/Pictures.h"
#include "tests/composition/RefusedCall.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using test::childrenOfThisProcess;
using test::drawnPdf;
using test::labelRequest;
using test::markedPixels;
using test::tiffOf;
using test::webpOf;

constexpr char kHelpers[] = CUTLINE_BUILD_DIR "/lib/cutline";
constexpr std::uint32_t kBlack = 0xff000000;

// A program that ends as documents may make a reader end.
std::string endingWith(const std::string& what) { return "#!/bin/sh\n" + what + "\n"; }

class Composer : public testing::Test {
 protected:
  void SetUp() override { ::setenv("TMPDIR", mTemporary.path().c_str(), 1); }
  void TearDown() override {
    ::unsetenv("TMPDIR");
    EXPECT_TRUE(childrenOfThisProcess().empty());
    EXPECT_TRUE(mTemporary.isEmpty());
  }

  std::string pdf(const std::string& name = "labels.pdf") const {
    return mFolder.write(name, drawnPdf({{80, 160, "0 0 40 80 re f"}, {80, 160, ""}}));
  }
  // A folder with a program in the composer's place.
  std::string helpersWith(const std::string& script) const {
    const std::string path = mFolder.write(std::string("helpers/") + kComposerName, script);
    ::chmod(path.c_str(), 0755);
    return mFolder / "helpers";
  }
  static std::string errorOf(const Result<ComposedDocument>& composed) {
    return composed ? "" : composed.error().message;
  }
  static std::string refusal(const std::string& path, const std::string& reason) {
    return "cannot read the document \"" + path + "\": " + reason;
  }
  std::string errorWith(const std::string& script, std::chrono::milliseconds patience = 60s) const {
    return errorOf(compose(helpersWith(script), {pdf()}, labelRequest(), {}, patience));
  }

  // A program that takes for ever, and starts another one, whose number it writes down.
  std::string endless() const {
    return endingWith("sleep 60 & echo $! >" + mFolder / "number" + "; wait");
  }
  // Whether what it started goes, too, within a second.
  bool hasEnded() const {
    const int process = std::atoi(test::contentsOf(mFolder / "number").c_str());
    for (int turn = 0; turn < 100 && process > 0; ++turn) {
      if (!test::isRunning(process)) return true;
      std::this_thread::sleep_for(10ms);
    }
    return false;
  }

  test::TemporaryFolder mFolder;
  test::TemporaryFolder mTemporary;
};

TEST_F(Composer, ComposesAPdfThatCanBeDrawn) {
  const Result<ComposedDocument> composed = compose(kHelpers, {pdf()}, labelRequest());
  ASSERT_TRUE(composed) << errorOf(composed);
  EXPECT_EQ(composed->report.documentPages, 2);
  ASSERT_EQ(composed->report.pages.size(), 2U);
  EXPECT_EQ(composed->report.pages[0].scale, 1);
  EXPECT_TRUE(test::contentsOf(composed->file->path()).starts_with("%PDF-"));
  const auto drawer = PageDrawer::open(kHelpers, composed->file);
  ASSERT_TRUE(drawer) << drawer.error().message;
  const Result<PageImage> image = (*drawer)->draw(0, 1);
  ASSERT_TRUE(image) << image.error().message;
  EXPECT_EQ(image->width, 100);
  EXPECT_EQ(image->height, 200);
  EXPECT_EQ(image->pixels[150 * 100 + 30], kBlack);
}

TEST_F(Composer, TheFileGoesWithTheLastWhoHoldsIt) {
  std::string path;
  {
    const Result<ComposedDocument> composed = compose(kHelpers, {pdf()}, labelRequest());
    ASSERT_TRUE(composed) << errorOf(composed);
    const ComposedDocument other = *composed;
    path = other.file->path();
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(Composer, ComposesEveryKind) {
  const std::string picture = CUTLINE_SOURCE_DIR "/samples/documents/label.png";
  const std::string text = mFolder.write("labels.txt", "Shelf 12\n\nShelf 13\n");
  const std::string drawing = mFolder.write(
      "drawing.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'/>");
  const std::string program = mFolder.write("page.ps",
                                            "%!PS\n<</PageSize [80 160]>> setpagedevice\n"
                                            "0 0 40 80 rectfill showpage\n");
  const std::string tiff = mFolder.write("label.tiff", tiffOf({markedPixels(40, 80)}));
  const std::string webp = mFolder.write("label.webp", webpOf(markedPixels(40, 80)));
  const Result<ComposedDocument> composed =
      compose(kHelpers, {pdf(), picture, text, drawing, program, tiff, webp}, labelRequest());
  ASSERT_TRUE(composed) << errorOf(composed);
  EXPECT_EQ(composed->report.documentPages, 2 + 1 + 2 + 1 + 1 + 1 + 1);
}

// What a reader in a module refuses is told as by the program itself.
TEST_F(Composer, TellsOfADamagedPictureOfAnyKind) {
  const std::string tiff = tiffOf({markedPixels(40, 80)});
  const std::string webp = webpOf(markedPixels(40, 80));
  for (const std::string& picture : {tiff, webp}) {
    const std::string path = mFolder.write("damaged", picture.substr(0, picture.size() / 2));
    EXPECT_EQ(errorOf(compose(kHelpers, {path}, labelRequest())),
              refusal(path, "it is damaged; open it elsewhere and save it again"));
  }
}

TEST_F(Composer, NeedsItsModulesForTheKindsThatTheyReadOnly) {
  std::filesystem::create_directory(mFolder / "alone");
  std::filesystem::copy_file(std::string(kHelpers) + "/" + kComposerName,
                             mFolder / "alone/cutline-compose");
  const std::string tiff = mFolder.write("label.tiff", tiffOf({markedPixels(40, 80)}));
  EXPECT_TRUE(compose(mFolder / "alone", {pdf()}, labelRequest()));
  EXPECT_EQ(errorOf(compose(mFolder / "alone", {tiff}, labelRequest())),
            refusal(tiff, "what reads documents of its kind is not installed"));
}

// The first label is asked for before the rest: the answer must not look like all there is.
TEST_F(Composer, SaysThatOnlyABeginningWasRead) {
  const std::string text = mFolder.write("labels.txt", "Shelf 12\n\nShelf 13\n");
  const std::string program = mFolder.write("pages.ps", "%!PS\nshowpage showpage\n");
  CompositionRequest first = labelRequest();
  first.pages.most = 1;
  for (const std::string& path : {text, program}) {
    const Result<ComposedDocument> composed = compose(kHelpers, {path}, first);
    ASSERT_TRUE(composed) << errorOf(composed);
    EXPECT_TRUE(composed->report.isPartial) << path;
    const Result<ComposedDocument> whole = compose(kHelpers, {path}, labelRequest());
    ASSERT_TRUE(whole) << errorOf(whole);
    EXPECT_FALSE(whole->report.isPartial) << path;
    EXPECT_EQ(whole->report.documentPages, 2) << path;
  }
  const Result<ComposedDocument> counted = compose(kHelpers, {pdf()}, first);
  ASSERT_TRUE(counted) << errorOf(counted);
  EXPECT_FALSE(counted->report.isPartial);
  EXPECT_EQ(counted->report.documentPages, 2);
}

TEST_F(Composer, TakesAnyName) {
  for (const char* name : {"two\nlines.pdf", "\"quoted\" 'too'.pdf", "back\\slash\\n.pdf",
                           " blank .pdf", "-o.pdf", "%1.pdf", "\xff\xfe.pdf"}) {
    const Result<ComposedDocument> composed = compose(kHelpers, {pdf(name)}, labelRequest());
    EXPECT_TRUE(composed) << name << errorOf(composed);
  }
}

TEST_F(Composer, RefusesWhatIsNoFile) {
  const auto errorAt = [](const std::string& path) {
    return errorOf(compose(kHelpers, {path}, labelRequest()));
  };
  const std::string missing = mFolder / "missing.pdf";
  EXPECT_EQ(errorAt(missing), refusal(missing, "No such file or directory"));
  EXPECT_EQ(errorAt(mFolder.path()), refusal(mFolder.path(), "it is a folder"));
  const std::string empty = mFolder.write("empty.pdf", "");
  EXPECT_EQ(errorAt(empty), refusal(empty, "it is empty"));
  const std::string pipe = mFolder / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(errorAt(pipe), refusal(pipe, "it is not a file"));
  EXPECT_EQ(errorOf(compose(kHelpers, {}, labelRequest())), "there is no document");
}

TEST_F(Composer, NamesTheDocumentThatCannotBeRead) {
  const std::string damaged = mFolder.write("damaged.pdf", "%PDF-1.7\nnothing of it\n");
  EXPECT_EQ(errorOf(compose(kHelpers, {pdf(), damaged}, labelRequest())),
            refusal(damaged, "it is damaged; open it elsewhere and save it again"));
  const std::string unknown = mFolder.write("unknown", std::string("\0\1\2", 3));
  EXPECT_EQ(errorOf(compose(kHelpers, {unknown, pdf()}, labelRequest())),
            refusal(unknown,
                    "it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, "
                    "WebP, SVG or text (UTF-8); \"-o raw\" sends it to the printer as it is"));
}

TEST_F(Composer, SaysThatItsProgramIsMissing) {
  EXPECT_EQ(errorOf(compose("/nonexistent", {pdf()}, labelRequest())),
            "cannot start the program \"/nonexistent/cutline-compose\": No such file or directory");
}

struct End {
  const char* script;
  const char* reason;
};

TEST_F(Composer, SaysWhyItsProgramEnded) {
  const std::string path = pdf();
  const std::string tooLarge =
      "it needs more memory than a document may take; save it with smaller pictures, or in parts";
  const std::string tooSlow =
      "it takes too long to read; save it as a PDF elsewhere, or print it in parts";
  EXPECT_EQ(errorWith(endingWith("kill -KILL $$")), refusal(path, tooLarge));
  EXPECT_EQ(errorWith(endingWith("kill -XFSZ $$")), refusal(path, tooLarge));
  EXPECT_EQ(errorWith(endingWith("kill -XCPU $$")), refusal(path, tooSlow));
  for (const char* end : {"kill -SEGV $$", "exit 1", "exit 0", "echo nonsense"})
    EXPECT_EQ(errorWith(endingWith(end)), refusal(path, "its reader failed")) << end;
}

TEST_F(Composer, NamesEveryDocumentWhereItIsNotKnownWhichOneItWas) {
  EXPECT_EQ(errorOf(compose(helpersWith(endingWith("exit 1")), {pdf("a.pdf"), pdf("b.pdf")},
                            labelRequest())),
            "cannot read one of the documents \"" + mFolder / "a.pdf" + "\", \"" +
                mFolder / "b.pdf" + "\": its reader failed");
}

TEST_F(Composer, GivesUpAfterAWhile) {
  const auto start = steady_clock::now();
  EXPECT_EQ(errorWith(endless(), 300ms),
            refusal(mFolder / "labels.pdf",
                    "it takes too long to read; save it as a PDF elsewhere, or print it in parts"));
  EXPECT_LT(steady_clock::now() - start, 5s);
  EXPECT_TRUE(hasEnded());
}

TEST_F(Composer, StopsWhenAsked) {
  std::stop_source source;
  const auto start = steady_clock::now();
  std::thread stopper([&] {
    std::this_thread::sleep_for(100ms);
    source.request_stop();
  });
  const Result<ComposedDocument> composed =
      compose(helpersWith(endless()), {pdf()}, labelRequest(), source.get_token());
  stopper.join();
  EXPECT_FALSE(composed);
  EXPECT_LT(steady_clock::now() - start, 5s);
  EXPECT_TRUE(hasEnded());
}

TEST_F(Composer, StopsAtOnceWhenItWasAskedBefore) {
  std::stop_source source;
  source.request_stop();
  EXPECT_FALSE(compose(helpersWith(endless()), {pdf()}, labelRequest(), source.get_token()));
}

TEST_F(Composer, IsAskedLaterThanStarted) {
  const std::string path = pdf();
  StartedComposer started(kHelpers, {path});
  EXPECT_EQ(childrenOfThisProcess().size(), 1U);
  std::filesystem::remove(path);
  const Result<ComposedDocument> composed = started.compose(labelRequest());
  ASSERT_TRUE(composed) << errorOf(composed);
  EXPECT_EQ(composed->report.pages.size(), 2U);
}

TEST_F(Composer, EndsWhenItIsNeverAsked) {
  { const StartedComposer started(kHelpers, {pdf()}); }
  { const StartedComposer started(helpersWith(endless()), {pdf()}); }
  EXPECT_TRUE(childrenOfThisProcess().empty());
}

TEST_F(Composer, SaysWhenAskedWhatWentWrongBefore) {
  StartedComposer missing(kHelpers, {mFolder / "no.pdf"});
  EXPECT_EQ(errorOf(missing.compose(labelRequest())),
            refusal(mFolder / "no.pdf", "No such file or directory"));
  StartedComposer ended(helpersWith(endingWith("kill -SEGV $$")), {pdf()});
  std::this_thread::sleep_for(200ms);
  EXPECT_EQ(errorOf(ended.compose(labelRequest())),
            refusal(mFolder / "labels.pdf", "its reader failed"));
}

// More than fits between two programs at a time.
TEST_F(Composer, GivesUpAProgramThatDoesNotReadItsRequest) {
  const auto start = steady_clock::now();
  CompositionRequest request = labelRequest();
  request.text.font = std::string(4U << 20U, 'f');
  EXPECT_NE(errorOf(compose(helpersWith(endless()), {pdf()}, request, {}, 300ms)), "");
  EXPECT_LT(steady_clock::now() - start, 5s);
}

// The documents come through standard input.
TEST_F(Composer, PassesNothingButItsStandardFiles) {
  const std::string list = mFolder / "list";
  // As a library may leave one.
  const FileDescriptor open(::open(mFolder.write("other", "").c_str(), O_RDONLY));
  EXPECT_NE(errorWith(endingWith("ls -l /proc/$$/fd >" + list)), "");
  const std::string passed = test::contentsOf(list);
  EXPECT_NE(passed.find(" 0 -> socket:"), std::string::npos) << passed;
  EXPECT_EQ(passed.find(mFolder / "labels.pdf"), std::string::npos) << passed;
  EXPECT_EQ(passed.find(mFolder / "other"), std::string::npos) << passed;
}

// More than one message takes.
TEST_F(Composer, TakesHundredsOfDocuments) {
  const std::vector<std::string> paths(600, pdf());
  const Result<ComposedDocument> composed = compose(kHelpers, paths, labelRequest());
  ASSERT_TRUE(composed) << errorOf(composed);
  EXPECT_EQ(composed->report.documentPages, 1200);
}

TEST_F(Composer, ComposesTheSameWhereItHadTimeToReadAhead) {
  const std::string path = pdf();
  StartedComposer started(kHelpers, {path});
  std::this_thread::sleep_for(200ms);
  const Result<ComposedDocument> later = started.compose(labelRequest());
  const Result<ComposedDocument> atOnce = compose(kHelpers, {path}, labelRequest());
  ASSERT_TRUE(later) << errorOf(later);
  ASSERT_TRUE(atOnce) << errorOf(atOnce);
  EXPECT_EQ(test::contentsOf(later->file->path()), test::contentsOf(atOnce->file->path()));
}

TEST_F(Composer, IsTheOneThatWasStartedEarly) {
  WaitingHelper helper;
  ASSERT_EQ(spawnWaitingHelper((std::string(kHelpers) + "/" + kComposerName).c_str(), helper), 0);
  keepEarlyComposer(helper);
  EXPECT_TRUE(compose("/nonexistent", {pdf()}, labelRequest())) << "it was not taken";
  EXPECT_FALSE(compose("/nonexistent", {pdf()}, labelRequest())) << "it was taken twice";
}

// What was said of the labels is to hold as long as they are sent.
TEST_F(Composer, ChangesNothingOnceItHasSaidAll) {
  CompositionReport report;
  report.pages = {ComposedPage{{10, 20}, 1, 0}};
  const std::string answer = mFolder.write("answer", report.asText() + kAnswerEnd);
  const std::string late = mFolder / "late";
  StartedComposer started(
      helpersWith(endingWith("cat >/dev/null; cat " + answer + "; sleep 0.2; touch " + late)),
      {pdf()});
  EXPECT_EQ(errorOf(started.compose(labelRequest())), "");
  std::this_thread::sleep_for(500ms);
  EXPECT_FALSE(std::filesystem::exists(late));
}

// What it says at last counts, not how it ends.
TEST_F(Composer, IsNotWaitedForOnceItHasSaidAll) {
  CompositionReport report;
  report.pages = {ComposedPage{{10, 20}, 1, 0}};
  const std::string answer = mFolder.write("answer", report.asText() + kAnswerEnd);
  const auto start = steady_clock::now();
  EXPECT_EQ(errorWith(endingWith("cat >/dev/null; cat " + answer + "; sleep 60")), "");
  EXPECT_EQ(errorWith(endingWith("cat >/dev/null; cat " + answer + "; exit 1")), "");
  EXPECT_LT(steady_clock::now() - start, 5s);
  const std::string cut = mFolder.write("cut", report.asText());
  EXPECT_NE(errorWith(endingWith("cat >/dev/null; cat " + cut + "; exit 1")), "");
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// A few words that take gigabytes; where a sanitizer watches, nothing limits them.
TEST_F(Composer, RefusesADocumentThatTakesAllMemory) {
  const std::string path =
      mFolder.write("bomb.svg",
                    "<svg xmlns='http://www.w3.org/2000/svg' width='9000' height='9000'><filter "
                    "id='f'><feGaussianBlur stdDeviation='9'/><feGaussianBlur stdDeviation='8'/>"
                    "</filter><rect width='9000' height='9000' filter='url(#f)'/></svg>");
  const auto start = steady_clock::now();
  const std::string error = errorOf(compose(kHelpers, {path}, labelRequest()));
  EXPECT_EQ(error, refusal(path,
                           "it needs more memory than a document may take; save it with smaller "
                           "pictures, or in parts"));
  EXPECT_LT(steady_clock::now() - start, 20s);
}
#endif

// The interpreter has the test's folder for temporary files among its variables.
TEST_F(Composer, EndsAnInterpreterWithItsProgram) {
  const auto waitUntil = [](const auto& isSo) {
    for (int turn = 0; turn < 1000 && !isSo(); ++turn) std::this_thread::sleep_for(10ms);
    return isSo();
  };
  const auto running = [this] { return test::programsWithVariable(mTemporary.path()); };
  const std::string path = mFolder.write("endless.ps", "%!PS\n{} loop\n");
  std::stop_source source;
  std::thread composer(
      [&] { EXPECT_FALSE(compose(kHelpers, {path}, labelRequest(), source.get_token())); });
  EXPECT_TRUE(waitUntil([&] { return std::ranges::count(running(), "gs") == 1; }));
  source.request_stop();
  composer.join();
  EXPECT_TRUE(waitUntil([&] { return running().empty(); }));
}

TEST_F(Composer, ReadsNothingWhereItCannotBeConfined) {
  const test::RefusedCall refused{"landlock_restrict_self"};
  const std::string program = mFolder.write("page.ps", "%!PS\nshowpage\n");
  for (const std::string& path : {pdf(), program}) {
    EXPECT_EQ(test::saidWithout(refused,
                                [&] { return errorOf(compose(kHelpers, {path}, labelRequest())); }),
              refusal(path, "its reader failed: it cannot be confined"));
  }
}

TEST_F(Composer, NamesTheSystemsReasonWhereItCannotBeAsked) {
  const std::string program = std::string(kHelpers) + "/cutline-compose";
  for (const char* call : {"socketpair", "pipe2", "fcntl"}) {
    EXPECT_EQ(
        test::saidWithout({call, {}, EMFILE},
                          [&] { return errorOf(compose(kHelpers, {pdf()}, labelRequest())); }),
        "cannot start the program \"" + program + "\": Too many open files")
        << call;
  }
}

// Which of them are the last is known only when all of them are there.
TEST_F(Composer, CountsAllPagesWhereNotTheFirstAreWanted) {
  const std::string program = mFolder.write("pages.ps", "%!PS\nshowpage showpage showpage\n");
  std::vector<CompositionRequest> requests(3, labelRequest());
  requests[0].pages.isReversed = true;
  requests[1].pages.set = PageSet::even;
  requests[2].pages.ranges = *PageRanges::parse("2-3");
  for (CompositionRequest& request : requests) {
    request.pages.most = 1;
    const Result<ComposedDocument> composed = compose(kHelpers, {program}, request);
    ASSERT_TRUE(composed) << errorOf(composed);
    EXPECT_EQ(composed->report.documentPages, 3);
    EXPECT_EQ(composed->report.pages.size(), 1U);
  }
}

TEST_F(Composer, NamesWhatThePagesAreThatNoDocumentHas) {
  CompositionRequest request = labelRequest();
  request.pages.ranges = *PageRanges::parse("2-5");
  EXPECT_EQ(errorOf(compose(kHelpers, {pdf()}, request)),
            "page range \"2-5\": the document has 2 pages, and no page 3");
}

TEST_F(Composer, SaysThatThereIsNoDocument) {
  EXPECT_EQ(errorOf(compose(kHelpers, {}, labelRequest())), "there is no document");
}

// As on file systems that have none; nothing is left behind all the same.
TEST_F(Composer, NeedsNoFilesWithoutNames) {
  const test::RefusedCall nameless{"openat", test::Argument{2, O_TMPFILE | O_RDWR | O_CLOEXEC},
                                   EOPNOTSUPP};
  EXPECT_EQ(test::saidWithout(nameless,
                              [&] {
                                const auto composed = compose(kHelpers, {pdf()}, labelRequest());
                                return composed ? std::to_string(composed->report.pages.size())
                                                : errorOf(composed);
                              }),
            "2");
}

}  // namespace
}  // namespace cutline
