// What a panel relies on, whichever toolkit shows it. TextFieldConformanceTest has the text fields.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QImage>
#include <QImageWriter>
#include <algorithm>
#include <memory>
#include <vector>

#include "platform/lib/ResourceFile.h"
#include "platform/ports/Controls.h"
#include "platform/ports/Drawing.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/TextField.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/qt/ToolkitConformance.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

TYPED_TEST_SUITE(ToolkitConformance, Toolkits);

TYPED_TEST(ToolkitConformance, NewViewIsShownAndInNoTree) {
  const auto view = this->toolkit.createView({{1, 2}, {3, 4}});
  EXPECT_EQ(view->frame(), (Rect{{1, 2}, {3, 4}}));
  EXPECT_EQ(view->autoresizing(), Autoresizing::none);
  EXPECT_FALSE(view->isHidden());
  EXPECT_EQ(view->superview(), nullptr);
  EXPECT_TRUE(view->subviews().empty());
  EXPECT_EQ(view->accessibilityLabel(), "");
}

TYPED_TEST(ToolkitConformance, EveryControlIsMadeEnabledAndEmpty) {
  const Rect frame{{0, 0}, {20, 20}};
  EXPECT_TRUE(this->toolkit.createButton(frame)->isEnabled());
  EXPECT_EQ(this->toolkit.createCheckBox(frame)->state(), CheckBox::kOff);
  EXPECT_EQ(this->toolkit.createLabel(frame)->stringValue(), "");
  EXPECT_EQ(this->toolkit.createTextField(frame)->stringValue(), "");
  EXPECT_EQ(this->toolkit.createPopUpButton(frame)->selectedTag(), 0);
  EXPECT_NE(this->toolkit.createCustomView(frame, nullptr), nullptr);
  const auto stepper = this->toolkit.createStepper(frame);
  EXPECT_EQ(stepper->minValue(), 0);
  EXPECT_EQ(stepper->maxValue(), 100);
}

TYPED_TEST(ToolkitConformance, OnlyControlsThatStickToTheTopMoveWithIt) {
  const auto root = this->toolkit.createView({{0, 0}, {100, 284}});
  const auto sticking = this->toolkit.createCheckBox({{16, 246}, {20, 22}});
  const auto staying = this->toolkit.createView({{16, 50}, {20, 22}});
  sticking->setAutoresizing(Autoresizing::minYMargin);
  root->addSubview(sticking);
  root->addSubview(staying);
  root->setFrameSize({100, 150});
  EXPECT_EQ(sticking->frame().origin.y, 246 - 134);
  EXPECT_EQ(staying->frame().origin.y, 50);
}

TYPED_TEST(ToolkitConformance, ReplacementTakesThePlace) {
  const auto root = this->toolkit.createView({{0, 0}, {100, 100}});
  const auto placeholder = this->toolkit.createButton({{0, 0}, {10, 10}});
  const auto next = this->toolkit.createView({{0, 0}, {10, 10}});
  const auto preview = this->toolkit.createCustomView({{0, 0}, {10, 10}}, nullptr);
  root->addSubview(placeholder);
  root->addSubview(next);
  root->replaceSubview(placeholder.get(), preview);
  EXPECT_EQ(root->subviews(), (std::vector<std::shared_ptr<View>>{preview, next}));
  EXPECT_EQ(preview->superview(), root.get());
  EXPECT_EQ(placeholder->superview(), nullptr);
  root->replaceSubview(placeholder.get(), next);
  EXPECT_EQ(root->subviews().size(), 2U);
}

TYPED_TEST(ToolkitConformance, ReplacementMayComeFromTheSameSuperview) {
  const auto root = this->toolkit.createView({{0, 0}, {100, 100}});
  const auto first = this->toolkit.createView({{0, 0}, {10, 10}});
  const auto second = this->toolkit.createView({{0, 0}, {10, 10}});
  root->addSubview(first);
  root->addSubview(second);
  root->replaceSubview(second.get(), first);
  EXPECT_EQ(root->subviews(), (std::vector<std::shared_ptr<View>>{first}));
  EXPECT_EQ(second->superview(), nullptr);
}

TYPED_TEST(ToolkitConformance, SubviewsKnowWhenTheirSuperviewGoes) {
  auto root = this->toolkit.createView({{0, 0}, {100, 100}});
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  root->addSubview(box);
  root.reset();
  EXPECT_EQ(box->superview(), nullptr);
}

TYPED_TEST(ToolkitConformance, ClickRunsTheActionThenTheObserverIsTold) {
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  box->setAction(this->recorded());
  box->performClick();
  EXPECT_EQ(this->events, (std::vector<std::string>{"action", "observer"}));
  EXPECT_EQ(this->observer.lastSender, static_cast<View*>(box.get()));
  EXPECT_EQ(box->state(), CheckBox::kOn);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOff);
}

