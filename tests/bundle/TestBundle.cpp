#include "tests/bundle/TestBundle.h"

#include "platform/ports/Controls.h"
#include "platform/ports/Platform.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/TextField.h"
#include "platform/ports/Toolkit.h"

namespace cutline::test {
namespace {

constexpr std::array kBoxes = {
    "mCutMarkChkBx",    "mCutEveryChkBx",    "mAutoCutChkBx",
    "mCutAndEndChkBx",  "mHalfCutChkBx",     "mSpecialTapeChkBx",
    "mChainPrintChkBx", "mMirrorPrintChkBx", "mRemoveBlkSpaceChkBx",
};

// Builds the tree under one root and connects each control as soon as it stands in it.
class PanelBuilder {
 public:
  PanelBuilder(InterfaceOwner& owner, const TestBundle& bundle)
      : mOwner(owner), mBundle(bundle), mToolkit(*currentPlatform().toolkit) {}

  std::shared_ptr<View> build() {
    mRoot = mToolkit.createView({{}, mBundle.panelSize});
    double y = 250;
    for (const char* name : kBoxes) {
      add(name, mToolkit.createCheckBox({{16, y -= 20}, {256, 22}}), "changeOption:");
    }
    addField();
    auto stepper = mToolkit.createStepper({{92, 11}, {22, 24}});
    stepper->setRange(0, 1000);
    add("mCutEveryStpr", stepper, "stepCutEveryValue:");
    add("mCutEveryStr", mToolkit.createLabel({{120, 12}, {150, 18}}), "");
    addPopUp();
    add("mOptionDummyView", mToolkit.createButton({{280, 154}, {264, 84}}), "");
    if (!mBundle.missingOutlets.contains("kPDEView")) mOwner.connectOutlet("kPDEView", mRoot);
    return mRoot;
  }

 private:
  void add(const std::string& name, const std::shared_ptr<Control>& control,
           const std::string& action) {
    if (mBundle.missingOutlets.contains(name)) return;
    control->setAutoresizing(Autoresizing::minYMargin);
    mRoot->addSubview(control);
    mOwner.connectOutlet(name, control);
    if (!action.empty()) control->setAction(mOwner.actionNamed(action));
  }

  void addField() {
    auto field = mToolkit.createTextField({{36, 10}, {52, 22}});
    add("mCutEveryTxBx", field, "");
    const void* object = static_cast<const View*>(field.get());
    field->setTextDidChange([&owner = mOwner, object] {
      owner.controlTextDidChange({"NSControlTextDidChangeNotification", object});
    });
  }

  void addPopUp() {
    auto popUp = mToolkit.createPopUpButton({{280, 244}, {264, 32}});
    for (int tag = 1; const std::string& title : presetTitles())
      popUp->addItem({title, tag++, {}, title});
    add("mOptionPopUpButton", popUp, "changeOptionPopUpButton:");
  }

  InterfaceOwner& mOwner;
  const TestBundle& mBundle;
  Toolkit& mToolkit;
  std::shared_ptr<View> mRoot;
};

}  // namespace

const std::array<std::string, 16>& presetTitles() {
  static const std::array<std::string, 16> titles = {"EveryEndMirrorOffOffOff",
                                                     "EveryEndMirrorOffOnOff",
                                                     "EveryEndMirrorOnOffOff",
                                                     "AHCMOffOffOffOff",
                                                     "AHCMOffOffOnOff",
                                                     "AHCMOffOnOffOff",
                                                     "AHCMOffOnOnOff",
                                                     "AHCMOnOffOffOff",
                                                     "AHCMOnOffOnOff",
                                                     "AHCMOnOnOffOff",
                                                     "AHCMOnOnOnOff",
                                                     "SPMROnOff",
                                                     "CTMROnOffOff",
                                                     "CTMROnOnOff",
                                                     "CTMROffOnOff",
                                                     "CTMROffOffOff"};
  return titles;
}

std::string TestBundle::localizedStringForKey(
    const std::string& key, const std::optional<std::string>& value,
    const std::optional<std::string>& table) const noexcept {
  if (table) return "(other table)";
  const auto found = strings.find(key);
  return found == strings.end() ? value.value_or(key) : found->second;
}

std::optional<std::string> TestBundle::pathForImageResource(
    const std::string& name) const noexcept {
  askedPictures.push_back(name);
  if (missingPictures.contains(name)) return std::nullopt;
  return "/bundle/" + name + ".svg";
}

bool TestBundle::loadNibNamed(const std::string& name, InterfaceOwner& owner) noexcept {
  loadedInterfaces.push_back(name);
  if (interfaceIsMissing) return false;
  lastRoot = PanelBuilder(owner, *this).build();
  owner.awakeFromNib();
  return true;
}

}  // namespace cutline::test
