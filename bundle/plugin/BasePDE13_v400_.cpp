#include "bundle/plugin/BasePDE13_v400_.h"

#include <algorithm>

#include "bundle/ppd/PDEUtilsMethod13.h"
#include "bundle/ppd/text_bytes.h"
#include "bundle/textinput/interface_classes.h"
#include "platform/ports/Bundle.h"
#include "platform/ports/NotificationCenter.h"
#include "platform/ports/Platform.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

constexpr char kPanelKind[] = "org.cutline.printer.cups.pde.OptionPDEKind";
constexpr char kInterfaceFile[] = "OptionPDE";
constexpr char kViewDidUpdateTrackingAreas[] = "NSViewDidUpdateTrackingAreasNotification";

// What the host's window needs around the panel, in points.
constexpr double kRoomAroundPanel = 96.0;

// The longest device URI that is kept, in bytes, without its NUL.
constexpr std::size_t kLongestDeviceURI = 254;

}  // namespace

BasePDE13_v400_::~BasePDE13_v400_() {
  // The dialog may never have grown; the centre must not call a panel that is gone.
  NotificationCenter::defaultCenter().removeObserver(this, kViewDidUpdateTrackingAreas, {});
}

BasePDE13_v400_* BasePDE13_v400_::initWithCallback(
    const std::shared_ptr<PDEPluginCallback13_v400_>& callback,
    const std::shared_ptr<Bundle>& bundle) noexcept {
  if (!init()) return nullptr;
  mSupportedOptions.reset();
  thePDEName.reset();
  ppd = nullptr;
  nsPDEBundle = bundle;
  pdePluginCallbackObject = callback;
  takeFromCallback();
  takeDeviceURI();
  return this;
}

void BasePDE13_v400_::takeFromCallback() noexcept {
  if (!pdePluginCallbackObject) return;
  printSession = pdePluginCallbackObject->printSession();
  pmPrintSettings = pdePluginCallbackObject->printSettings();
  printSettings = pdePluginCallbackObject->printSettings();
  formatSettings = pdePluginCallbackObject->pageFormat();
  printer = pdePluginCallbackObject->PMPrinter();
  ppd = pdePluginCallbackObject->ppdFile();
}

void BasePDE13_v400_::takeDeviceURI() noexcept {
  deviceURI[0] = '\0';
  std::optional<std::string> uri;
  if (PMPrinterCopyDeviceURI(printer, &uri) != noErr || !uri) return;
  const auto bytes = encodedText(*uri, TextEncoding::system);
  if (!bytes || bytes->size() > kLongestDeviceURI) return;
  bytes->copy(deviceURI, bytes->size());
  deviceURI[bytes->size()] = '\0';
}

std::shared_ptr<View> BasePDE13_v400_::panelView() noexcept {
  if (!kPDEView && nsPDEBundle) nsPDEBundle->loadNibNamed(kInterfaceFile, *this);
  return kPDEView;
}

std::string BasePDE13_v400_::panelName() noexcept {
  if (!thePDEName) thePDEName = localizedString("OP_PANEL_NAME");
  return *thePDEName;
}

std::string BasePDE13_v400_::panelKind() noexcept { return kPanelKind; }

std::shared_ptr<const KeywordList> BasePDE13_v400_::supportedPPDOptionKeys() noexcept {
  setValuesToKey();
  return nullptr;
}

void BasePDE13_v400_::printWindowWillClose() noexcept {}

void BasePDE13_v400_::willShow() noexcept {
  initSetTitleTexts();
  initUI();
  updateUI();
}

bool BasePDE13_v400_::shouldHide() noexcept { return true; }

bool BasePDE13_v400_::shouldPrint() noexcept { return true; }

bool BasePDE13_v400_::shouldShowHelp() noexcept { return false; }

void BasePDE13_v400_::PPDOptionKeyValueDidChange(
    const std::optional<std::string>& /*key*/,
    const std::optional<std::string>& /*ppdChoice*/) noexcept {}

bool BasePDE13_v400_::restoreValuesAndReturnError(std::string* /*error*/) noexcept {
  setPDEItems2();
  updateUI();
  return true;
}

bool BasePDE13_v400_::saveValuesAndReturnError(std::string* /*error*/) noexcept {
  setValuesToKey();
  return true;
}

void BasePDE13_v400_::updateUI() noexcept { setPDEItems(); }

std::shared_ptr<SummaryInfo> BasePDE13_v400_::summaryInfo() noexcept { return nullptr; }

void BasePDE13_v400_::updateUIItem(std::uint32_t /*item*/) noexcept {}

void BasePDE13_v400_::updateMarkedSelections(std::uint32_t /*item*/) noexcept {}

std::int64_t BasePDE13_v400_::indexForSummary(std::uint32_t /*item*/) noexcept { return 0; }

std::optional<std::string> BasePDE13_v400_::fileVerString() const noexcept {
  if (!ppd) return std::nullopt;
  return PDEUtilsMethod13::ppdAttrValStr(ppd, "FileVersion");
}

