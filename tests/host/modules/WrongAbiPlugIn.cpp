// A plug-in that was made for another version of the platform.
#include "platform/ports/PrintDialogPlugIn.h"

extern "C" __attribute__((visibility("default"))) const cutline::PrincipalClassEntry*
CutlinePrincipalClass_TestPlugIn() {
  static const cutline::PrincipalClassEntry entry{cutline::kPlugInAbiVersion + 1, nullptr, nullptr};
  return &entry;
}
