// Which encoding each byte string of the PPD is read in: on a system that writes Latin-1, the bytes
// of one letter tell UTF-8, ASCII and the system's encoding apart.
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "tests/bundle/LetterBytes.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class Encodings : public PanelTest {
 protected:
  // LxMirror's last choice has the bytes as keyword and text; they are LxCutLabel's only number.
  static OpenPpd withLetters(bool isMarked = true) {
    const PpdText text = PpdText()
                             .attribute("FileVersion", kLetterBytes)
                             .option("LxCutLabel", {kLetterKeyword}, kLetterKeyword, kLetterBytes)
                             .option("LxMirror", {"OFF", {kLetterKeyword, kLetterBytes}},
                                     kLetterKeyword, kLetterBytes);
    OpenPpd opened = isMarked ? text.open() : text.openUnmarked();
    putLetterBytes(opened.get(), "LxCutLabel");
    putLetterBytes(opened.get(), "LxMirror");
    return opened;
  }
  void makePanelAndView(OpenPpd opened) {
    makePanel(std::move(opened));
    ASSERT_TRUE(panel->panelView());
  }
  ppd_option_t* option(const char* keyword) { return ppdFindOption(ppd.get(), keyword); }

  TestPlatform latin{"ISO-8859-1"};
};

TEST_F(Encodings, AChoicesUserTitleIsUTF8AndItsPPDTitleASCII) {
  makePanel(withLetters());
  PDEChoice& choice = *panel->mMirror_Choices->back();
  EXPECT_EQ(choice.userTitle(), kLetterInUTF8);
  EXPECT_EQ(choice.ppdTitle(), std::nullopt);
}

TEST_F(Encodings, AttributesAreInTheSystemsEncoding) {
  makePanel(withLetters());
  EXPECT_EQ(panel->fileVerString(), kLetterInLatin1);
}

TEST_F(Encodings, AnOptionsTextIsInTheSystemsEncodingAndItsTitleUTF8) {
  makePanel(withLetters());
  EXPECT_EQ(PDEUtilsMethod13::ppdOptionTextStr(ppd.get(), "LxMirror"), kLetterInLatin1);
  EXPECT_EQ(PDEUtilsMethod13::newOptionTitle(option("LxMirror")), kLetterInUTF8);
  EXPECT_EQ(PDEUtilsMethod13::newChoiceTitle(&option("LxMirror")->choices[1]), kLetterInUTF8);
}

TEST_F(Encodings, TitlesOfBoxesAndSummaryLinesAreUTF8) {
  makePanelAndView(withLetters());
  panel->willShow();
  EXPECT_EQ(box(OptionId::mirror)->title(), kLetterInUTF8);
  EXPECT_EQ(box(OptionId::cutEvery)->title(), kLetterInUTF8);
  panel->setPDEItems2();
  EXPECT_TRUE(panel->summaryInfo()->contains(kLetterInUTF8));
}

TEST_F(Encodings, TheDefaultCountIsInTheSystemsEncodingAndTheMarkedOneUTF8) {
  makePanelAndView(withLetters());
  panel->initializeUI_CutLabel();
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), kLetterInLatin1);
  panel->updateMarkedSelections(kItemCutEvery);
  panel->updateUIItem(kItemCutEvery);
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), kLetterInUTF8);
}

TEST_F(Encodings, SavedChoicesAreUTF8) {
  makePanelAndView(withLetters());
  box(OptionId::mirror)->setState(CheckBox::kOn);
  panel->saveSetting_Mirror();
  panel->saveSetting_CutLabel();
  EXPECT_EQ(callback->marks,
            (std::vector<Mark>{{"LxMirror", kLetterInUTF8}, {"LxCutLabel", kLetterInUTF8}}));
}

TEST_F(Encodings, DefaultsBeforePrintingAreUTF8) {
  makePanel(withLetters(false));
  EXPECT_TRUE(panel->shouldPrint());
  EXPECT_EQ(callback->marks,
            (std::vector<Mark>{{"LxCutLabel", kLetterInUTF8}, {"LxMirror", kLetterInUTF8}}));
}

// What is ASCII by the rules of PPDs is read as such, whatever the system writes.
class EncodingsOnEBCDIC : public PanelTest {
 protected:
  TestPlatform ebcdic{"IBM037"};
};

TEST_F(EncodingsOnEBCDIC, KeywordsAreReadAlike) {
  makePanelWithView(PpdText().cutLabel(1, 3, "2").onOff("LxMirror", "ON"));
  EXPECT_EQ(panel->indexOfMarkedOption(panel->mMirror_Choices.get(), "LxMirror"), 1);
  EXPECT_EQ(panel->mMirror_Choices->back()->ppdTitle(), "ON");
  panel->saveSetting_CutLabel();
  panel->saveSetting_Mirror();
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxCutLabel", "2"}, {"LxMirror", "OFF"}}));
  panel->updateMarkedSelections(kItemCutEvery);
  panel->updateUIItem(kItemCutEvery);
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), "2");
}

TEST_F(EncodingsOnEBCDIC, AttributesAreInTheSystemsEncoding) {
  makePanel(PpdText().attribute("LxTapeType", "WN"));
  EXPECT_FALSE(panel->isWNPrinter());
  makePanel(PpdText().attribute("LxTapeType", "\xE6\xD5"));
  EXPECT_TRUE(panel->isWNPrinter());
}

}  // namespace
}  // namespace cutline::test
