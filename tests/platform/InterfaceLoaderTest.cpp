#include <gtest/gtest.h>

#include <algorithm>

#include "plain/PlainTextField.h"
#include "plain/PlainToolkit.h"
#include "plain/RecordingSystemLog.h"
#include "platform/lib/InterfaceFile.h"
#include "platform/lib/InterfaceLoader.h"
#include "platform/ports/Controls.h"
#include "platform/ports/Interface.h"
#include "platform/ports/PopUpButton.h"
#include "tests/platform/RecordingClient.h"
#include "tests/platform/RecordingFormatter.h"
#include "tests/platform/RecordingOwner.h"
#include "tests/platform/ToolkitScope.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {
namespace {

constexpr char kPanel[] = R"(<dict><key>view</key><dict>
  <key>kind</key><string>View</string>
  <key>outlet</key><string>kView</string>
  <key>frame</key><string>{{0, 0}, {300, 200}}</string>
  <key>subviews</key><array>
    <dict>
      <key>kind</key><string>CheckBox</string>
      <key>outlet</key><string>mBox</string>
      <key>frame</key><string>{{16, 150}, {256, 22}}</string>
      <key>title</key><string>RS_Box</string>
      <key>action</key><string>changeOption:</string>
      <key>ppdKeyword</key><string>LxHalfCut</string>
    </dict>
    <dict>
      <key>kind</key><string>TextField</string>
      <key>outlet</key><string>mField</string>
      <key>frame</key><string>{{36, 120}, {52, 22}}</string>
      <key>accessibilityLabel</key><string>RS_Field</string>
      <key>action</key><string>changeNumber:</string>
      <key>delegate</key><true/>
    </dict>
    <dict>
      <key>kind</key><string>Stepper</string>
      <key>outlet</key><string>mStepper</string>
      <key>frame</key><string>{{92, 120}, {22, 24}}</string>
      <key>minValue</key><integer>1</integer>
      <key>maxValue</key><integer>99</integer>
    </dict>
    <dict>
      <key>kind</key><string>Label</string>
      <key>outlet</key><string>mLabel</string>
      <key>frame</key><string>{{120, 120}, {100, 18}}</string>
      <key>title</key><string>Words that are no key</string>
    </dict>
    <dict>
      <key>kind</key><string>PopUpButton</string>
      <key>outlet</key><string>mPopUp</string>
      <key>frame</key><string>{{16, 60}, {200, 32}}</string>
      <key>items</key><array>
        <dict>
          <key>title</key><string>Tape</string>
          <key>tag</key><integer>4</integer>
          <key>description</key><string>RS_Tape</string>
        </dict>
        <dict>
          <key>title</key><string>RS_Box</string>
          <key>tag</key><integer>5</integer>
        </dict>
      </array>
    </dict>
    <dict>
      <key>kind</key><string>Button</string>
      <key>outlet</key><string>mButton</string>
      <key>frame</key><string>{{16, 10}, {80, 22}}</string>
    </dict>
  </array>
</dict></dict>)";

// A toolkit that has no steppers and, when told so, no views.
class PoorToolkit : public PlainToolkit {
 public:
  std::shared_ptr<Stepper> createStepper(const Rect& /*frame*/) noexcept override {
    return nullptr;
  }
  std::shared_ptr<View> createView(const Rect& frame) noexcept override {
    return hasViews ? PlainToolkit::createView(frame) : nullptr;
  }
  bool hasViews = true;
};

class InterfaceLoaderTest : public testing::Test {
 protected:
  void SetUp() override {
    bundle.writeStrings(
        "en",
        {{"RS_Box", "Half cut"}, {"RS_Field", "Number of labels"}, {"RS_Tape", "Tape in words"}});
    bundle.write("Resources/Tape.svg", "<svg/>");
    bundle.writePropertyList("Resources/Panel.plist", kPanel);
  }

  bool load(Toolkit& with, const std::string& name = "Panel") {
    const test::ScopedEnvironment environment(test::languageEnvironment({}));
    const ToolkitScope scope(&with, &log);
    const auto opened = bundle.open();
    return opened && opened->loadNibNamed(name, owner);
  }

  RecordingSystemLog log;
  test::TemporaryBundle bundle;
  PlainToolkit toolkit;
  RecordingOwner owner;
};

TEST_F(InterfaceLoaderTest, BuildsTheTreeInTheFilesOrder) {
  ASSERT_TRUE(load(toolkit));
  const auto* root = owner.outlet<View>("kView");
  ASSERT_TRUE(root);
  EXPECT_EQ(root->frame(), (Rect{{0, 0}, {300, 200}}));
  const auto subviews = root->subviews();
  ASSERT_EQ(subviews.size(), 6U);
  const char* names[] = {"mBox", "mField", "mStepper", "mLabel", "mPopUp", "mButton"};
  for (std::size_t i = 0; i < subviews.size(); ++i) {
    EXPECT_EQ(subviews[i], owner.outlets[names[i]]) << names[i];
    EXPECT_EQ(subviews[i]->superview(), root) << names[i];
  }
}

