// What could stand for a bundle: a file of code, an Info.plist, a name that a PPD selects one by.
// No code of it is run.
#include <filesystem>

#include "cups/PpdContents.h"
#include "host/core/CodeFacts.h"
#include "host/core/ElfFile.h"
#include "host/core/PluginLoader.h"
#include "tests/fuzz/Input.h"
#include "tests/fuzz/Insist.h"
#include "tests/fuzz/MemoryPpd.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using namespace cutline;

void readCode(const std::string& bytes) {
  const FileDescriptor file = memoryFile(bytes);
  reasonAgainstCode(file);
  codeSection(file, kPlugInAbiSection);
  offersSymbol(file, kPrincipalClassSymbolPrefix + std::string("TestPlugIn"));
}

void readInfo(const std::string& bytes) {
  static const test::TemporaryFolder folder;
  folder.write("Odd.plugin/Contents/Info.plist", bytes);
  const auto loaded = LoadedBundle::load(folder / "Odd.plugin");
  fuzz::insist(!loaded && !loaded.error().message.empty(), "no code, no bundle");
}

void findNamed(const std::string& name) {
  static const test::TemporaryFolder folder;
  PluginLoader loader({folder.path()});
  fuzz::insist(!loader.bundleNamed(name), "an empty folder has no bundle");
  static_cast<void>(loader.takeProblems());
}

void findSelected(const std::string& extension) {
  const auto ppd = fuzz::openPpd(
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*APDialogExtension: \"" + extension + "\"\n");
  if (!ppd) return;
  for (const std::string& name : PluginLoader::bundleNamesForPpd(**ppd)) {
    fuzz::insist(name.find('/') == std::string::npos, "a PPD names bundles and no paths");
    findNamed(name);
  }
}

constexpr void (*kReaders[])(const std::string&) = {readCode, readInfo, findNamed, findSelected};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const auto reader = input.oneOf(kReaders);
  reader(input.rest());
  return 0;
}
