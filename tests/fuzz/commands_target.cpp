// The language of the sample printer, from whoever speaks to it.
#include "tests/composition/MemoryFile.h"
#include "tests/fuzz/Printed.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace cutline;
  static_cast<void>(fuzz::isPrinted(test::MemoryFile({reinterpret_cast<const char*>(data), size})));
  return 0;
}
