// The panel for a user whose system's codeset the text encodings don't know.
#include <string>

#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class UnknownCodesets : public PanelTest, public testing::WithParamInterface<std::string> {
 protected:
  void TearDown() override { panel.reset(); }

  TestPlatform ofTheUser{GetParam()};
};

TEST_P(UnknownCodesets, ARollStaysARollAndKeepsItsBoxOfAutoCut) {
  showPanel(
      PpdText(allNine()).attribute("LxTapeType", "WN").attribute("LxAutoCutObjHidden", "False"));
  EXPECT_TRUE(panel->isWNPrinter());
  EXPECT_FALSE(box(OptionId::autoCut)->isHidden());
  click(OptionId::autoCut);
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
  EXPECT_EQ(panel->targetPopUpButtonTag(), 3);
}

TEST_P(UnknownCodesets, TapeIsNotCutUnderSpecialTape) {
  showPanel(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
  click(OptionId::autoCut);
  click(OptionId::specialTape);
  EXPECT_FALSE(box(OptionId::autoCut)->isEnabled());
  panel->saveValuesAndReturnError(nullptr);
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
}

INSTANTIATE_TEST_SUITE_P(Rows, UnknownCodesets,
                         testing::Values("ARMSCII-8", "KOI8-T", "PT154", "TCVN5712-1", "utf"),
                         [](const auto& row) {
                           std::string name = row.param;
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
}  // namespace cutline::test
