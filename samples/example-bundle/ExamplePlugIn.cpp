// A bundle with one panel that says hello and changes nothing. A printer gets it whose PPD says
// *APDialogExtension: "Example.plugin".
#include <new>

#include "platform/ports/Controls.h"
#include "platform/ports/Platform.h"
#include "platform/ports/PrintDialogPlugIn.h"
#include "platform/ports/Toolkit.h"

namespace {

using namespace cutline;

class ExamplePanel final : public PrintDialogPanel {
 public:
  std::shared_ptr<View> panelView() noexcept override {
    if (mView) return mView;
    Toolkit& toolkit = *currentPlatform().toolkit;
    mView = toolkit.createView({{0, 0}, {240, 40}});
    const auto label = toolkit.createLabel({{16, 12}, {208, 16}});
    label->setStringValue("Hello, printer");
    mView->addSubview(label);
    return mView;
  }
  std::string panelName() noexcept override { return "Example"; }
  std::string panelKind() noexcept override { return "org.cutline.Example.panel"; }
  std::shared_ptr<const KeywordList> supportedPPDOptionKeys() noexcept override { return nullptr; }
  void printWindowWillClose() noexcept override {}
  void willShow() noexcept override {}
  bool shouldHide() noexcept override { return false; }
  bool shouldPrint() noexcept override { return true; }
  bool shouldShowHelp() noexcept override { return false; }
  void PPDOptionKeyValueDidChange(const std::optional<std::string>&,
                                  const std::optional<std::string>&) noexcept override {}
  bool restoreValuesAndReturnError(std::string*) noexcept override { return true; }
  bool saveValuesAndReturnError(std::string*) noexcept override { return true; }
  std::shared_ptr<SummaryInfo> summaryInfo() noexcept override {
    return std::make_shared<SummaryInfo>(
        SummaryInfo{{kSummaryDisplayOrderKey, std::vector<std::string>{"Greeting"}},
                    {"Greeting", "Hello, printer"}});
  }

 private:
  std::shared_ptr<View> mView;
};

class ExamplePlugIn final : public PrintDialogPlugIn {
 public:
  bool initWithBundle(Bundle* bundle) noexcept override { return bundle != nullptr; }
  std::shared_ptr<PanelList> PDEPanelsForType(
      const std::string& type,
      const std::shared_ptr<PDEPluginCallback13_v400_>&) noexcept override {
    auto panels = std::make_shared<PanelList>();
    if (type == kPrintDialogPanelType) panels->push_back(std::make_shared<ExamplePanel>());
    return panels;
  }
};

PrintDialogPlugIn* create() noexcept { return new (std::nothrow) ExamplePlugIn; }
void destroy(PrintDialogPlugIn* plugIn) noexcept { delete plugIn; }

}  // namespace

// Named after the principal class of Info.plist.
extern "C" __attribute__((visibility("default"))) const PrincipalClassEntry*
CutlinePrincipalClass_ExamplePlugIn() {
  static constexpr PrincipalClassEntry kEntry{kPlugInAbiVersion, create, destroy};
  return &kEntry;
}
