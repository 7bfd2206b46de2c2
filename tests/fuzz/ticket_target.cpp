// The private settings ticket, which is a property list: read for the paper's name, and as a value
// of any shape.
#include "bundle/ppd/print_session.h"
#include "platform/lib/PropertyList.h"
#include "tests/fuzz/Insist.h"
#include "tests/support/ScriptedPrinting.h"

namespace {

using namespace cutline;

constexpr int kDeepest = 64;

void walk(const PropertyList& list, int depth) {
  fuzz::insist(depth <= kDeepest, "lists are nested no deeper than the reader says");
  static_cast<void>(list.number());
  static_cast<void>(list.objectForKey(kTicketPaperNameKey));
  if (const auto* array = list.array())
    for (const PropertyList& item : *array) walk(item, depth + 1);
  if (const auto* dictionary = list.dictionary())
    for (const auto& [key, item] : *dictionary) walk(item, depth + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string xml(reinterpret_cast<const char*>(data), size);
  test::ScriptedSettings settings;
  settings.values[kPrintSettingsTicketKey] = xml;
  TapeInfo info;
  fuzz::insist(GetTapeInfo2(nullptr, &settings, &info) == noErr, "a ticket is no error");
  const auto list = PropertyList::parseXML(xml);
  fuzz::insist(list || !info.paperName, "no name without a list");
  if (list) walk(*list, 0);
  return 0;
}