TYPED_TEST(ToolkitConformance, MixedBoxIsOnAfterAClick) {
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  box->setState(CheckBox::kMixed);
  EXPECT_EQ(box->state(), CheckBox::kMixed);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOn);
}

TYPED_TEST(ToolkitConformance, OtherNumbersStandForTheStateWithTheirSign) {
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  box->setState(7);
  EXPECT_EQ(box->state(), CheckBox::kOn);
  box->setState(-7);
  EXPECT_EQ(box->state(), CheckBox::kMixed);
}

TYPED_TEST(ToolkitConformance, DisabledControlAnswersNothing) {
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  box->setAction(this->recorded());
  box->setEnabled(false);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOff);
  EXPECT_TRUE(this->events.empty());
  EXPECT_FALSE(box->isHidden());
}

TYPED_TEST(ToolkitConformance, HiddenBoxCanBeClickedByTheHost) {
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  box->setHidden(true);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOn);
}

TYPED_TEST(ToolkitConformance, NobodyIsToldOfAControlWithoutAction) {
  const auto box = this->toolkit.createCheckBox({{0, 0}, {10, 10}});
  box->setAction(this->recorded());
  box->setAction({});
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOn);
  EXPECT_TRUE(this->events.empty());
}

TYPED_TEST(ToolkitConformance, ActionMayReplaceItself) {
  const auto button = this->toolkit.createButton({{0, 0}, {10, 10}});
  button->setAction([this, &button](View*) {
    button->setAction(this->recorded());
    this->events.emplace_back("first");
  });
  button->performClick();
  button->performClick();
  EXPECT_EQ(this->events, (std::vector<std::string>{"first", "observer", "action", "observer"}));
}

TYPED_TEST(ToolkitConformance, ObserverCanBeTakenAway) {
  const auto button = this->toolkit.createButton({{0, 0}, {10, 10}});
  button->setAction(this->recorded());
  this->toolkit.setActionObserver(nullptr);
  button->performClick();
  EXPECT_EQ(this->events, (std::vector<std::string>{"action"}));
}

TYPED_TEST(ToolkitConformance, StepperTakesTheNearestBound) {
  const auto stepper = this->toolkit.createStepper({{0, 0}, {22, 24}});
  stepper->setAction(this->recorded());
  stepper->setRange(2, 10);
  EXPECT_EQ(stepper->intValue(), 2);
  stepper->setIntValue(11);
  EXPECT_EQ(stepper->intValue(), 10);
  stepper->setRange(5, 4);
  EXPECT_EQ(stepper->intValue(), 5);
  EXPECT_TRUE(this->events.empty());
}

TYPED_TEST(ToolkitConformance, PopUpSelectsByTagAndKeepsItsSelection) {
  const auto popUp = this->toolkit.createPopUpButton({{0, 0}, {100, 32}});
  popUp->setAction(this->recorded());
  this->addThree(*popUp);
  EXPECT_EQ(popUp->selectedTag(), 1);
  EXPECT_TRUE(popUp->selectItemWithTag(3));
  EXPECT_FALSE(popUp->selectItemWithTag(9));
  popUp->removeItemWithTitle("B");
  popUp->removeItemWithTitle("B");
  EXPECT_EQ(popUp->selectedTag(), 3);
  popUp->removeItemWithTitle("C");
  EXPECT_EQ(popUp->selectedTag(), 1);
  popUp->removeItemWithTitle("A");
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_TRUE(this->events.empty());
}

TYPED_TEST(ToolkitConformance, ClearedTitlesLeaveTagsAndPictures) {
  const auto popUp = this->toolkit.createPopUpButton({{0, 0}, {100, 32}});
  popUp->addItem({"AHCMOnOffOffOff", 8, "picture.svg", "Automatic cut"});
  popUp->setTitleOfItem(0, "");
  popUp->setTitleOfItem(1, "none such");
  ASSERT_EQ(popUp->items().size(), 1U);
  const PopUpItem item = popUp->items().front();
  EXPECT_EQ(item.title, "");
  EXPECT_EQ(item.tag, 8);
  EXPECT_EQ(item.imagePath, "picture.svg");
  EXPECT_EQ(item.accessibilityLabel, "Automatic cut");
}

