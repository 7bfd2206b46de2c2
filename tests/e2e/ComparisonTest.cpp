// What is shown is what comes out: each kind of document, lying both ways, on each sample printer,
// through the real filters; the printer's stored picture against the preview's of the same label.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "composition/Composer.h"
#include "composition/PageDrawer.h"
#include "cups/CupsOptions.h"
#include "host/core/HeadlessSession.h"
#include "host/core/Installation.h"
#include "host/dialog/LabelPicture.h"
#include "tests/e2e/Program.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/FigureFiles.h"
#include "tests/support/InkMap.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

namespace {

constexpr double kDotsPerPoint = 180.0 / 72;
constexpr int kDotsApart = 2;
// Less than all, since a stroke of one dot can be there for one renderer and not for the other.
constexpr double kSame = 0.97;
constexpr int kLeastInk = 50;  // dots

struct Way {
  const char* name;
  FigureSize size;
};
constexpr Way kWays[] = {{"wide", kWideFigure}, {"tall", kTallFigure}};

struct Case {
  std::string printer;
  FigureKind kind;
  Way way;
};
void PrintTo(const Case& each, std::ostream* out) {
  *out << each.kind.name << " " << each.way.name << " on " << each.printer;
}

std::vector<Case> everyCase() {
  std::vector<Case> cases;
  for (const char* printer : kPrinters)
    for (const FigureKind& kind : figureKinds())
      for (const Way& way : kWays) cases.push_back({printer, kind, way});
  return cases;
}

bool isDark(std::uint32_t pixel) {
  constexpr std::uint32_t kMiddle = 128;
  const auto part = [pixel](unsigned shift) { return pixel >> shift & 0xffU; };
  return (part(16) * 30 + part(8) * 59 + part(0) * 11) / 100 < kMiddle;
}

// The labels as the preview has them for `cutline -d PRINTER OPTIONS FILE`.
std::vector<InkMap> shownLabels(const CommandLine& line) {
  PluginLoader plugIns({Installation(built("")).plugInDirectory()});
  std::ostringstream notes;
  HeadlessSession session(line, plugIns, notes);
  EXPECT_TRUE(session.openSelected());
  const std::string helpers = Installation(built("")).helperDirectory();
  const auto composed = compose(helpers, line.files, session.model().compositionRequest());
  if (!composed) throw std::runtime_error(composed.error().message);
  const auto drawer = PageDrawer::open(helpers, composed->file);
  if (!drawer) throw std::runtime_error(drawer.error().message);
  std::vector<InkMap> labels;
  for (int page = 0; page < (*drawer)->pageCount(); ++page) {
    const auto image = (*drawer)->draw(page, kDotsPerPoint);
    if (!image) throw std::runtime_error(image.error().message);
    const QImage picture =
        pictureOf(*image, kDotsPerPoint, composed->report.label, {/*isMonochrome=*/true});
    labels.emplace_back(picture.width(), picture.height(),
                        [&](int x, int y) { return isDark(picture.pixel(x, y)); });
  }
  return labels;
}

std::vector<InkMap> printedLabels(const PrintedJob& job) {
  const PngPicture picture(job.picturePath());
  std::vector<InkMap> labels;
  for (int label = 1; label <= job.number("labels"); ++label) {
    const printer::Place place = placeOf(job.fact("label." + std::to_string(label)));
    labels.emplace_back(
        static_cast<int>(place.width), static_cast<int>(place.height),
        [&](int x, int y) { return isDark(picture.colourAt(place.x + x, place.y + y)); });
  }
  return labels;
}

void expectSameLabels(const std::vector<InkMap>& shown, const std::vector<InkMap>& out) {
  ASSERT_EQ(shown.size(), out.size());
  for (std::size_t label = 0; label < out.size(); ++label) {
    EXPECT_NEAR(shown[label].width(), out[label].width(), kDotsApart);
    EXPECT_NEAR(shown[label].height(), out[label].height(), kDotsApart);
    EXPECT_GT(out[label].count(), kLeastInk) << "nothing was printed";
    EXPECT_GE(likeness(shown[label], out[label], kDotsApart), kSame) << "label " << label + 1;
    // The comparison itself sees a difference.
    EXPECT_LT(likeness(shown[label].turned(180), out[label], kDotsApart), kSame);
    EXPECT_LT(likeness(shown[label].shifted(6, 6), out[label], kDotsApart), kSame);
  }
}

class Comparing : public EndToEndTest {
 protected:
  // Prints with these options, as words of the command line, and compares every label.
  void expectSame(const Case& each, const std::string& options, std::size_t pages) {
    SCOPED_TRACE(options);
    const std::string path = mFolder.path() + "/figure-" + each.kind.name;
    each.kind.write(path, each.way.size);
    const std::string words =
        " -d " + each.printer + (options.empty() ? "" : " -o " + quoted(options));
    const CommandResult printed = runProgram("--print" + words + " " + path);
    ASSERT_EQ(printed.status, 0) << printed.errors;
    CommandLine line;
    line.destination = DestinationName{each.printer, std::nullopt};
    line.files = {path};
    line.asked.options = CupsOptions::parse(options.c_str()).list();
    line.server = server().options();
    const std::vector<InkMap> out = printedLabels(newJob());
    ASSERT_EQ(out.size(), pages);
    expectSameLabels(shownLabels(line), out);
  }