TEST_F(InterfaceLoaderTest, ConnectsEveryOutletThenTheActionsThenAwakes) {
  ASSERT_TRUE(load(toolkit));
  const std::vector<std::string> expected = {
      "outlet kView",         "outlet mBox",   "outlet mField",  "outlet mStepper",
      "outlet mLabel",        "outlet mPopUp", "outlet mButton", "action changeOption:",
      "action changeNumber:", "awake"};
  EXPECT_EQ(owner.calls, expected);
}

TEST_F(InterfaceLoaderTest, FillsTheControls) {
  ASSERT_TRUE(load(toolkit));
  const auto* box = owner.outlet<CheckBox>("mBox");
  ASSERT_TRUE(box);
  EXPECT_EQ(box->title(), "Half cut");
  EXPECT_EQ(box->ppdKeyword(), "LxHalfCut");
  EXPECT_EQ(box->state(), CheckBox::kOff);
  EXPECT_EQ(box->autoresizing(), Autoresizing::minYMargin);
  EXPECT_EQ(owner.outlet<Label>("mLabel")->stringValue(), "Words that are no key");
  EXPECT_EQ(owner.outlet<TextField>("mField")->accessibilityLabel(), "Number of labels");
  EXPECT_EQ(owner.outlet<TextField>("mField")->stringValue(), "");
  const auto* stepper = owner.outlet<Stepper>("mStepper");
  EXPECT_EQ(stepper->minValue(), 1);
  EXPECT_EQ(stepper->maxValue(), 99);
}

TEST_F(InterfaceLoaderTest, PopUpEntriesKeepTheirTitlesAndGetPictureAndWords) {
  ASSERT_TRUE(load(toolkit));
  const auto* popUp = owner.outlet<PopUpButton>("mPopUp");
  ASSERT_TRUE(popUp);
  const auto items = popUp->items();
  ASSERT_EQ(items.size(), 2U);
  EXPECT_EQ(items[0].title, "Tape");
  EXPECT_EQ(items[0].tag, 4);
  EXPECT_EQ(items[0].imagePath, (bundle.resources() / "Tape.svg").string());
  EXPECT_EQ(items[0].accessibilityLabel, "Tape in words");
  EXPECT_EQ(items[1].title, "RS_Box");  // an identity, not a text
  EXPECT_FALSE(items[1].imagePath);
  EXPECT_EQ(items[1].accessibilityLabel, "");
  EXPECT_EQ(popUp->selectedTag(), 4);
}

TEST_F(InterfaceLoaderTest, AnActionRunsWithItsSender) {
  ASSERT_TRUE(load(toolkit));
  auto* box = owner.outlet<CheckBox>("mBox");
  box->performClick();
  EXPECT_EQ(owner.calls.back(), "run changeOption:");
  EXPECT_EQ(owner.lastSender, static_cast<View*>(box));
}

TEST_F(InterfaceLoaderTest, ADelegateHearsOfTypingWithTheFieldAsObject) {
  ASSERT_TRUE(load(toolkit));
  auto* field = owner.outlet<PlainTextField>("mField");
  ASSERT_TRUE(field);
  field->setStringValue("3");
  EXPECT_TRUE(owner.textChanges.empty());
  field->typeText("12");
  ASSERT_EQ(owner.textChanges.size(), 1U);
  EXPECT_EQ(owner.textChanges[0].name, "NSControlTextDidChangeNotification");
  const View* view = field;
  EXPECT_EQ(owner.textChanges[0].object, NotificationObject(static_cast<const void*>(view)));
}

TEST_F(InterfaceLoaderTest, AnOutletThatTheOwnerRefusesDoesNotStopTheLoading) {
  owner.refusedOutlets = {"mBox"};
  ASSERT_TRUE(load(toolkit));
  EXPECT_FALSE(owner.outlets.contains("mBox"));
  EXPECT_EQ(owner.outlet<View>("kView")->subviews().size(), 6U);
  EXPECT_EQ(owner.calls.back(), "awake");
}

TEST_F(InterfaceLoaderTest, AnActionThatTheOwnerLacksLeavesTheControlWithoutOne) {
  owner.unknownActions = {"changeOption:"};
  ASSERT_TRUE(load(toolkit));
  auto* box = owner.outlet<CheckBox>("mBox");
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOn);
  EXPECT_EQ(owner.calls.back(), "awake");
}