TYPED_TEST(ToolkitConformance, ChoiceRunsTheAction) {
  const auto popUp = this->toolkit.createPopUpButton({{0, 0}, {100, 32}});
  popUp->setAction(this->recorded());
  this->addThree(*popUp);
  EXPECT_TRUE(popUp->performSelection(2));
  EXPECT_EQ(popUp->selectedTag(), 2);
  EXPECT_EQ(this->events, (std::vector<std::string>{"action", "observer"}));
  EXPECT_FALSE(popUp->performSelection(9));
  popUp->setEnabled(false);
  EXPECT_FALSE(popUp->performSelection(1));
  EXPECT_EQ(popUp->selectedTag(), 2);
}

TYPED_TEST(ToolkitConformance, TextsKeepTheirBytes) {
  const auto field = this->toolkit.createTextField({{0, 0}, {50, 22}});
  const auto label = this->toolkit.createLabel({{0, 0}, {50, 18}});
  field->setStringValue("99");
  label->setStringValue("Etiketten \xE2\x80\x93 \xED\x95\x9C");
  EXPECT_EQ(field->stringValue(), "99");
  EXPECT_EQ(field->intValue(), 99);
  EXPECT_EQ(label->stringValue(), "Etiketten \xE2\x80\x93 \xED\x95\x9C");
}

TYPED_TEST(ToolkitConformance, TextColourIsRemembered) {
  const auto label = this->toolkit.createLabel({{0, 0}, {50, 18}});
  std::shared_ptr<View> someControl = label;
  auto* const coloured = dynamic_cast<TextColored*>(someControl.get());
  ASSERT_NE(coloured, nullptr);
  EXPECT_EQ(coloured->textColor(), TextColor::controlText);
  coloured->setTextColor(TextColor::disabledControlText);
  EXPECT_EQ(label->textColor(), TextColor::disabledControlText);
}

TYPED_TEST(ToolkitConformance, CheckBoxTakesNoTextColour) {
  std::shared_ptr<View> box = this->toolkit.createCheckBox({{0, 0}, {50, 18}});
  EXPECT_EQ(dynamic_cast<TextColored*>(box.get()), nullptr);
}

TYPED_TEST(ToolkitConformance, PictureTellsItsSize) {
  PictureFiles files;
  const auto image = this->toolkit.imageWithContentsOfFile(files.addPlain("a.svg", "#00ff00"));
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->size(), (Size{40, 20}));
  const auto words = this->toolkit.imageWithContentsOfFile(files.add("b.svg", "words"));
  ASSERT_NE(words, nullptr);
  EXPECT_EQ(words->size(), Size());
  EXPECT_EQ(this->toolkit.imageWithContentsOfFile("/nonexistent"), nullptr);
}

TYPED_TEST(ToolkitConformance, RefusesAPictureOfTooManyBytesOrPixels) {
  PictureFiles files;
  const std::string path = files.addPlain("a.svg", "#00ff00");
  ASSERT_EQ(::truncate(path.c_str(), kLargestResource + 1), 0);
  EXPECT_EQ(this->toolkit.imageWithContentsOfFile(path), nullptr);
  for (const int side : {4000, 5000}) {
    QImage picture(side, side, QImage::Format_Mono);
    picture.fill(1);
    const std::string bitmap = files.add("b.png", "");
    ASSERT_TRUE(picture.save(QString::fromStdString(bitmap)));
    const bool isSmall = side * side <= kMostPicturePixels;
    const Size size = isSmall ? Size{1.0 * side, 1.0 * side} : Size();
    EXPECT_EQ(this->toolkit.imageWithContentsOfFile(bitmap)->size(), size) << side;
    ASSERT_EQ(::truncate(bitmap.c_str(), 20), 0);
    EXPECT_EQ(this->toolkit.imageWithContentsOfFile(bitmap)->size(), Size());
  }
}

TYPED_TEST(ToolkitConformance, ReadsThePicturesThatItSaysItReadsAndNoOthers) {
  std::vector<std::string> types;
  while (const auto type = this->toolkit.imageFileType(types.size())) types.push_back(*type);
  ASSERT_FALSE(types.empty());
  EXPECT_EQ(types.front(), "svg");
  EXPECT_EQ(std::ranges::count(types, "png"), 1);
  PictureFiles files;
  QImage picture(40, 20, QImage::Format_RGB32);
  picture.fill(Qt::green);
  for (const QByteArray& written : QImageWriter::supportedImageFormats()) {
    const std::string type = written.toStdString();
    const std::string path = files.add(QString::fromStdString("picture." + type), "");
    ASSERT_TRUE(picture.save(QString::fromStdString(path), written.constData())) << type;
    const auto image = this->toolkit.imageWithContentsOfFile(path);
    const bool isOfItsTypes = std::ranges::find(types, type) != types.end();
    EXPECT_EQ(image->size(), isOfItsTypes ? (Size{40, 20}) : Size()) << type;
  }
}

}  // namespace
}  // namespace cutline
