// A bundle's principal object and the entry point through which the host makes one. Implemented by
// bundles, called by the host's loader.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/ports/PrintDialogPanel.h"

namespace cutline {

class Bundle;
class PDEPluginCallback13_v400_;

using PanelList = std::vector<std::shared_ptr<PrintDialogPanel>>;

// The type identifier of print-dialog panels.
inline constexpr char kPrintDialogPanelType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

class PrintDialogPlugIn {
 public:
  PrintDialogPlugIn() = default;
  PrintDialogPlugIn(const PrintDialogPlugIn&) = delete;
  PrintDialogPlugIn& operator=(const PrintDialogPlugIn&) = delete;
  virtual ~PrintDialogPlugIn();

  // initWithBundle:  False means that the plug-in refuses this system. The bundle is borrowed.
  virtual bool initWithBundle(Bundle* bundle) noexcept = 0;
  // PDEPanelsForType:withHostInfo:  A new list at every call; null when no panel of the
  // print-dialog type could be made; an empty list for other types.
  virtual std::shared_ptr<PanelList> PDEPanelsForType(
      const std::string& type,
      const std::shared_ptr<PDEPluginCallback13_v400_>& hostInfo) noexcept = 0;
};

// Changes whenever a header of platform/ports/ changes what a bundle was compiled against;
// scripts/port-hash notices.
inline constexpr std::uint32_t kPlugInAbiVersion = 6;

// Whoever includes this header has the number in a section of his code's file, once or more often.
// So a host learns it without running any of the code.
inline constexpr char kPlugInAbiSection[] = "cutline_abi";
__attribute__((section("cutline_abi"), used,
               retain)) static constexpr std::uint32_t kCompiledAgainstAbi = kPlugInAbiVersion;

// A bundle exports one C function `const PrincipalClassEntry*()` for each principal class, named
// kPrincipalClassSymbolPrefix followed by the class's name. The host refuses another `abi`,
// in the entry as in the section.
struct PrincipalClassEntry {
  std::uint32_t abi;
  PrintDialogPlugIn* (*create)() noexcept;
  void (*destroy)(PrintDialogPlugIn*) noexcept;
};
inline constexpr char kPrincipalClassSymbolPrefix[] = "CutlinePrincipalClass_";

}  // namespace cutline
