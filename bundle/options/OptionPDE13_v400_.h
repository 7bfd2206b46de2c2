// The cut options panel: how labels and tape are cut and printed. Its nine options, each a PPD
// option with a check box, are described once, in option_model.h; the bodies stand in files by
// subject:
//   OptionPDE13_v400_.cpp      creation, keywords, what the host reports
//   outlets.cpp                the interface file's outlets and actions
//   CUTOPTION_initialize.cpp   first state of the controls, enabling rules
//   CUTOPTION_Save.cpp         controls to PPD choices
//   CUTOPTION_IBAction.cpp     what the user does, paper changes
//   cut_every_count.cpp        the number of labels between two cuts
//   layout.cpp, refresh.cpp, summary.cpp
#pragma once

#include <cups/ppd.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "bundle/plugin/BasePDE13_v400_.h"
#include "bundle/ppd/PDEChoice.h"
#include "bundle/ppd/print_session.h"
#include "bundle/preview/OptionView13_v400_.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/TextField.h"

namespace cutline {

struct OptionRow;

class OptionPDE13_v400_ : public BasePDE13_v400_ {
 public:
  OptionPDE13_v400_() noexcept = default;
  // dealloc, finalize
  ~OptionPDE13_v400_() override;

  std::string description() const noexcept override {
    return describedAs("OptionPDE13_v400_", this);
  }

  // initWithCallback:andBundle:  Always the panel itself; when the root initialiser refused,
  // nothing of the panel is set up.
  OptionPDE13_v400_* initWithCallback(const std::shared_ptr<PDEPluginCallback13_v400_>& callback,
                                      const std::shared_ptr<Bundle>& bundle) noexcept override;

  // The host's panel contract.
  std::shared_ptr<View> panelView() noexcept override;
  // The first question for the keywords saves all nine options and fixes
  // the list.
  std::shared_ptr<const KeywordList> supportedPPDOptionKeys() noexcept override;
  void printWindowWillClose() noexcept override;
  bool shouldPrint() noexcept override;
  bool shouldShowHelp() noexcept override;
  // Sets the option's selection; refreshes no control.
  void PPDOptionKeyValueDidChange(const std::optional<std::string>& key,
                                  const std::optional<std::string>& ppdChoice) noexcept override;
  std::shared_ptr<SummaryInfo> summaryInfo() noexcept override;

  // Hooks of the base panel.
  void initSetTitleTexts() noexcept override {}
  void initUI() noexcept override;
  void getValuesFromKey() noexcept override {}
  void setValuesToKey() noexcept override;
  void setPDEItems() noexcept override;
  void setPDEItems2() noexcept override;
  void updateMarkedSelections(std::uint32_t item) noexcept override;
  void updateUIItem(std::uint32_t item) noexcept override;
  void tabView(View* tabView,
               View* didSelectTabViewItem) noexcept;  // tabView:didSelectTabViewItem:

  // The interface file's owner.
  bool connectOutlet(const std::string& name, const std::shared_ptr<View>& view) noexcept override;
  ActionHandler actionNamed(const std::string& name) noexcept override;
  void controlTextDidChange(const Notification& notification) noexcept override;
  void awakeFromNib() noexcept override;

  // CUTOPTION_initialize
  void initializeUI_OtherStr() noexcept;
  void initializeUI_CutLabel() noexcept;
  void initializeUI_CutAtEnd() noexcept;
  void initializeUI_Mirror() noexcept;
  void initializeUI_AutoCut() noexcept;
  void initializeUI_HalfCut() noexcept;
  void initializeUI_ChainPrint() noexcept;
  void initializeUI_SpecialTape() noexcept;
  void initializeUI_RemoveBlkSpace() noexcept;
  void initializeUI_CutMark() noexcept;
  // Applies the three enabling rules: cut-every group, special tape, paper.
  void enabledCheck_OP() noexcept;
  void setTapeState(std::int32_t state) noexcept { mTapeState = state; }  // setTapeState:
  std::int32_t getTapeState() const noexcept { return mTapeState; }

