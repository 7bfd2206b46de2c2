// What the program and its dialog module (cutline-dialog.so, loaded on demand) agree on.
#pragma once

#include "host/core/CommandLine.h"

namespace cutline {

class Installation;
class PluginLoader;

// Everything is borrowed and outlives the call.
struct DialogRequest {
  const CommandLine* commandLine;    // command is `dialog` or `snapshot`
  PluginLoader* plugIns;             // the PanelSource for the PrintModel
  const Installation* installation;  // where the document module is
};

inline constexpr char kDialogModuleName[] = "cutline-dialog.so";
inline constexpr char kDialogRunSymbol[] = "CutlineRunDialog";

extern "C" {
// Exported by the module. Makes the toolkit and its platform, shows the dialog (or takes its
// snapshot), prints what the user asked for and answers the program's exit status. An error that
// ends the dialog before it is shown goes to standard error as one line "cutline: ...". Throws
// nothing.
int CutlineRunDialog(const cutline::DialogRequest& request) noexcept;
}

}  // namespace cutline
