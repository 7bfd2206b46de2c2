// Where the print model gets the plug-ins whose panels it shows. Implemented by PluginLoader (real
// bundles) and by tests.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/PrintDialogPlugIn.h"

namespace cutline {

class PpdFile;

class PanelSource {
 public:
  PanelSource() = default;
  PanelSource(const PanelSource&) = delete;
  PanelSource& operator=(const PanelSource&) = delete;
  virtual ~PanelSource();

  // A new principal object for each bundle whose panels the printer of this PPD gets; an empty list
  // when no bundle fits. A pointer keeps whatever the object needs (its bundle) alive.
  virtual std::vector<std::shared_ptr<PrintDialogPlugIn>> plugInsForPpd(
      const PpdFile& ppd) noexcept = 0;
};

}  // namespace cutline
