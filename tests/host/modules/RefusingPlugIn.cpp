// A plug-in that refuses every system.
#include <new>

#include "platform/ports/PrintDialogPlugIn.h"

namespace {

class PlugIn final : public cutline::PrintDialogPlugIn {
 public:
  bool initWithBundle(cutline::Bundle*) noexcept override { return false; }
  std::shared_ptr<cutline::PanelList> PDEPanelsForType(
      const std::string&,
      const std::shared_ptr<cutline::PDEPluginCallback13_v400_>&) noexcept override {
    return nullptr;
  }
};

cutline::PrintDialogPlugIn* create() noexcept { return new (std::nothrow) PlugIn; }
void destroy(cutline::PrintDialogPlugIn* plugIn) noexcept { delete plugIn; }

}  // namespace

extern "C" __attribute__((visibility("default"))) const cutline::PrincipalClassEntry*
CutlinePrincipalClass_TestPlugIn() {
  static const cutline::PrincipalClassEntry entry{cutline::kPlugInAbiVersion, create, destroy};
  return &entry;
}