TEST_F(InterfaceLoaderTest, AControlThatTheToolkitCannotMakeIsLeftOut) {
  PoorToolkit poor;
  ASSERT_TRUE(load(poor));
  EXPECT_FALSE(owner.outlets.contains("mStepper"));
  EXPECT_EQ(owner.outlet<View>("kView")->subviews().size(), 5U);
  EXPECT_TRUE(owner.outlet<CheckBox>("mBox"));
  EXPECT_EQ(owner.calls.back(), "awake");
}

TEST_F(InterfaceLoaderTest, WithoutATopLevelViewNothingIsConnected) {
  PoorToolkit poor;
  poor.hasViews = false;
  EXPECT_FALSE(load(poor));
  EXPECT_TRUE(owner.calls.empty());
}

TEST_F(InterfaceLoaderTest, WithoutAToolkitNothingIsConnected) {
  const ToolkitScope scope(nullptr);
  const auto opened = bundle.open();
  EXPECT_FALSE(opened->loadNibNamed("Panel", owner));
  EXPECT_TRUE(owner.calls.empty());
}

TEST_F(InterfaceLoaderTest, AnErrorInTheLastControlConnectsNothing) {
  std::string damaged = kPanel;
  const std::string last = "{{16, 10}, {80, 22}}";
  damaged.replace(damaged.find(last), last.size(), "{{16, 10}, {80, }}");
  bundle.writePropertyList("Resources/Damaged.plist", damaged);
  EXPECT_FALSE(load(toolkit, "Damaged"));
  EXPECT_TRUE(owner.calls.empty());
}

TEST_F(InterfaceLoaderTest, AMissingDamagedOrForeignFileConnectsNothing) {
  bundle.write("Resources/Cut.plist", "<plist><dict>");
  bundle.writePropertyList("Resources/Strings.plist",
                           "<dict><key>a</key><string>b</string></dict>");
  for (const char* name : {"Absent", "Cut", "Strings", "../Info", "", "."}) {
    EXPECT_FALSE(load(toolkit, name)) << name;
  }
  EXPECT_TRUE(owner.calls.empty());
}

TEST_F(InterfaceLoaderTest, WithoutClassesAFieldIsTheToolkitsOwn) {
  ASSERT_TRUE(load(toolkit));
  EXPECT_EQ(owner.outlet<TextField>("mField")->formatter(), nullptr);
  EXPECT_TRUE(log.messages().empty());
}

constexpr char kFieldWithClasses[] = R"(<dict><key>view</key><dict>
  <key>kind</key><string>TextField</string>
  <key>outlet</key><string>mField</string>
  <key>frame</key><string>{{36, 120}, {52, 22}}</string>
  <key>title</key><string>12</string>
  <key>class</key><string>OwnField</string>
  <key>formatter</key><dict>
    <key>class</key><string>OwnFormatter</string>
    <key>maxLength</key><integer>3</integer>
  </dict>
</dict></dict>)";

// One formatter and one client for whoever asks, or none.
class FewClasses : public InterfaceClasses {
 public:
  std::shared_ptr<Formatter> formatter(
      const FormatterDescription& description) const noexcept override {
    asked.push_back(description.className + " " + std::to_string(*description.maxLength));
    object = description.notificationObject;
    return made;
  }
  std::shared_ptr<TextFieldClient> textField(const std::string& className,
                                             TextField& field) const noexcept override {
    asked.push_back(className + " with \"" + field.stringValue() + "\"");
    return knowsFields ? std::make_shared<RecordingClient>(field, events) : nullptr;
  }

  std::shared_ptr<RecordingFormatter> made;
  bool knowsFields = true;
  mutable std::vector<std::string> asked;
  mutable std::vector<std::string> events;
  mutable NotificationObject object;  // of the formatter that was asked for last
};

class InterfaceClassesTest : public InterfaceLoaderTest {
 protected:
  void SetUp() override {
    bundle.writePropertyList("Resources/Panel.plist", kFieldWithClasses);
    owner.classes = &classes;
  }

  FewClasses classes;
};

TEST_F(InterfaceClassesTest, AreInPlaceBeforeTheText) {
  classes.made = std::make_shared<RecordingFormatter>();
  classes.made->showMillimetres();
  ASSERT_TRUE(load(toolkit));
  EXPECT_EQ(classes.asked, (std::vector<std::string>{"OwnFormatter 3", "OwnField with \"\""}));
  auto* field = owner.outlet<PlainTextField>("mField");
  EXPECT_EQ(field->formatter(), classes.made.get());
  EXPECT_EQ(field->stringValue(), "12 mm");
  EXPECT_TRUE(classes.made->asked.empty());
  field->paste("3");
  EXPECT_EQ(classes.events,
            (std::vector<std::string>{"become", "change NSTextDidChangeNotification"}));
  EXPECT_EQ(classes.made->asked.size(), 1U);
  EXPECT_TRUE(log.messages().empty());
}

