// One damaged file of the panel's bundle: its identity, its interface, a string table or a picture.
// The panel is then made, shown, clicked and drawn with the others as they are.
#include <filesystem>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "host/core/HostPlatform.h"
#include "plain/PlainToolkit.h"
#include "plain/PlainView.h"
#include "plain/RecordingDrawingContext.h"
#include "platform/lib/DirectoryBundle.h"
#include "tests/fuzz/Input.h"
#include "tests/support/PpdText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestCallback.h"

namespace {

using namespace cutline;

constexpr const char* kFiles[] = {"Info.plist", "Resources/OptionPDE.plist",
                                  "Resources/en.lproj/Localizable.strings",
                                  "Resources/AHCMOffOffOffOff.svg"};

// A bundle's folder, of the built one's files.
class BundleFolder {
 public:
  BundleFolder() {
    std::filesystem::copy(CUTLINE_BUILD_DIR "/lib/cutline/plugins/CutOptions.plugin",
                          mFolder / "CutOptions.plugin", std::filesystem::copy_options::recursive);
    for (const char* file : kFiles) mWhole.push_back(test::contentsOf(path(file)));
  }

  std::string path() const { return mFolder / "CutOptions.plugin"; }
  void damage(std::size_t file, const std::string& bytes) {
    test::writeFile(path(kFiles[file]), bytes);
  }
  void mend(std::size_t file) { damage(file, mWhole[file]); }

 private:
  std::string path(const char* file) const { return path() + "/Contents/" + file; }

  test::TemporaryFolder mFolder;
  std::vector<std::string> mWhole;
};

void usePanel(const std::shared_ptr<Bundle>& bundle) {
  const test::OpenPpd ppd = test::allNine().open();
  const auto callback = std::make_shared<test::TestCallback>();
  callback->ppd = ppd.get();
  OptionPDE13_v400_ panel;
  panel.initWithCallback(callback, bundle);
  panel.panelName();
  panel.supportedPPDOptionKeys();
  const std::shared_ptr<View> view = panel.panelView();
  panel.willShow();
  panel.restoreValuesAndReturnError(nullptr);
  for (const OptionRow& row : kOptions)
    if (CheckBox* box = panel.*row.checkBox; box != nullptr) box->performClick();
  panel.summaryInfo();
  if (panel.mOptionView == nullptr || panel.mOptionView->nativeView() == nullptr) return;
  RecordingDrawingContext context;
  dynamic_cast<PlainCustomView&>(*panel.mOptionView->nativeView()).draw(context);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static BundleFolder folder;
  fuzz::Input input(data, size);
  const std::size_t file = input.below(std::size(kFiles));
  folder.damage(file, input.rest());
  PlainToolkit toolkit;
  const HostPlatform platform(toolkit);
  if (const auto bundle = DirectoryBundle::open(folder.path())) usePanel(bundle);
  folder.mend(file);
  return 0;
}
