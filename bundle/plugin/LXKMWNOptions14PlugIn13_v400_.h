// The bundle's principal object: says whether the bundle runs on this system and hands out its one
// panel.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bundle/format/Describable.h"
#include "platform/ports/PrintDialogPlugIn.h"

namespace cutline {

class LXKMWNOptions14PlugIn13_v400_ : public PrintDialogPlugIn, public Describable {
 public:
  LXKMWNOptions14PlugIn13_v400_() noexcept = default;
  // dealloc
  ~LXKMWNOptions14PlugIn13_v400_() override = default;

  std::string description() const noexcept override {
    return describedAs("LXKMWNOptions14PlugIn13_v400_", this);
  }

  // Whether the platform is version 10.5 or later. Asked once in a process, then remembered.
  bool runningOnLeopardOrLater() noexcept;
  bool initWithBundle(Bundle* bundle) noexcept override;
  std::shared_ptr<PanelList> PDEPanelsForType(
      const std::string& type,
      const std::shared_ptr<PDEPluginCallback13_v400_>& hostInfo) noexcept override;

  Bundle* pluginBundle = nullptr;   // borrowed
  std::shared_ptr<PanelList> pdes;  // what the last PDEPanelsForType handed out

 protected:
  // A panel set up with the host's callback and the bundle; null when none can be made.
  virtual std::shared_ptr<PrintDialogPanel> newPanel(
      const std::shared_ptr<PDEPluginCallback13_v400_>& hostInfo) noexcept;

 private:
  // A list that a later call replaced isn't released while the plug-in lives: a caller that kept
  // only a panel's address may still use it.
  std::vector<std::shared_ptr<PanelList>> mReplacedLists;
};

}  // namespace cutline
