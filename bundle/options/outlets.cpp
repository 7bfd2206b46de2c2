// Connects the panel with the controls of its interface file.
#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

#include "bundle/options/OptionPDE13_v400_.h"

namespace cutline {
namespace {

// Stores the view in the field; false, and the field stays as it is, when it is of another kind.
template <auto Field>
bool connect(OptionPDE13_v400_& panel, View* view) noexcept {
  using Kind = std::remove_reference_t<decltype(panel.*Field)>;
  const auto control = dynamic_cast<Kind>(view);
  if (control) panel.*Field = control;
  return control != nullptr;
}

template <auto Field>
void forget(OptionPDE13_v400_& panel) noexcept {
  panel.*Field = nullptr;
}

struct Outlet {
  std::string_view name;
  bool (*connect)(OptionPDE13_v400_&, View*) noexcept;
  void (*forget)(OptionPDE13_v400_&) noexcept;
};

template <auto Field>
constexpr Outlet outlet(std::string_view name) noexcept {
  return {name, connect<Field>, forget<Field>};
}

constexpr std::array kOutlets = {
    outlet<&OptionPDE13_v400_::mOptionDummyView>("mOptionDummyView"),
    outlet<&OptionPDE13_v400_::mOptionPopUpButton>("mOptionPopUpButton"),
    outlet<&OptionPDE13_v400_::mCutEveryChkBx>("mCutEveryChkBx"),
    outlet<&OptionPDE13_v400_::mCutAndEndChkBx>("mCutAndEndChkBx"),
    outlet<&OptionPDE13_v400_::mMirrorPrintChkBx>("mMirrorPrintChkBx"),
    outlet<&OptionPDE13_v400_::mAutoCutChkBx>("mAutoCutChkBx"),
    outlet<&OptionPDE13_v400_::mHalfCutChkBx>("mHalfCutChkBx"),
    outlet<&OptionPDE13_v400_::mChainPrintChkBx>("mChainPrintChkBx"),
    outlet<&OptionPDE13_v400_::mSpecialTapeChkBx>("mSpecialTapeChkBx"),
    outlet<&OptionPDE13_v400_::mRemoveBlkSpaceChkBx>("mRemoveBlkSpaceChkBx"),
    outlet<&OptionPDE13_v400_::mCutMarkChkBx>("mCutMarkChkBx"),
    outlet<&OptionPDE13_v400_::mCutEveryTxBx>("mCutEveryTxBx"),
    outlet<&OptionPDE13_v400_::mCutEveryStpr>("mCutEveryStpr"),
    outlet<&OptionPDE13_v400_::mCutEveryStr>("mCutEveryStr"),
};

struct Action {
  std::string_view name;
  void (OptionPDE13_v400_::*run)(View*) noexcept;
};

constexpr std::array kActions = {
    Action{"changeOption:", &OptionPDE13_v400_::changeOption},
    Action{"changeOptionPopUpButton:", &OptionPDE13_v400_::changeOptionPopUpButton},
    Action{"changeCutEveryValue:", &OptionPDE13_v400_::changeCutEveryValue},
    Action{"stepCutEveryValue:", &OptionPDE13_v400_::stepCutEveryValue},
};

template <typename Rows>
auto findNamed(const Rows& rows, const std::string& name) noexcept {
  return std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.name == name; });
}

}  // namespace

bool OptionPDE13_v400_::connectOutlet(const std::string& name,
                                      const std::shared_ptr<View>& view) noexcept {
  const auto outlet = findNamed(kOutlets, name);
  if (outlet == kOutlets.end()) return BasePDE13_v400_::connectOutlet(name, view);
  return outlet->connect(*this, view.get());
}

ActionHandler OptionPDE13_v400_::actionNamed(const std::string& name) noexcept {
  const auto action = findNamed(kActions, name);
  if (action == kActions.end()) return BasePDE13_v400_::actionNamed(name);
  return [this, run = action->run](View* sender) { (this->*run)(sender); };
}

// An interface file without a top-level view leaves controls that nobody owns: they are gone now.
std::shared_ptr<View> OptionPDE13_v400_::panelView() noexcept {
  auto view = BasePDE13_v400_::panelView();
  if (!view) {
    for (const Outlet& each : kOutlets) each.forget(*this);
    mOptionView.reset();
  }
  return view;
}

// The view tree may outlive the panel in the host's hands; its controls must not call a panel that
// is gone. While kPDEView is held, the controls exist.
void OptionPDE13_v400_::detachControls() noexcept {
  if (!kPDEView) return;
  const std::array<Control*, 12> controls = {
      mOptionPopUpButton,   mCutEveryChkBx, mCutAndEndChkBx,  mMirrorPrintChkBx,
      mAutoCutChkBx,        mHalfCutChkBx,  mChainPrintChkBx, mSpecialTapeChkBx,
      mRemoveBlkSpaceChkBx, mCutMarkChkBx,  mCutEveryTxBx,    mCutEveryStpr,
  };
  for (Control* control : controls) {
    if (control) control->setAction({});
  }
  if (mCutEveryTxBx) mCutEveryTxBx->setTextDidChange({});
}

}  // namespace cutline
