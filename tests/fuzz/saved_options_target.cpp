// A file of saved options: an entry that is put into it is read back, and taken out leaves the
// others as they are.
#include <filesystem>

#include "cups/SavedLines.h"
#include "cups/SavedOptions.h"
#include "tests/fuzz/Insist.h"
#include "tests/support/TemporaryFolder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace cutline;
  static const test::TemporaryFolder folder;
  const std::string text(reinterpret_cast<const char*>(data), size);
  static_cast<void>(readSavedEntries(folder.write("lpoptions", text)));
  const DestinationName name{"tape", "cutline-fuzz"};
  const std::string with = withEntry(text, name, {{"LxHalfCut", "ON"}, {"title", "a \"b\" \\c"}});
  const std::string without = withoutEntry(with, name);
  fuzz::insist(withoutEntry(without, name) == without, "what is taken out is gone");
  fuzz::insist(withoutEntry(text, name) == text ? without.starts_with(text) : true,
               "other entries stay");
  return 0;
}