  // CUTOPTION_Save: each has the host mark one choice of its option; what is missing is skipped.
  void saveSetting_CutLabel() noexcept;
  void saveSetting_CutAtEnd() noexcept;
  void saveSetting_Mirror() noexcept;
  void saveSetting_AutoCut() noexcept;
  void saveSetting_HalfCut() noexcept;
  void saveSetting_ChainPrint() noexcept;
  void saveSetting_SpecialTape() noexcept;
  void saveSetting_RemoveBlkSpace() noexcept;
  void saveSetting_CutMark() noexcept;
  // indexForSaveAutoChain:  The control's state; 0 while special tape is on, or for a control
  // without a state.
  std::int32_t indexForSaveAutoChain(const Control* control) const noexcept;

  // CUTOPTION_IBAction
  void changeOption(View* sender) noexcept;             // changeOption:
  void changeOptionPopUpButton(View* sender) noexcept;  // changeOptionPopUpButton:
  void changeCutEveryValue(View* sender) noexcept;      // changeCutEveryValue:
  // stepCutEveryValue:  The stepper's arrows. Where the PPD's numbers are not consecutive, which
  // changeCutEveryValue: counts on, they lead to the neighbouring choice.
  void stepCutEveryValue(View* sender) noexcept;
  // The tag of the preset that fits the boxes as they are, 1 to 16.
  virtual int targetPopUpButtonTag() const noexcept;
  // checkChangeSettingWhenPageSizeChanged:
  void checkChangeSettingWhenPageSizeChanged(const Notification& notification) noexcept;

  // The fields, in the order of the platform's class. Controls belong to the view tree under
  // kPDEView; one that the interface file lacks is null. An option that the PPD lacks has no record
  // and no list; a selection is an element of its option's list, or null until read.
  std::int32_t mTapeState = 0;
  Button* mOptionDummyView = nullptr;  // null again once the preview has taken its place
  PopUpButton* mOptionPopUpButton = nullptr;
  CheckBox* mCutEveryChkBx = nullptr;
  CheckBox* mCutAndEndChkBx = nullptr;
  CheckBox* mMirrorPrintChkBx = nullptr;
  CheckBox* mAutoCutChkBx = nullptr;
  CheckBox* mHalfCutChkBx = nullptr;
  CheckBox* mChainPrintChkBx = nullptr;
  CheckBox* mSpecialTapeChkBx = nullptr;
  CheckBox* mRemoveBlkSpaceChkBx = nullptr;
  CheckBox* mCutMarkChkBx = nullptr;
  TextField* mCutEveryTxBx = nullptr;
  Stepper* mCutEveryStpr = nullptr;
  Label* mCutEveryStr = nullptr;
  std::unique_ptr<OptionView13_v400_> mOptionView;
  std::unique_ptr<ChoiceList> mCutEvery_Choices;
  std::unique_ptr<ChoiceList> mCutEnd_Choices;
  std::unique_ptr<ChoiceList> mMirror_Choices;
  std::unique_ptr<ChoiceList> mAutoCut_Choices;
  std::unique_ptr<ChoiceList> mHalfCut_Choices;
  std::unique_ptr<ChoiceList> mChainPrint_Choices;
  std::unique_ptr<ChoiceList> mSpecialTape_Choices;
  std::unique_ptr<ChoiceList> mRemoveBlkSpace_Choices;
  std::unique_ptr<ChoiceList> mCutMark_Choices;
  ppd_option_t* mCutEvery_Option = nullptr;
  ppd_option_t* mCutEnd_Option = nullptr;
  ppd_option_t* mMirror_Option = nullptr;
  ppd_option_t* mAutoCut_Option = nullptr;
  ppd_option_t* mHalfCut_Option = nullptr;
  ppd_option_t* mChainPrint_Option = nullptr;
  ppd_option_t* mSpecialTape_Option = nullptr;
  ppd_option_t* mRemoveBlkSpace_Option = nullptr;
  ppd_option_t* mCutMark_Option = nullptr;
  PDEChoice* mCutEvery_Selection = nullptr;
  PDEChoice* mCutEnd_Selection = nullptr;
  PDEChoice* mMirror_Selection = nullptr;
  PDEChoice* mAutoCut_Selection = nullptr;
  PDEChoice* mHalfCut_Selection = nullptr;
  PDEChoice* mChainPrint_Selection = nullptr;
  PDEChoice* mSpecialTape_Selection = nullptr;
  PDEChoice* mRemoveBlkSpace_Selection = nullptr;
  // The choice of LxAutoTapeCut as the cut-every box shows it, apart from mAutoCut_Selection.
  PDEChoice* mAutoCut_CutEvery_Selection = nullptr;
  PDEChoice* mCutMark_Selection = nullptr;
  std::uint8_t usb_dec = 0;              // 1 for a printer on USB; nothing reads it
  float choice_PaperSize = 0;            // kept for the class's shape; unused
  std::uint8_t column_dec = 0;           // likewise, 0
  std::uint8_t set_formatSetting = 0;    // 1 once initUI has set up the controls
  std::uint8_t mAutoCutHideKey_dec = 0;  // 1 when the PPD says that the auto-cut box is not hidden
  bool checkValues_dec = false;          // true from creation on; nothing reads it

