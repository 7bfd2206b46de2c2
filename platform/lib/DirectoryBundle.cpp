#include "platform/lib/DirectoryBundle.h"

#include <system_error>
#include <utility>

#include "platform/lib/InterfaceLoader.h"
#include "platform/lib/Languages.h"
#include "platform/lib/ResourceFile.h"
#include "platform/ports/Platform.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

constexpr char kDefaultTable[] = "Localizable";

std::optional<std::string> imageFileType(std::size_t index) {
  const Toolkit* toolkit = currentPlatform().toolkit;
  return toolkit ? toolkit->imageFileType(index) : std::nullopt;
}

// The names of the files that stand there, without those in its folders.
std::set<std::string> filesIn(const std::filesystem::path& folder) {
  std::set<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code unknown;
    if (!entry->is_regular_file(unknown)) continue;
    const std::string& path = entry->path().native();
    names.insert(path.substr(path.rfind('/') + 1));
  }
  return names;
}

std::optional<PropertyList> readPropertyList(const std::filesystem::path& path) {
  const auto bytes = readResource(path);
  return bytes ? PropertyList::parseXML(*bytes) : std::nullopt;
}

}  // namespace

std::shared_ptr<Bundle> DirectoryBundle::open(const std::string& path) noexcept {
  const auto info = readResource(std::filesystem::path(path) / "Contents" / "Info.plist");
  return info ? open(path, *info) : nullptr;
}

std::shared_ptr<Bundle> DirectoryBundle::open(const std::string& path,
                                              const std::string& info) noexcept {
  auto list = PropertyList::parseXML(info);
  if (!list || !list->dictionary()) return nullptr;
  return std::shared_ptr<Bundle>(new DirectoryBundle(path, std::move(*list)));
}

DirectoryBundle::DirectoryBundle(std::filesystem::path path, PropertyList info)
    : mPath(std::move(path)),
      mResources(mPath / "Contents" / "Resources"),
      mInfo(std::move(info)),
      mLocalizations(preferredLocalizations()) {}

std::string DirectoryBundle::infoString(const std::string& key) const {
  const PropertyList* entry = mInfo.objectForKey(key);
  const std::string* text = entry ? entry->string() : nullptr;
  return text ? *text : std::string();
}

std::string DirectoryBundle::bundleIdentifier() const noexcept {
  return infoString("CFBundleIdentifier");
}

std::string DirectoryBundle::principalClassName() const noexcept {
  return infoString("NSPrincipalClass");
}

DirectoryBundle::Table DirectoryBundle::readTable(const std::string& name) const {
  Table table;
  if (!isResourceName(name)) return table;
  for (const std::string& localization : mLocalizations) {
    const auto folder = mResources / (localization + ".lproj");
    if (auto strings = readPropertyList(folder / (name + ".strings"))) {
      table.push_back(std::move(*strings));
    }
  }
  return table;
}

const DirectoryBundle::Table& DirectoryBundle::tableNamed(const std::string& name) const {
  auto found = mTables.find(name);
  if (found == mTables.end()) found = mTables.emplace(name, readTable(name)).first;
  return found->second;
}

std::string DirectoryBundle::localizedStringForKey(
    const std::string& key, const std::optional<std::string>& value,
    const std::optional<std::string>& table) const noexcept {
  for (const PropertyList& strings : tableNamed(table.value_or(kDefaultTable))) {
    const PropertyList* entry = strings.objectForKey(key);
    if (entry && entry->string()) return *entry->string();
  }
  return value && !value->empty() ? *value : key;
}

std::optional<std::string> DirectoryBundle::pathForImageResource(
    const std::string& name) const noexcept {
  if (!isResourceName(name)) return std::nullopt;
  if (!mFiles) mFiles = filesIn(mResources);
  const std::string folder = mResources.native() + '/';
  if (mFiles->contains(name)) return folder + name;
  std::size_t index = 0;
  while (const auto type = imageFileType(index++)) {
    const std::string file = name + '.' + *type;
    if (mFiles->contains(file)) return folder + file;
  }
  return std::nullopt;
}

bool DirectoryBundle::loadNibNamed(const std::string& name, InterfaceOwner& owner) noexcept {
  if (!isResourceName(name)) return false;
  const auto file = readPropertyList(mResources / (name + ".plist"));
  return file && loadInterface(*file, *this, owner);
}

}  // namespace cutline
