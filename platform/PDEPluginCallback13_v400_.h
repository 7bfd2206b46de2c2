// The host's callback object, through which panels reach the print job. Implemented by the host and
// by tests.
#pragma once

#include <optional>
#include <string>

#include "platform/Printing.h"

struct ppd_file_s;

namespace cutline {

class PDEPluginCallback13_v400_ {
 public:
  virtual ~PDEPluginCallback13_v400_();

  // Borrowed, all of them; each may be null.
  virtual PMPrintSession printSession() noexcept = 0;
  virtual PMPrintSettings printSettings() noexcept = 0;
  virtual PMPageFormat pageFormat() noexcept = 0;
  virtual cutline::PMPrinter PMPrinter() noexcept = 0;
  virtual ppd_file_s* ppdFile() noexcept = 0;

  // willChangePPDOptionKeyValue:ppdChoice:  Marks the choice for the job, on behalf of the user.
  // Without a choice nothing is marked.
  virtual void willChangePPDOptionKeyValue(
      const std::string& key, const std::optional<std::string>& ppdChoice) noexcept = 0;

  // A host that does not lay panels out again answers false and is never told.
  virtual bool respondsToPanelViewDidResize() const noexcept = 0;
  virtual void panelViewDidResize() noexcept = 0;
};

}  // namespace cutline
