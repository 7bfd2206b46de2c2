// The order in which the PPD is asked and the boxes are read.
#include "tests/bundle/PanelTest.h"
#include "tests/bundle/PpdQueries.h"
#include "tests/bundle/ToldBox.h"

namespace cutline::test {
namespace {

using Questions = std::vector<std::string>;

class QueryOrder : public PanelTest {
 protected:
  template <typename Operation>
  static Questions asked(const Operation& operation) {
    const PpdQueries queries;
    operation();
    return queries.asked();
  }
  static Questions each(const std::string& question, const std::vector<std::string>& keywords) {
    Questions questions;
    for (const std::string& keyword : keywords) questions.push_back(question + " " + keyword);
    return questions;
  }
  // The nine, each asked for its mark; the cut-every group asks for automatic cutting, too.
  static Questions allMarks() {
    Questions questions = each("marked", nineKeywords());
    questions.insert(questions.begin() + 1, "marked LxAutoTapeCut");
    return questions;
  }
};

TEST_F(QueryOrder, CreationFindsFourOptionsThenTheMediaRuleThenTheRest) {
  callback->paper.name = "HS24";
  ppd = allNine().open();
  callback->ppd = ppd.get();
  panel = std::make_shared<OptionPDE13_v400_>();
  EXPECT_EQ(asked([&] { panel->initWithCallback(callback, bundle); }),
            (Questions{"find LxCutLabel", "find LxCutAtEnd", "find LxMirror", "find LxAutoTapeCut",
                       "mark LxAutoTapeCut OFF", "attribute LxAutoCutObjHidden", "find LxHalfCut",
                       "find LxChainPrint", "find LxSpecialTape", "find LxRemoveBlkSpace",
                       "find LxCutMark"}));
}

TEST_F(QueryOrder, WithoutAutoCutItsAttributeIsNotAskedFor) {
  ppd = PpdText().onOff("LxMirror").open();
  callback->ppd = ppd.get();
  panel = std::make_shared<OptionPDE13_v400_>();
  const Questions questions = asked([&] { panel->initWithCallback(callback, bundle); });
  EXPECT_EQ(questions, each("find", nineKeywords()));
}

TEST_F(QueryOrder, SelectionsAreReadInTheCanonicalOrder) {
  makePanel(allNine());
  EXPECT_EQ(asked([&] { panel->updateMarkedSelections(0xFFFFFFFF); }), allMarks());
  EXPECT_EQ(asked([&] { panel->setPDEItems2(); }), allMarks());
  EXPECT_EQ(asked([&] { panel->updateMarkedSelections(0x80000 | 0x100 | 0x2000); }),
            (Questions{"marked LxCutLabel", "marked LxAutoTapeCut", "marked LxChainPrint",
                       "marked LxCutMark"}));
}

TEST_F(QueryOrder, AnAbsentOptionIsNotAskedForItsMark) {
  makePanel(PpdText().onOff("LxAutoTapeCut").onOff("LxMirror"));
  EXPECT_EQ(asked([&] { panel->setPDEItems2(); }),
            (Questions{"marked LxMirror", "marked LxAutoTapeCut"}));
}

TEST_F(QueryOrder, TheRefreshAsksThePPDForTheFamilyOnly) {
  showPanel(allNine());
  for (const std::string& question : asked([&] { panel->updateUI(); })) {
    EXPECT_EQ(question, "attribute LxTapeType");
  }
}

TEST_F(QueryOrder, BeforePrintingEachOptionIsAskedInTheCanonicalOrder) {
  makePanel(allNine());
  EXPECT_EQ(asked([&] { panel->shouldPrint(); }), each("marked", nineKeywords()));
}

class BoxOrder : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(view.initWithFrame({}, &bundle, false));
    view.setSpecialTapeChkBx(&special);
    view.setCutEveryChkBx(&every);
    view.setCutAndEndChkBx(&end);
    view.setMirrorPrintChkBx(&mirror);
    view.setHalfCutChkBx(&half);
    view.setAutoCutChkBx(&autoCut);
    view.setChainPrintChkBx(&chain);
    view.setRemoveBlkSpaceChkBx(&blank);
    view.setCutMarkChkBx(&mark);
  }
  Questions readForThePicture() {
    reads.clear();
    view.targetDrawImage();
    return reads;
  }

  TestPlatform platform;
  TestBundle bundle;
  Questions reads;
  ToldBox special{"special", reads}, every{"every", reads}, end{"end", reads},
      mirror{"mirror", reads}, half{"half", reads}, autoCut{"auto", reads}, chain{"chain", reads},
      blank{"blank", reads}, mark{"mark", reads};
  OptionView13_v400_ view;
};

TEST_F(BoxOrder, ThePictureReadsEachBoxOnceInItsOrder) {
  const Questions all = {"special", "every", "end", "mirror", "half", "auto", "chain"};
  for (const bool isWN : {false, true}) {
    view.setIsWN(isWN);
    every.setState(CheckBox::kOff);
    EXPECT_EQ(readForThePicture(), all);
    every.setState(CheckBox::kOn);
    EXPECT_EQ(readForThePicture(), all) << "one cut box doesn't stand in for the other";
  }
}

TEST_F(BoxOrder, UnderSpecialTapeTheCutsAreNotRead) {
  special.setState(CheckBox::kOn);
  for (const bool isWN : {false, true}) {
    view.setIsWN(isWN);
    EXPECT_EQ(readForThePicture(), (Questions{"special", "end", "mirror"}));
  }
}

}  // namespace
}  // namespace cutline::test