  TemporaryFolder mFolder;
};

class EachDocument : public Comparing, public testing::WithParamInterface<Case> {};
INSTANTIATE_TEST_SUITE_P(Comparison, EachDocument, testing::ValuesIn(everyCase()),
                         [](const auto& info) {
                           return info.param.printer + "_" + info.param.kind.name + "_" +
                                  info.param.way.name;
                         });

TEST_P(EachDocument, ComesOutAsItIsShown) {
  expectSame(GetParam(), "", static_cast<std::size_t>(GetParam().kind.pages));
}

constexpr const char* kLayouts[] = {
    "print-scaling=fit",
    "print-scaling=fill",
    "print-scaling=none",
    "natural-scaling=60",
    "natural-scaling=60 position=top-left",
    "natural-scaling=60 position=bottom",
    "natural-scaling=60 position=right",
    "orientation-requested=3",
    "orientation-requested=4",
    "orientation-requested=5",
    "orientation-requested=6",
    "mirror",
    "natural-scaling=40 orientation-requested=4 position=bottom-right mirror",
};

FigureKind kindNamed(const std::string& name) {
  for (const FigureKind& kind : figureKinds())
    if (name == kind.name) return kind;
  throw std::runtime_error("no kind of figure is " + name);
}

class EachPrinter : public Comparing, public testing::WithParamInterface<const char*> {
 protected:
  void expectSame(const std::string& kind, const std::string& options, std::size_t pages = 1) {
    for (const Way& way : kWays)
      Comparing::expectSame({GetParam(), kindNamed(kind), way}, options, pages);
  }
};
INSTANTIATE_TEST_SUITE_P(Comparison, EachPrinter, testing::ValuesIn(kPrinters),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(EachPrinter, PrintsEachLayoutAsItIsShown) {
  for (const char* layout : kLayouts) expectSame("pdf", layout);
}

TEST_P(EachPrinter, PrintsPicturesSmallerAndAside) {
  expectSame("png", "natural-scaling=50 position=left");
}

TEST_P(EachPrinter, PrintsTextAsItIsShown) {
  expectSame("txt", "text-size=7", 2);
  expectSame("txt", "text-font='DejaVu Serif' orientation-requested=6", 2);
}

// Whatever is saved for the queue and the user acts on other documents, and would act on this one.
TEST_P(EachPrinter, SavedDefaultsDoNotLayTheDocumentOutAgain) {
  const std::string printer = GetParam();
  const std::string hostile[] = {
      "orientation-requested", "number-up", "page-border", "print-scaling",
      "page-ranges",           "booklet",   "page-label",  "job-sheets"};
  outputOf(
      "lpadmin -p " + printer +
      " -o orientation-requested-default=5 -o number-up-default=4 -o page-border-default=double"
      " -o print-scaling-default=fill -o page-ranges-default=2 -o booklet-default=true"
      " -o page-label-default=SECRET -o job-sheets-default=standard,none");
  outputOf("lpoptions -p " + printer +
           " -o number-up=2 -o page-border=single -o ppi=300 -o cpi=5 -o page-left=20");
  expectSame("pdf", "");
  std::string back = "lpadmin -p " + printer;
  for (const std::string& name : hostile) back += " -R " + name + "-default";
  outputOf(back);
}

// The strip on the screen is drawn the other way round, from left to right, where the printer
// mirrors.
TEST_P(EachPrinter, MirroredLabelsComeOutAsTheMirrorShowsThem) {
  const std::string path = mFolder.path() + "/figure";
  kindNamed("pdf").write(path, kWideFigure);
  CommandLine line;
  line.destination = DestinationName{GetParam(), std::nullopt};
  line.files = {path};
  line.server = server().options();
  ASSERT_EQ(runProgram(std::string("--print -o LxMirror=ON -d ") + GetParam() + " " + path).status,
            0);
  const std::vector<InkMap> out = printedLabels(newJob());
  std::vector<InkMap> mirrored;
  for (const InkMap& label : shownLabels(line)) mirrored.push_back(label.mirrored());
  expectSameLabels(mirrored, out);
}

TEST_F(Comparing, TapeIsAsLongAsItsContent) {
  for (const char* kind : {"pdf", "png", "svg"})
    Comparing::expectSame({"tape24", kindNamed(kind), kWays[0]}, "label-length=content", 1);
  Comparing::expectSame({"tape24", kindNamed("txt"), kWays[0]}, "label-length=content", 2);
}

TEST_F(Comparing, SizesWithoutANameAreTakenAsLpTakesThem) {
  Comparing::expectSame({"tape24", kindNamed("pdf"), kWays[0]}, "PageSize=Custom.24x73mm", 1);
  Comparing::expectSame({"tape24", kindNamed("pdf"), kWays[1]}, "media=Custom.18x120mm", 1);
}

TEST_F(Comparing, SeveralDocumentsAreOneJobInTheirOrder) {
  std::string words = "--print -d tape24";
  CommandLine line;
  line.destination = DestinationName{"tape24", std::nullopt};
  line.server = server().options();
  for (const char* kind : {"pdf", "tiff", "svg", "jpeg"}) {
    line.files.push_back(mFolder.path() + "/" + kind);
    kindNamed(kind).write(line.files.back(),
                          line.files.size() % 2 == 0 ? kTallFigure : kWideFigure);
    words += " " + line.files.back();
  }
  ASSERT_EQ(runProgram(words).status, 0);
  const std::vector<InkMap> out = printedLabels(newJob());
  ASSERT_EQ(out.size(), 5U);
  expectSameLabels(shownLabels(line), out);
}

TEST_F(Comparing, OnlyTheChosenPagesComeOutInTheirOrder) {
  const std::vector<InkMap> all = [] {
    CommandLine line;
    line.destination = DestinationName{"tape24", std::nullopt};
    line.files = {labels()};
    line.server = server().options();
    return shownLabels(line);
  }();
  ASSERT_EQ(
      runProgram("--print -d tape24 -P 2-7 -o 'page-set=even outputorder=reverse' " + labels())
          .status,
      0);
  const std::vector<InkMap> out = printedLabels(newJob());
  ASSERT_EQ(out.size(), 3U);
  for (std::size_t label = 0; label < out.size(); ++label)
    EXPECT_GE(likeness(all[5 - 2 * label], out[label], kDotsApart), kSame) << label;
}

TEST_F(Comparing, ADryRunWritesExactlyWhatWouldBeSent) {
  const std::string kept = mFolder.path() + "/kept.pdf";
  const std::string words = " -d tape24 -P 1-3 -o 'position=left LxHalfCut=ON' " + labels();
  const CommandResult dry = runProgram("--dry-run " + kept + words);
  ASSERT_EQ(dry.status, 0) << dry.errors;
  outputOf("cupsdisable tape24");
  const CommandResult printed = runProgram("--print" + words);
  EXPECT_EQ(printed.status, 0) << printed.errors;
  const std::string id = printed.output.substr(printed.output.find("tape24-") + 7);
  EXPECT_EQ(run("cmp " + kept + " " + server().sentDocument(std::stoi(id))).status, 0);
  outputOf("cupsenable tape24");
  const Choices sent = newJob().options();
  std::istringstream lines(dry.output);
  for (std::string each; std::getline(lines, each);) {
    const std::string name = each.substr(0, each.find('='));
    if (name == "copies" || !sent.contains(name)) continue;
    EXPECT_EQ(sent.at(name), each.substr(each.find('=') + 1)) << name;
  }
  EXPECT_NE(dry.output.find("LxHalfCut=ON\n"), std::string::npos);
  EXPECT_NE(dry.output.find("print-scaling=none\n"), std::string::npos);
}

}  // namespace

}  // namespace cutline::test
