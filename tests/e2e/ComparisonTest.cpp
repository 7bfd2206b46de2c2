// What is shown is what comes out: each kind of document, lying both ways, on each sample printer,
// through the real filters; the printer's stored picture against the preview's of the same label.
#include <gtest/gtest.h>

#include <sstream>

#include "composition/Composer.h"
#include "composition/PageDrawer.h"
#include "host/core/HeadlessSession.h"
#include "host/core/Installation.h"
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
    const InkMap paper(image->width, image->height, [&](int x, int y) {
      return isDark(image->pixels[static_cast<std::size_t>(y) * image->width + x]);
    });
    labels.push_back(paper.turned(session.model().label().upright));
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

class Comparison : public EndToEndTest, public testing::WithParamInterface<Case> {
 protected:
  // Prints with these words of the command line, and compares every label.
  void expectSame(const std::string& words, const OptionList& options, int pages) {
    const std::string path = mFolder.path() + "/figure-" + GetParam().kind.name;
    GetParam().kind.write(path, GetParam().way.size);
    const CommandResult printed =
        runProgram("--print -d " + GetParam().printer + " " + words + " " + path);
    ASSERT_EQ(printed.status, 0) << printed.errors;
    CommandLine line;
    line.destination = DestinationName{GetParam().printer, std::nullopt};
    line.files = {path};
    line.asked.options = options;
    line.server = server().options();
    const std::vector<InkMap> shown = shownLabels(line);
    const std::vector<InkMap> out = printedLabels(newJob());
    ASSERT_EQ(shown.size(), out.size());
    ASSERT_EQ(static_cast<int>(out.size()), pages);
    for (std::size_t label = 0; label < out.size(); ++label) {
      EXPECT_NEAR(shown[label].width(), out[label].width(), kDotsApart);
      EXPECT_NEAR(shown[label].height(), out[label].height(), kDotsApart);
      EXPECT_GT(out[label].count(), 50) << "nothing was printed";
      EXPECT_GE(likeness(shown[label], out[label], kDotsApart), kSame) << "label " << label + 1;
      // The comparison itself sees a difference.
      EXPECT_LT(likeness(shown[label].turned(180), out[label], kDotsApart), kSame);
      EXPECT_LT(likeness(shown[label].shifted(6, 6), out[label], kDotsApart), kSame);
    }
  }

  TemporaryFolder mFolder;
};

INSTANTIATE_TEST_SUITE_P(EachDocument, Comparison, testing::ValuesIn(everyCase()),
                         [](const auto& info) {
                           return info.param.printer + "_" + info.param.kind.name + "_" +
                                  info.param.way.name;
                         });

TEST_P(Comparison, WhatIsShownComesOut) { expectSame("", {}, GetParam().kind.pages); }

}  // namespace

}  // namespace cutline::test