bool BasePDE13_v400_::isWNPrinter() const noexcept {
  if (!ppd) return false;
  return PDEUtilsMethod13::ppdAttrValStr(ppd, "LxTapeType") == "WN";
}

PDEChoice* BasePDE13_v400_::selectionForItem(std::int64_t index, const std::string& key,
                                             const ChoiceList* choices,
                                             std::uint32_t itemType) noexcept {
  if (!choices) return nullptr;
  const auto last = static_cast<std::int32_t>(choices->size()) - 1;
  if (index < 0 || index > last) return nullptr;
  PDEChoice* choice = (*choices)[static_cast<std::size_t>(index)].get();
  if (pdePluginCallbackObject) {
    pdePluginCallbackObject->willChangePPDOptionKeyValue(key, choice->ppdTitle());
  }
  updateMarkedSelections(itemType);
  return choice;
}

std::int64_t BasePDE13_v400_::indexOfMarkedOption(const ChoiceList* choices,
                                                  const std::string& key) const noexcept {
  const ppd_choice_t* marked = ppdFindMarkedChoice(ppd, key.c_str());
  if (!marked) return -1;
  const auto name = decodedText(marked->choice, TextEncoding::ascii);
  if (!name || !choices) return 0;
  const auto found = std::find_if(choices->begin(), choices->end(),
                                  [&](const auto& choice) { return choice->ppdTitle() == name; });
  return found == choices->end() ? 0 : found - choices->begin();
}

std::int64_t BasePDE13_v400_::indexOfDefaultOption(const ChoiceList* choices) const noexcept {
  if (!choices || choices->empty()) return 0;
  const auto found = std::find_if(choices->begin(), choices->end(),
                                  [](const auto& choice) { return choice->isDefaultChoice(); });
  return found == choices->end() ? -1 : found - choices->begin();
}

void BasePDE13_v400_::setSupportedOptions(const std::shared_ptr<KeywordList>& options) noexcept {
  if (options != mSupportedOptions) mSupportedOptions = options;
}

const std::shared_ptr<KeywordList>& BasePDE13_v400_::supportedOptions() const noexcept {
  return mSupportedOptions;
}

NotificationObject BasePDE13_v400_::viewAsNotificationObject() const noexcept {
  if (!kPDEView) return {};
  return static_cast<const void*>(static_cast<const View*>(kPDEView.get()));
}

void BasePDE13_v400_::setViewFrameSize(const Size& size) noexcept {
  if (!pdePluginCallbackObject || !pdePluginCallbackObject->respondsToPanelViewDidResize()) return;
  if (kPDEView) kPDEView->setFrameSize(size);
  const Toolkit* toolkit = currentPlatform().toolkit;
  if (!toolkit || !toolkit->hasKeyWindow()) return;
  if (toolkit->keyWindowFrame().size.height > size.height + kRoomAroundPanel) {
    pdePluginCallbackObject->panelViewDidResize();
    return;
  }
  NotificationCenter::defaultCenter().addObserver(
      this, [this](const Notification& notification) { dialogDidExpand(notification); },
      kViewDidUpdateTrackingAreas, viewAsNotificationObject());
}

void BasePDE13_v400_::dialogDidExpand(const Notification& /*notification*/) noexcept {
  NotificationCenter::defaultCenter().removeObserver(this, kViewDidUpdateTrackingAreas,
                                                     viewAsNotificationObject());
  if (pdePluginCallbackObject) pdePluginCallbackObject->panelViewDidResize();
}

void BasePDE13_v400_::setDefaultChoices(ppd_option_t* option, const ChoiceList* choices,
                                        const char* cStrKey, const std::string& nStrKey) noexcept {
  if (!option) return;
  if (ppdFindMarkedChoice(ppd, cStrKey)) return;
  const std::int64_t index = indexOfDefaultOption(choices);
  if (pdePluginCallbackObject && index >= 0 && index < option->num_choices) {
    pdePluginCallbackObject->willChangePPDOptionKeyValue(
        nStrKey, decodedText(option->choices[index].choice, TextEncoding::utf8));
  }
  // The platform's panels read the list again here and drop it; the panel's own list stays.
  PDEUtilsMethod13::arrayFromPPDOption(option);
}

bool BasePDE13_v400_::connectOutlet(const std::string& name,
                                    const std::shared_ptr<View>& view) noexcept {
  if (name != "kPDEView" || !view) return false;
  kPDEView = view;
  return true;
}

ActionHandler BasePDE13_v400_::actionNamed(const std::string& /*name*/) noexcept { return {}; }

const InterfaceClasses* BasePDE13_v400_::interfaceClasses() const noexcept {
  return &bundleInterfaceClasses();
}

void BasePDE13_v400_::controlTextDidChange(const Notification& /*notification*/) noexcept {}

std::string BasePDE13_v400_::localizedString(const std::string& key) const noexcept {
  if (!nsPDEBundle) return key;
  return nsPDEBundle->localizedStringForKey(key, std::nullopt, std::nullopt);
}

}  // namespace cutline