 private:
  // OptionPDE13_v400_.cpp
  void clearState() noexcept;
  void readUSBFlag() noexcept;
  void loadOption(const OptionRow& row) noexcept;
  void readAutoCutHideKey() noexcept;
  void detachControls() noexcept;

  // The tape facts of the dialog as it is now.
  TapeInfo currentTapeInfo() const noexcept;
  bool markAutoCutOffOnHSMedia() noexcept;
  // The localized text that the option's own title keys; without such a title the fallback key's.
  std::string titleOfOption(const OptionRow& row, const char* fallbackKey) const noexcept;

  // CUTOPTION_initialize.cpp
  void initializeCheckBox(const OptionRow& row) noexcept;
  void setTitleAndDefault(const OptionRow& row) noexcept;
  void enableCutEveryGroup() noexcept;
  void enableBesideSpecialTape() noexcept;
  void disableUnderSpecialTape() noexcept;
  void applyPaperRule() noexcept;
  void refreshTapeState() noexcept;

  // CUTOPTION_Save.cpp
  void saveOption(const OptionRow& row) noexcept;
  std::int64_t indexToSave(const OptionRow& row) const noexcept;
  std::int64_t markedOrDefaultIndex(const ChoiceList* choices, const char* keyword) const noexcept;
  void saveAutoCutWithCutEvery() noexcept;
  void tellHost(const char* keyword, const std::optional<std::string>& choice) noexcept;

  // CUTOPTION_IBAction.cpp
  void warnOfAutoCutOnHSMedia() noexcept;

  // layout.cpp
  void dressPresets() noexcept;
  PopUpItem dressedForRoll(PopUpItem item) noexcept;
  PopUpItem dressedForTape(PopUpItem item) noexcept;

  // cut_every_count.cpp
  void refreshCutEvery() noexcept;
  // The choice at the position in field and stepper.
  void showCount(std::int64_t position) noexcept;
  void showInStepper(int count, std::int64_t position) noexcept;
  void showSavedCount() noexcept;

  // refresh.cpp
  void readMarkedChoice(const OptionRow& row, PDEChoice* OptionPDE13_v400_::*selection) noexcept;
  void refreshCheckBox(const OptionRow& row) noexcept;
  void selectPresetOfBoxes() noexcept;
  void setBoxesFromPopUp() noexcept;

  // summary.cpp
  bool hasSummaryLine(const OptionRow& row) const noexcept;
  std::string summaryValue(const OptionRow& row) noexcept;
};

}  // namespace cutline
