// Finds plug-in bundles (NAME.plugin) in trusted directories and loads their principal classes.
//
// A PPD's *APDialogExtension attribute only selects among the bundles found here, by the name of
// the bundle's directory. A PPD with any of the cut options and no such attribute gets the cut
// panel's bundle too.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Result.h"
#include "host/core/PanelSource.h"

namespace cutline {

class Bundle;

// A bundle whose code is in the process. Never unloaded.
class LoadedBundle : public std::enable_shared_from_this<LoadedBundle> {
 public:
  // Opens each component of BUNDLE.plugin/Contents/... without following links, refuses one that is
  // writable by others or owned by a stranger, and loads exactly the file that was checked. `path`
  // is an absolute path. The error names the component and the reason.
  static Result<std::shared_ptr<LoadedBundle>> load(const std::string& path);

  std::string name() const;  // the directory's name, such as "CutOptions.plugin"
  std::string identifier() const;

  // A new principal object that accepts this system (initWithBundle: answered yes), or null.
  std::shared_ptr<PrintDialogPlugIn> makePrincipalObject() noexcept;

 private:
  LoadedBundle() = default;
  std::string mName;
  std::shared_ptr<Bundle> mBundle;
  const PrincipalClassEntry* mEntry = nullptr;
};

class PluginLoader final : public PanelSource {
 public:
  // Directories in order of preference: a bundle's name is taken from the first that has it.
  explicit PluginLoader(std::vector<std::string> trustedDirectories);

  // Names of the bundles that the PPD selects, loaded or not, in order: what *APDialogExtension
  // names, or the cut panel's bundle when the PPD has cut options.
  static std::vector<std::string> bundleNamesForPpd(const PpdFile& ppd);

  // Loads at the first call for a name. An unknown name is an error.
  Result<std::shared_ptr<LoadedBundle>> bundleNamed(const std::string& name);

  std::vector<std::shared_ptr<PrintDialogPlugIn>> plugInsForPpd(
      const PpdFile& ppd) noexcept override;

  // What went wrong since the last call, one line each, for standard error or the dialog.
  std::vector<std::string> takeProblems();

 private:
  std::vector<std::string> mDirectories;
  std::map<std::string, std::shared_ptr<LoadedBundle>> mLoaded;
  std::vector<std::string> mProblems;
};

}  // namespace cutline
