// What other programs read. Its form is documented and stays.
#include <gtest/gtest.h>

#include <sstream>

#include "strip/PlanJson.h"
#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

std::string jsonOf(const CutPlan& plan, bool hasDocument = true) {
  std::ostringstream out;
  writePlanJson(plan, hasDocument, out);
  return out.str();
}

TEST(PlanJson, HasTheDocumentedForm) {
  LabelRun run = runOf(1, 50.005);
  run.pages = {3};
  EXPECT_EQ(jsonOf({{.cutsAutomatically = true, .halfCuts = true, .leader = 8, .feed = 4}, run}),
            R"({
  "version": 1,
  "sentence": "1 label, cut at the end, half cut beside the label: 1 piece, 62 mm of tape",
  "document": true,
  "labels": 1,
  "pieces": 1,
  "full_cuts": 1,
  "half_cuts": 1,
  "cut_marks": 0,
  "tape_mm": 62.01,
  "waste_mm": 12,
  "mirrored": false,
  "cuts_said_by": "settings",
  "events": [
    {"kind": "leader", "position_mm": 0, "length_mm": 8, "label": 0},
    {"kind": "half_cut", "position_mm": 8, "label": 0},
    {"kind": "label", "position_mm": 8, "length_mm": 50.01, "label": 1, "page": 3},
    {"kind": "feed", "position_mm": 58.01, "length_mm": 4, "label": 1},
    {"kind": "full_cut", "position_mm": 62.01, "label": 1}
  ]
}
)");
}

TEST(PlanJson, SaysNullWhereALengthIsNotKnown) {
  const std::string json = jsonOf({{.printsCutMarks = true, .mirrors = true}, runOf(1)}, false);
  for (const char* part :
       {"\"document\": false", "\"tape_mm\": null", "\"waste_mm\": null", "\"mirrored\": true",
        "{\"kind\": \"leader\", \"position_mm\": 0, \"length_mm\": null, \"label\": 0}",
        "{\"kind\": \"cut_mark\", \"position_mm\": null, \"label\": 0}",
        "{\"kind\": \"label\", \"position_mm\": null, \"length_mm\": 50, \"label\": 1, \"page\": "
        "1}"})
    EXPECT_NE(json.find(part), std::string::npos) << part << " is not in " << json;
}

TEST(PlanJson, WithoutLabelsHasNoEvents) {
  EXPECT_NE(jsonOf({{}, runOf(0)}).find("\"events\": []\n}\n"), std::string::npos);
}

}  // namespace
}  // namespace cutline::test
