#include "bundle/plugin/LXKMWNOptions14PlugIn13_v400_.h"

#include <cstdint>

#include "bundle/options/OptionPDE13_v400_.h"
#include "platform/ports/Bundle.h"
#include "platform/ports/System.h"

namespace cutline {
namespace {

// The answer of the first check in this process.
bool sVersionIsChecked = false;
bool sRunsOnLeopardOrLater = false;

bool checkVersion() noexcept {
  std::int32_t major = 10;
  std::int32_t minor = 4;
  std::int32_t bugFix = 0;
  Gestalt(gestaltSystemVersionMajor, &major);
  Gestalt(gestaltSystemVersionMinor, &minor);
  Gestalt(gestaltSystemVersionBugFix, &bugFix);  // asked as the platform's panels do; never decides
  return major >= 11 || (major == 10 && minor > 4);
}

}  // namespace

bool LXKMWNOptions14PlugIn13_v400_::runningOnLeopardOrLater() noexcept {
  if (sVersionIsChecked) return sRunsOnLeopardOrLater;
  sRunsOnLeopardOrLater = checkVersion();
  sVersionIsChecked = true;
  return sRunsOnLeopardOrLater;
}

bool LXKMWNOptions14PlugIn13_v400_::initWithBundle(Bundle* bundle) noexcept {
  if (!runningOnLeopardOrLater()) return false;
  pluginBundle = bundle;
  return true;
}

std::shared_ptr<PanelList> LXKMWNOptions14PlugIn13_v400_::PDEPanelsForType(
    const std::string& type, const std::shared_ptr<PDEPluginCallback13_v400_>& hostInfo) noexcept {
  if (pdes) mReplacedLists.push_back(pdes);
  pdes = std::make_shared<PanelList>();
  if (type != kPrintDialogPanelType) return pdes;
  if (auto panel = newPanel(hostInfo)) pdes->push_back(std::move(panel));
  if (pdes->empty()) pdes.reset();
  return pdes;
}

std::shared_ptr<PrintDialogPanel> LXKMWNOptions14PlugIn13_v400_::newPanel(
    const std::shared_ptr<PDEPluginCallback13_v400_>& hostInfo) noexcept {
  auto panel = std::make_shared<OptionPDE13_v400_>();
  const auto bundle = pluginBundle ? pluginBundle->weak_from_this().lock() : nullptr;
  return panel->initWithCallback(hostInfo, bundle) ? panel : nullptr;
}

}  // namespace cutline
