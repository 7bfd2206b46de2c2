// The one symbol through which a host finds the principal class.
#include <new>

#include "bundle/plugin/LXKMWNOptions14PlugIn13_v400_.h"

namespace {

cutline::PrintDialogPlugIn* create() noexcept {
  return new (std::nothrow) cutline::LXKMWNOptions14PlugIn13_v400_();
}

void destroy(cutline::PrintDialogPlugIn* plugIn) noexcept { delete plugIn; }

constexpr cutline::PrincipalClassEntry kEntry{cutline::kPlugInAbiVersion, create, destroy};

}  // namespace

extern "C" __attribute__((visibility("default"))) const cutline::PrincipalClassEntry*
CutlinePrincipalClass_LXKMWNOptions14PlugIn13_v400_() noexcept {
  return &kEntry;
}
