#include "bundle/options/OptionPDE13_v400_.h"

#include <string_view>

#include "bundle/options/option_model.h"
#include "bundle/options/uri_scheme.h"
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "platform/ports/NotificationCenter.h"

namespace cutline {
namespace {

// The options found before the media's name is looked at; the others follow.
constexpr std::size_t kOptionsBeforeMediaRule = 4;

}  // namespace

OptionPDE13_v400_::~OptionPDE13_v400_() {
  NotificationCenter::defaultCenter().removeObserver(this, kPaperDidChangeNotification, {});
  detachControls();
}

OptionPDE13_v400_* OptionPDE13_v400_::initWithCallback(
    const std::shared_ptr<PDEPluginCallback13_v400_>& callback,
    const std::shared_ptr<Bundle>& bundle) noexcept {
  if (!BasePDE13_v400_::initWithCallback(callback, bundle)) return this;
  clearState();
  readUSBFlag();
  for (const OptionRow& row : kOptions) this->*row.selection = nullptr;
  mAutoCut_CutEvery_Selection = nullptr;
  for (std::size_t i = 0; i < kOptionsBeforeMediaRule; ++i) loadOption(kOptions[i]);
  markAutoCutOffOnHSMedia();
  readAutoCutHideKey();
  for (std::size_t i = kOptionsBeforeMediaRule; i < kOptionCount; ++i) loadOption(kOptions[i]);
  NotificationCenter::defaultCenter().addObserver(
      this,
      [this](const Notification& notification) {
        checkChangeSettingWhenPageSizeChanged(notification);
      },
      kPaperDidChangeNotification, {});
  return this;
}

void OptionPDE13_v400_::clearState() noexcept {
  checkValues_dec = true;
  column_dec = 0;
  set_formatSetting = 0;
  mAutoCutHideKey_dec = 0;
  mTapeState = 0;
  usb_dec = 0;
  mOptionView.reset();
}

void OptionPDE13_v400_::readUSBFlag() noexcept {
  std::optional<std::string> uri;
  const auto callbackPrinter =
      pdePluginCallbackObject ? pdePluginCallbackObject->PMPrinter() : nullptr;
  if (PMPrinterCopyDeviceURI(callbackPrinter, &uri) != noErr || !uri) return;
  const std::string_view scheme = schemeOfURI(*uri);
  if (scheme == "usb" || scheme == "LXKMUSB") usb_dec = 1;
}

void OptionPDE13_v400_::loadOption(const OptionRow& row) noexcept {
  this->*row.option = ppdFindOption(ppd, row.keyword);
  this->*row.choices = PDEUtilsMethod13::arrayFromPPDOption(this->*row.option);
}

TapeInfo OptionPDE13_v400_::currentTapeInfo() const noexcept {
  TapeInfo info;
  PMPrintSettings settings = nullptr;
  PMPageFormat format = nullptr;
  if (pdePluginCallbackObject) {
    settings = pdePluginCallbackObject->printSettings();
    format = pdePluginCallbackObject->pageFormat();
  }
  GetTapeInfo(printSession, settings, format, ppd, &info);
  return info;
}

// Straight in the PPD, not through the host: it follows from the media, it is not the user's wish.
bool OptionPDE13_v400_::markAutoCutOffOnHSMedia() noexcept {
  const TapeInfo info = currentTapeInfo();
  if (!info.paperName || !beginsWithHS(*info.paperName)) return false;
  if (ppd) ppdMarkOption(ppd, rowOf(OptionId::autoCut).keyword, kOff);
  return true;
}

void OptionPDE13_v400_::readAutoCutHideKey() noexcept {
  if (!mAutoCut_Option) return;
  if (PDEUtilsMethod13::isSupportedItem(ppd, "LxAutoCutObjHidden")) mAutoCutHideKey_dec = 1;
}

std::shared_ptr<const KeywordList> OptionPDE13_v400_::supportedPPDOptionKeys() noexcept {
  if (supportedOptions()) return supportedOptions();
  setValuesToKey();
  auto keywords = std::make_shared<KeywordList>();
  setSupportedOptions(keywords);
  for (const OptionRow& row : kOptions) {
    if (!(this->*row.option)) continue;
    keywords->emplace_back(row.keyword);
    // The cut-every box switches automatic cutting, even on a PPD that doesn't offer it.
    if (row.id == OptionId::cutEvery && !mAutoCut_Option) {
      keywords->emplace_back(rowOf(OptionId::autoCut).keyword);
    }
  }
  return keywords;
}

void OptionPDE13_v400_::printWindowWillClose() noexcept {}

bool OptionPDE13_v400_::shouldPrint() noexcept {
  for (const OptionRow& row : kOptions) {
    setDefaultChoices(this->*row.option, (this->*row.choices).get(), row.keyword, row.keyword);
  }
  return BasePDE13_v400_::shouldPrint();
}

bool OptionPDE13_v400_::shouldShowHelp() noexcept { return false; }

void OptionPDE13_v400_::PPDOptionKeyValueDidChange(
    const std::optional<std::string>& key, const std::optional<std::string>& ppdChoice) noexcept {
  if (!key || !ppdChoice) return;
  for (const OptionRow& row : kOptions) {
    if (*key != row.keyword) continue;
    this->*row.selection =
        PDEUtilsMethod13::findChoiceForString(ppdChoice, (this->*row.choices).get());
    return;
  }
}

void OptionPDE13_v400_::initUI() noexcept {
  if (set_formatSetting) return;
  // The initialiser shows the PPD's default, which may be no choice, or not what is saved.
  const ChoiceList* counts = mCutEvery_Choices.get();
  const bool defaultIsSaved =
      indexOfMarkedOption(counts, rowOf(OptionId::cutEvery).keyword) != -1 &&
      indexOfDefaultOption(counts) != -1;
  for (const OptionRow& row : kOptions) (this->*row.initializeUI)();
  setValuesToKey();
  if (!defaultIsSaved) showSavedCount();
  set_formatSetting = 1;
}

void OptionPDE13_v400_::setValuesToKey() noexcept {
  for (const OptionRow& row : kOptions) (this->*row.saveSetting)();
}

void OptionPDE13_v400_::setPDEItems() noexcept {
  for (const OptionRow& row : kOptions) updateUIItem(row.item);
  updateUIItem(kItemOptionPopUp);
}

void OptionPDE13_v400_::setPDEItems2() noexcept {
  for (const OptionRow& row : kOptions) updateMarkedSelections(row.item);
}

void OptionPDE13_v400_::tabView(View* /*tabView*/, View* /*didSelectTabViewItem*/) noexcept {}

std::string OptionPDE13_v400_::titleOfOption(const OptionRow& row,
                                             const char* fallbackKey) const noexcept {
  const auto title = PDEUtilsMethod13::newOptionTitle(ppdFindOption(ppd, row.keyword));
  return localizedString(title.value_or(fallbackKey));
}

}  // namespace cutline
