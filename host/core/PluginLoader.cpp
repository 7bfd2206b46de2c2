#include "host/core/PluginLoader.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <utility>

#include "cups/PpdFile.h"
#include "host/core/CodeFacts.h"
#include "host/core/CutRules.h"
#include "host/core/ElfFile.h"
#include "host/core/TrustedFile.h"
#include "platform/lib/DirectoryBundle.h"
#include "platform/lib/ResourceFile.h"

namespace cutline {

namespace {

constexpr char kExtensionAttribute[] = "APDialogExtension";
constexpr char kCutPanelBundle[] = "CutOptions.plugin";
constexpr char kBundleSuffix[] = ".plugin";
constexpr char kExecutableDirectory[] = "Linux-" CUTLINE_PROCESSOR;
constexpr char kOtherAbi[] = "was made for another version of this program";

using EntryFunction = const PrincipalClassEntry* (*)();

struct BundleFiles {
  FileDescriptor info;
  FileDescriptor code;
};

// A folder of the bundle, in one that was opened before.
Result<FileDescriptor> openFolder(const FileDescriptor& in, const std::string& name,
                                  std::filesystem::path& shown) {
  auto folder = openTrustedIn(in, name, FileKind::directory, shown.string());
  shown /= name;
  return folder;
}

// What is read of the bundle before it runs, through folders that nobody else can change.
Result<BundleFiles> openFiles(const std::filesystem::path& path) {
  std::filesystem::path shown = path.parent_path();
  const auto home = openTrustedFolder(shown.string());
  if (!home) return home.error();
  const auto bundle = openFolder(*home, path.filename().string(), shown);
  if (!bundle) return bundle.error();
  const auto contents = openFolder(*bundle, "Contents", shown);
  if (!contents) return contents.error();
  auto info = openTrustedIn(*contents, "Info.plist", FileKind::regular, shown.string());
  if (!info) return info.error();
  const auto resources = openTrustedIn(*contents, "Resources", FileKind::directory, shown.string());
  if (!resources) return resources.error();
  const auto folder = openFolder(*contents, kExecutableDirectory, shown);
  if (!folder) return folder.error();
  auto code =
      openTrustedIn(*folder, path.stem().string() + ".so", FileKind::regular, shown.string());
  if (!code) return code.error();
  return BundleFiles{std::move(*info), std::move(*code)};
}

// Whether all that the code was compiled of had the ports as they are here.
bool hasOurAbi(const FileDescriptor& code) {
  const std::string numbers = codeSection(code, kPlugInAbiSection).value_or(std::string());
  std::vector<std::uint32_t> all(numbers.size() / sizeof kPlugInAbiVersion);
  if (all.empty()) return false;
  std::memcpy(all.data(), numbers.data(), all.size() * sizeof kPlugInAbiVersion);
  return std::ranges::count(all, kPlugInAbiVersion) == std::ssize(all);
}

// Why the code is not loaded; empty when it is. Found before any of it runs.
std::string reasonAgainstPlugIn(const FileDescriptor& code, const std::string& className) {
  const std::string reason = reasonAgainstCode(code);
  if (!reason.empty()) return "its code " + reason;
  if (!offersSymbol(code, kPrincipalClassSymbolPrefix + className))
    return "has no principal class " + className;
  return hasOurAbi(code) ? "" : kOtherAbi;
}

Result<const PrincipalClassEntry*> findEntry(void* library, const std::string& className,
                                             const std::string& bundlePath) {
  const std::string symbol = kPrincipalClassSymbolPrefix + className;
  const auto function = reinterpret_cast<EntryFunction>(dlsym(library, symbol.c_str()));
  const PrincipalClassEntry* entry = function != nullptr ? function() : nullptr;
  if (entry == nullptr || entry->abi != kPlugInAbiVersion)
    return Error{bundlePath + ": " + kOtherAbi};
  return entry;
}

bool isBundleName(const std::string& name) {
  return name.size() > sizeof kBundleSuffix - 1 && name.ends_with(kBundleSuffix) &&
         name.find('/') == std::string::npos;
}

}  // namespace

PanelSource::~PanelSource() = default;

Result<std::shared_ptr<LoadedBundle>> LoadedBundle::load(const std::string& path) {
  Result<BundleFiles> files = openFiles(path);
  if (!files) return files.error();
  const std::shared_ptr<LoadedBundle> loaded(new LoadedBundle);
  loaded->mName = std::filesystem::path(path).filename().string();
  const auto info = readResource(files->info);
  loaded->mBundle = info ? DirectoryBundle::open(path, *info) : nullptr;
  if (loaded->mBundle == nullptr) return Error{path + ": is no bundle: its Info.plist is damaged"};
  const std::string className = loaded->mBundle->principalClassName();
  const std::string reason = reasonAgainstPlugIn(files->code, className);
  if (!reason.empty()) return Error{path + ": " + reason};
  const Result<void*> library = loadCode(std::move(files->code));
  if (!library) return Error{path + ": " + library.error().message};
  const auto entry = findEntry(*library, className, path);
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