// A panel of a field and, behind it, a stepper; the field's formatter speaks about that object.
class NotificationObjectsOfAFile : public InterfaceClassesTest {
 protected:
  bool loadAbout(const std::string& object, Toolkit& with) {
    bundle.writePropertyList("Resources/Panel.plist", R"(<dict><key>view</key><dict>
      <key>kind</key><string>View</string>
      <key>outlet</key><string>kView</string>
      <key>frame</key><string>{{0, 0}, {300, 200}}</string>
      <key>subviews</key><array>
        <dict>
          <key>kind</key><string>TextField</string>
          <key>outlet</key><string>mField</string>
          <key>frame</key><string>{{36, 120}, {52, 22}}</string>
          <key>formatter</key><dict>
            <key>class</key><string>OwnFormatter</string>
            <key>maxLength</key><integer>3</integer>
            <key>notificationObject</key><dict>)" + object +
                                                          R"(</dict>
          </dict>
        </dict>
        <dict>
          <key>kind</key><string>Stepper</string>
          <key>outlet</key><string>mStepper</string>
          <key>frame</key><string>{{92, 120}, {22, 24}}</string>
        </dict>
      </array></dict></dict>)");
    classes.made = std::make_shared<RecordingFormatter>();
    return load(with);
  }
  NotificationObject viewAt(const std::string& outlet) const {
    return static_cast<const void*>(owner.outlet<View>(outlet));
  }
};

TEST_F(NotificationObjectsOfAFile, AreViewsOfTheFile) {
  for (const std::string outlet : {"kView", "mField", "mStepper"}) {
    ASSERT_TRUE(loadAbout("<key>outlet</key><string>" + outlet + "</string>", toolkit));
    EXPECT_EQ(classes.object, viewAt(outlet)) << outlet;
  }
  EXPECT_TRUE(log.messages().empty());
}

TEST_F(NotificationObjectsOfAFile, AreTheOwnerOrATextOrNothing) {
  ASSERT_TRUE(loadAbout("<key>owner</key><true/>", toolkit));
  const InterfaceOwner* panel = &owner;
  EXPECT_EQ(classes.object, NotificationObject(static_cast<const void*>(panel)));
  ASSERT_TRUE(loadAbout("<key>text</key><string>tape</string>", toolkit));
  EXPECT_EQ(classes.object, NotificationObject(std::string("tape")));
  bundle.writePropertyList("Resources/Panel.plist", kFieldWithClasses);
  ASSERT_TRUE(load(toolkit));
  EXPECT_EQ(classes.object, NotificationObject());
}

TEST_F(NotificationObjectsOfAFile, ThatTheToolkitCannotMakeAreNamedInTheLog) {
  PoorToolkit poor;
  ASSERT_TRUE(loadAbout("<key>outlet</key><string>mStepper</string>", poor));
  EXPECT_EQ(classes.object, NotificationObject());
  EXPECT_EQ(log.messages(), std::vector<std::string>{"interface file: no view \"mStepper\" for "
                                                     "notifications to be about"});
}

TEST_F(InterfaceClassesTest, ThatTheBundleLacksLeaveTheToolkitsOwnAndALineInTheLog) {
  classes.knowsFields = false;
  ASSERT_TRUE(load(toolkit));
  auto* field = owner.outlet<PlainTextField>("mField");
  EXPECT_EQ(field->formatter(), nullptr);
  EXPECT_EQ(field->stringValue(), "12");
  const std::vector<std::string> expected = {
      "interface file: no class \"OwnFormatter\" for \"mField\"",
      "interface file: no class \"OwnField\" for \"mField\""};
  EXPECT_EQ(log.messages(), expected);
}

TEST_F(InterfaceClassesTest, OfAnOwnerThatHasNoneAreMissing) {
  owner.classes = nullptr;
  ASSERT_TRUE(load(toolkit));
  EXPECT_EQ(owner.outlet<TextField>("mField")->formatter(), nullptr);
  EXPECT_EQ(log.messages().size(), 2U);
}

TEST_F(InterfaceLoaderTest, ControlsStickToTheTopWhenThePanelShrinks) {
  ASSERT_TRUE(load(toolkit));
  owner.outlet<View>("kView")->setFrameSize({300, 150});
  EXPECT_EQ(owner.outlet<CheckBox>("mBox")->frame().origin, (Point{16, 100}));
}

}  // namespace
}  // namespace cutline
