// Titles that cannot be read: where they are formatted they read "(null)", elsewhere they are none.
#include "tests/bundle/LetterBytes.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class NilTitles : public PanelTest {
 protected:
  void makePanelWithLetters(const PpdText& text, const char* keyword) {
    OpenPpd opened = text.open();
    putLetterBytes(opened.get(), keyword);
    makePanel(std::move(opened));
  }
  std::string valueOf(const std::string& title) {
    const auto info = panel->summaryInfo();
    const auto found = info->find(title);
    if (found == info->end()) return "(no line)";
    return std::get<std::string>(found->second);
  }
};

TEST_F(NilTitles, TheCutEveryLineSaysNullForANumberThatIsNotASCII) {
  bundle->strings["RS_Labels"] = "labels";
  makePanelWithLetters(PpdText()
                           .option("LxCutLabel", {kLetterKeyword}, kLetterKeyword, "Every")
                           .onOff("LxAutoTapeCut", "ON"),
                       "LxCutLabel");
  panel->setPDEItems2();
  EXPECT_EQ(valueOf("Every"), "(null) labels");
}

TEST_F(NilTitles, ADescriptionSaysNullForBoth) {
  makePanelWithLetters(
      PpdText().option("LxMirror", {{kLetterKeyword, "x\xC3"}, {"ON", "On"}}, "ON"), "LxMirror");
  const std::string description = panel->mMirror_Choices->front()->description();
  EXPECT_NE(description.find(" userTitle:\"(null)\" ppdTitle:\"(null)\" marked:NO choice:1 of 2>"),
            std::string::npos)
      << description;
}

TEST_F(NilTitles, ATitleNeverReadsNull) {
  makePanelWithView(PpdText().onOff("LxMirror", "OFF", "x\xC3").cutLabel(1, 3, "1"));
  panel->willShow();
  EXPECT_EQ(box(OptionId::mirror)->title(), "RS_MirrorPrinting");
  panel->setPDEItems2();
  EXPECT_EQ(valueOf("RS_STitle_MirrorPrinting"), "RS_STitle_No");
}

}  // namespace
}  // namespace cutline::test
