// Cuts that count pages, copies or documents, and plans that nobody here can make.
#include <gtest/gtest.h>

#include <sstream>

#include "strip/PlanJson.h"
#include "strip/PlanWords.h"
#include "strip/RunSettings.h"
#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

LabelRun copiesOf(unsigned pages, unsigned copies, bool isCollated, bool printerRepeats) {
  LabelRun run = runOf(pages);
  run.copies = copies;
  run.isCollated = isCollated;
  run.printerRepeats = printerRepeats;
  return run;
}

CutSettings cutAfter(CutUnit unit) {
  return {.cutsAutomatically = true, .unit = unit, .isRoll = true, .feed = 0.0};
}

struct RunRow {
  const char* name;
  CutUnit unit;
  unsigned pages, copies;
  bool isCollated, printerRepeats;
  const char* outline;
};
constexpr RunRow kRunRows[] = {
    {"each label", CutUnit::Label, 2, 2, false, true, "L|L|L|L|"},
    {"a page that the printer repeats", CutUnit::Page, 2, 2, false, true, "LL|LL|"},
    {"a page that is sent again", CutUnit::Page, 2, 2, false, false, "L|L|L|L|"},
    {"pages in turn", CutUnit::Page, 2, 2, true, true, "L|L|L|L|"},
    {"the only copy", CutUnit::Copy, 3, 1, false, true, "LLL|"},
    {"collated copies", CutUnit::Copy, 2, 2, true, true, "LL|LL|"},
    {"copies of one page", CutUnit::Copy, 1, 3, false, true, "L|L|L|"},
    {"copies that the printer takes for one", CutUnit::Copy, 2, 2, true, false, "LLLL|"},
    {"one document", CutUnit::Document, 3, 1, false, true, "LLL|"},
    {"a document with its copies sent one by one", CutUnit::Document, 2, 2, true, false, "LLLL|"},
};

TEST(RunSettings, CountInLabels) {
  for (const RunRow& row : kRunRows) {
    const LabelRun run = copiesOf(row.pages, row.copies, row.isCollated, row.printerRepeats);
    EXPECT_EQ(outlineOf({cutAfter(row.unit), run}), row.outline) << row.name;
  }
}

TEST(RunSettings, LeaveToThePrinterWhatTheWordsDoNotSay) {
  const auto authorityOf = [](CutUnit unit, bool isCollated) {
    return inLabels(cutAfter(unit), copiesOf(2, 2, isCollated, true)).authority;
  };
  EXPECT_EQ(authorityOf(CutUnit::Copy, false), CutAuthority::Printer);
  EXPECT_EQ(authorityOf(CutUnit::Document, true), CutAuthority::Printer);
  EXPECT_EQ(authorityOf(CutUnit::Copy, true), CutAuthority::Settings);
}

TEST(RunSettings, CutTheRestOrNot) {
  CutSettings settings = cutAfter(CutUnit::Label);
  settings.labelsPerCut = 3;
  EXPECT_EQ(outlineOf({settings, runOf(4)}), "LLL|L|");
  settings.cutsRest = false;
  EXPECT_EQ(outlineOf({settings, runOf(4)}), "LLL|L");
  EXPECT_EQ(outlineOf({settings, runOf(6)}), "LLL|LLL|");
  settings.cutsAtEnd = true;
  EXPECT_EQ(outlineOf({settings, runOf(4)}), "LLL|L|");
}

std::string sentenceOf(const CutPlan& plan) { return planSentence(plan).english(); }

TEST(RunSettings, AreSaidInWords) {
  EXPECT_EQ(sentenceOf({cutAfter(CutUnit::Copy), copiesOf(2, 3, true, true)}),
            "6 labels, cut after each copy: 3 pieces, 300 mm of the roll");
  EXPECT_EQ(sentenceOf({cutAfter(CutUnit::Page), copiesOf(2, 3, false, true)}),
            "6 labels, cut every 3: 2 pieces, 300 mm of the roll");
  EXPECT_EQ(sentenceOf({cutAfter(CutUnit::Document), runOf(2)}),
            "2 labels, cut at the end: 1 piece, 100 mm of the roll");
}

CutSettings saidBy(CutAuthority authority) {
  CutSettings settings = cutAfter(CutUnit::Label);
  settings.authority = authority;
  settings.halfCuts = settings.printsCutMarks = true;
  return settings;
}

TEST(UnknownPlan, SaysWhoDecides) {
  EXPECT_EQ(sentenceOf({saidBy(CutAuthority::Printer), runOf(12)}),
            "12 labels; the printer decides where to cut");
  EXPECT_EQ(sentenceOf({saidBy(CutAuthority::Nobody), runOf(1)}),
            "1 label; this driver says nothing of cutting");
}

TEST(UnknownPlan, CountsNothingAndHasTheLabelsAlone) {
  const CutPlan plan(saidBy(CutAuthority::Printer), runOf(3));
  EXPECT_FALSE(plan.knowsCuts());
  EXPECT_EQ(outlineOf(plan), "LLL");
  EXPECT_EQ(plan.pieces() + plan.fullCuts() + plan.halfCuts() + plan.cutMarks(), 0U);
  EXPECT_TRUE(plan.pieceRuns().empty());
  EXPECT_TRUE(planLines(plan).empty());
  EXPECT_FALSE(plan.tape());
  EXPECT_FALSE(plan.waste());
}

TEST(UnknownPlan, IsNullForPrograms) {
  std::ostringstream out;
  writePlanJson({saidBy(CutAuthority::Nobody), runOf(1)}, true, out);
  EXPECT_EQ(out.str(), R"({
  "version": 1,
  "sentence": "1 label; this driver says nothing of cutting",
  "document": true,
  "labels": 1,
  "pieces": null,
  "full_cuts": null,
  "half_cuts": null,
  "cut_marks": null,
  "tape_mm": null,
  "waste_mm": null,
  "mirrored": false,
  "cuts_said_by": "nobody",
  "events": [
    {"kind": "label", "position_mm": null, "length_mm": 50, "label": 1, "page": 1}
  ]
}
)");
}

}  // namespace
}  // namespace cutline::test
