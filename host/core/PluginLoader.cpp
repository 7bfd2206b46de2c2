#include "host/core/PluginLoader.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "cups/PpdFile.h"
#include "host/core/CutRules.h"
#include "host/core/ElfFile.h"
#include "host/core/TrustedFile.h"
#include "platform/lib/DirectoryBundle.h"

namespace cutline {

namespace {

constexpr char kExtensionAttribute[] = "APDialogExtension";
constexpr char kCutPanelBundle[] = "CutOptions.plugin";
constexpr char kBundleSuffix[] = ".plugin";
constexpr char kExecutableDirectory[] = "Linux-" CUTLINE_PROCESSOR;

using EntryFunction = const PrincipalClassEntry* (*)();

// The file that holds the bundle's code, through directories that nobody else can change.
Result<FileDescriptor> openCode(const std::string& bundlePath) {
  const auto path = std::filesystem::path(bundlePath);
  Result<FileDescriptor> directory = openTrusted(path.parent_path().string(), FileKind::directory);
  if (directory)
    directory = belowTrustedFolders(std::move(*directory), path.parent_path().string());
  std::string shown = path.parent_path().string();
  for (const std::string& name : {path.filename().string(), std::string("Contents")}) {
    if (!directory) return directory;
    directory = openTrustedIn(*directory, name, FileKind::directory, shown);
    shown += "/" + name;
  }
  if (!directory) return directory;
  const auto info = openTrustedIn(*directory, "Info.plist", FileKind::regular, shown);
  if (!info) return info.error();
  const auto resources = openTrustedIn(*directory, "Resources", FileKind::directory, shown);
  if (!resources) return resources.error();
  directory = openTrustedIn(*directory, kExecutableDirectory, FileKind::directory, shown);
  if (!directory) return directory;
  return openTrustedIn(*directory, path.stem().string() + ".so", FileKind::regular,
                       shown + "/" + kExecutableDirectory);
}

// Loads the very file that was checked. The descriptor stays open for good: the dynamic loader
// knows the library by this name, and would take another file with the same number for this one.
Result<void*> loadCode(FileDescriptor code, const std::string& bundlePath) {
  const std::string reason = reasonAgainstCode(code);
  if (!reason.empty()) return Error{bundlePath + ": its code " + reason};
  const std::string name = "/proc/self/fd/" + std::to_string(code.release());
  void* library = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return Error{bundlePath + ": " + dlerror()};
  return library;
}

Result<const PrincipalClassEntry*> findEntry(void* library, const std::string& className,
                                             const std::string& bundlePath) {
  const std::string symbol = kPrincipalClassSymbolPrefix + className;
  const auto function = reinterpret_cast<EntryFunction>(dlsym(library, symbol.c_str()));
  if (function == nullptr) return Error{bundlePath + ": has no principal class " + className};
  const PrincipalClassEntry* entry = function();
  if (entry == nullptr || entry->abi != kPlugInAbiVersion)
    return Error{bundlePath + ": was made for another version of this program"};
  return entry;
}

bool isBundleName(const std::string& name) {
  return name.size() > sizeof kBundleSuffix - 1 && name.ends_with(kBundleSuffix) &&
         name.find('/') == std::string::npos;
}

}  // namespace

PanelSource::~PanelSource() = default;

Result<std::shared_ptr<LoadedBundle>> LoadedBundle::load(const std::string& path) {
  Result<FileDescriptor> code = openCode(path);
  if (!code) return code.error();
  const std::shared_ptr<LoadedBundle> loaded(new LoadedBundle);
  loaded->mName = std::filesystem::path(path).filename().string();
  loaded->mBundle = DirectoryBundle::open(path);
  if (loaded->mBundle == nullptr) return Error{path + ": is no bundle: its Info.plist is damaged"};
  const Result<void*> library = loadCode(std::move(*code), path);
  if (!library) return library.error();
  const auto entry = findEntry(*library, loaded->mBundle->principalClassName(), path);
  if (!entry) return entry.error();
  loaded->mEntry = *entry;
  return loaded;
}

std::string LoadedBundle::name() const { return mName; }

std::string LoadedBundle::identifier() const { return mBundle->bundleIdentifier(); }

std::shared_ptr<PrintDialogPlugIn> LoadedBundle::makePrincipalObject() noexcept {
  PrintDialogPlugIn* object = mEntry->create();
  if (object == nullptr) return nullptr;
  std::shared_ptr<PrintDialogPlugIn> plugIn(
      object,
      [self = shared_from_this()](PrintDialogPlugIn* gone) { self->mEntry->destroy(gone); });
  return plugIn->initWithBundle(mBundle.get()) ? plugIn : nullptr;
}

PluginLoader::PluginLoader(std::vector<std::string> trustedDirectories)
    : mDirectories(std::move(trustedDirectories)) {}

std::vector<std::string> PluginLoader::bundleNamesForPpd(const PpdFile& ppd) {
  const std::string extension = ppd.attribute(kExtensionAttribute);
  if (!extension.empty()) return {std::filesystem::path(extension).filename().string()};
  if (hasCutOptions(ppd)) return {kCutPanelBundle};
  return {};
}

Result<std::shared_ptr<LoadedBundle>> PluginLoader::bundleNamed(const std::string& name) {
  const auto known = mLoaded.find(name);
  if (known != mLoaded.end()) return known->second;
  if (!isBundleName(name)) return Error{"\"" + name + "\" is no name of a panel's bundle"};
  for (const std::string& directory : mDirectories) {
    std::error_code error;
    const auto path = std::filesystem::canonical(directory, error) / name;
    if (error || !std::filesystem::exists(std::filesystem::symlink_status(path, error))) continue;
    Result<std::shared_ptr<LoadedBundle>> loaded = LoadedBundle::load(path.string());
    if (loaded) mLoaded[name] = *loaded;
    return loaded;
  }
  return Error{"the panel \"" + name + "\" that this printer's driver asks for is not installed"};
}

std::vector<std::shared_ptr<PrintDialogPlugIn>> PluginLoader::plugInsForPpd(
    const PpdFile& ppd) noexcept {
  std::vector<std::shared_ptr<PrintDialogPlugIn>> plugIns;
  for (const std::string& name : bundleNamesForPpd(ppd)) {
    const Result<std::shared_ptr<LoadedBundle>> bundle = bundleNamed(name);
    if (!bundle) {
      mProblems.push_back(bundle.error().message);
      continue;
    }
    if (auto plugIn = (*bundle)->makePrincipalObject())
      plugIns.push_back(std::move(plugIn));
    else
      mProblems.push_back("the panel \"" + name + "\" refuses to run on this system");
  }
  return plugIns;
}

std::vector<std::string> PluginLoader::takeProblems() { return std::exchange(mProblems, {}); }

}  // namespace cutline
