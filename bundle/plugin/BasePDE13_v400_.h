// What every panel of the bundle has in common: the host's panel contract with its defaults, what
// the host's callback object gives, and choice lookup and marking. Concrete panels fill in the
// hooks.
#pragma once

#include <cups/ppd.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "bundle/format/Describable.h"
#include "bundle/ppd/PDEChoice.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/Interface.h"
#include "platform/ports/PrintDialogPanel.h"
#include "platform/ports/Printing.h"

namespace cutline {

class Bundle;

class BasePDE13_v400_ : public PrintDialogPanel, public InterfaceOwner, public Describable {
 public:
  BasePDE13_v400_() noexcept = default;
  // dealloc, finalize
  ~BasePDE13_v400_() override;

  std::string description() const noexcept override { return describedAs("BasePDE13_v400_", this); }

  // The root class's initialiser: the object itself, or null when it refuses to be made.
  virtual BasePDE13_v400_* init() noexcept { return this; }
  // initWithCallback:andBundle:  The panel; null when the root initialiser refused. The callback
  // and the bundle are retained, what the callback gives is borrowed.
  virtual BasePDE13_v400_* initWithCallback(
      const std::shared_ptr<PDEPluginCallback13_v400_>& callback,
      const std::shared_ptr<Bundle>& bundle) noexcept;

  // The host's panel contract.
  std::shared_ptr<View> panelView() noexcept override;
  std::string panelName() noexcept override;
  std::string panelKind() noexcept override;
  std::shared_ptr<const KeywordList> supportedPPDOptionKeys() noexcept override;
  void printWindowWillClose() noexcept override;
  void willShow() noexcept override;
  bool shouldHide() noexcept override;
  bool shouldPrint() noexcept override;
  bool shouldShowHelp() noexcept override;
  void PPDOptionKeyValueDidChange(const std::optional<std::string>& key,
                                  const std::optional<std::string>& ppdChoice) noexcept override;
  bool restoreValuesAndReturnError(std::string* error) noexcept override;
  bool saveValuesAndReturnError(std::string* error) noexcept override;
  virtual void updateUI() noexcept;
  std::shared_ptr<SummaryInfo> summaryInfo() noexcept override;

  // Hooks of the concrete panel. An item is a bit set naming groups of controls.
  virtual void initSetTitleTexts() noexcept {}
  virtual void initUI() noexcept {}
  virtual void getValuesFromKey() noexcept {}
  virtual void setValuesToKey() noexcept {}
  virtual void setPDEItems() noexcept {}
  virtual void setPDEItems2() noexcept {}
  virtual void updateUIItem(std::uint32_t item) noexcept;             // updateUIItem:
  virtual void updateMarkedSelections(std::uint32_t item) noexcept;   // updateMarkedSelections:
  virtual std::int64_t indexForSummary(std::uint32_t item) noexcept;  // indexForSummary:

  // The value of the PPD's "FileVersion"; nothing without a PPD or the attribute.
  std::optional<std::string> fileVerString() const noexcept;
  // Whether the printer belongs to the continuous-roll label family: the PPD's "LxTapeType" is
  // "WN".
  bool isWNPrinter() const noexcept;

  // selectionForItem:key:choices:itemType:  Has the host mark the choice at the index, reads the
  // item's selections back and answers the choice. Null, and nothing marked, without a list or when
  // the index is outside it (a negative one included).
  PDEChoice* selectionForItem(std::int64_t index, const std::string& key, const ChoiceList* choices,
                              std::uint32_t itemType) noexcept;
  // indexOfMarkedOption:forKey:  The position of the choice that the PPD marks for the keyword; -1
  // when it marks none, 0 when the list is absent or empty or lacks the choice.
  std::int64_t indexOfMarkedOption(const ChoiceList* choices,
                                   const std::string& key) const noexcept;
  // indexOfDefaultOption:  -1 when no element is the default; 0 for an absent or empty list.
  std::int64_t indexOfDefaultOption(const ChoiceList* choices) const noexcept;

  // setSupportedOptions:
  void setSupportedOptions(const std::shared_ptr<KeywordList>& options) noexcept;
  const std::shared_ptr<KeywordList>& supportedOptions() const noexcept;

  // setViewFrameSize:  Gives the panel's view this size, in points, and tells the host, at once
  // when its window is tall enough, else as soon as it has grown. Does nothing when the host
  // doesn't listen.
  void setViewFrameSize(const Size& size) noexcept;
  // dialogDidExpand:
  void dialogDidExpand(const Notification& notification) noexcept;

  // setDefaultChoices:choices:cStrKey:nStrKey:  Has the host mark the option's default when nothing
  // is marked for it. An option without a default, or without choices, is left unmarked.
  void setDefaultChoices(ppd_option_t* option, const ChoiceList* choices, const char* cStrKey,
                         const std::string& nStrKey) noexcept;

  // The interface file's owner.
  bool connectOutlet(const std::string& name, const std::shared_ptr<View>& view) noexcept override;
  ActionHandler actionNamed(const std::string& name) noexcept override;
  const InterfaceClasses* interfaceClasses() const noexcept override;
  void controlTextDidChange(const Notification& notification) noexcept override;
  void awakeFromNib() noexcept override {}

  // The fields, in the order of the platform's class. They are public for the bundle's own tables
  // and tests; a host sees only PrintDialogPanel.
  std::shared_ptr<PDEPluginCallback13_v400_> pdePluginCallbackObject;
  std::shared_ptr<View> kPDEView;
  std::optional<std::string> thePDEName;
  std::shared_ptr<Bundle> nsPDEBundle;
  ppd_file_t* ppd = nullptr;
  PMPrintSession printSession = nullptr;
  PMPrintSettings pmPrintSettings = nullptr;
  void* printSettings = nullptr;
  void* formatSettings = nullptr;
  PMPrinter printer = nullptr;
  char deviceURI[256] = {};  // in the system encoding; empty when unknown or over 254 bytes
  std::shared_ptr<KeywordList> mSupportedOptions;
  std::int32_t mLoadedNibFlg = 0;      // kept for the class's shape; nothing reads or writes it
  std::int32_t mFormattedItemFlg = 0;  // likewise

 protected:
  // The bundle's text for a key of its default table; the key itself without a bundle.
  std::string localizedString(const std::string& key) const noexcept;

 private:
  void takeFromCallback() noexcept;
  void takeDeviceURI() noexcept;
  NotificationObject viewAsNotificationObject() const noexcept;
};

}  // namespace cutline
