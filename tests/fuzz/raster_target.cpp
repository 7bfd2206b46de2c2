// A raster stream through the sample printer's filter, and what that writes through the printer.
#include "samples/printer/LabelJob.h"
#include "samples/printer/RasterPages.h"
#include "samples/printer/StripJob.h"
#include "tests/composition/MemoryFile.h"
#include "tests/fuzz/Insist.h"
#include "tests/fuzz/Printed.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace cutline;
  using namespace cutline::printer;
  // Longer jobs say nothing new and take long.
  constexpr unsigned kMostLabels = 4;
  const test::MemoryFile raster({reinterpret_cast<const char*>(data), size});
  const test::MemoryFile commands;
  CommandWriter writer(commands.descriptor());
  RasterPages pages(raster.descriptor(), size % 2 == 0 ? Halftone::Sharp : Halftone::Dots);
  LabelJob job({.cutsAutomatically = true, .labelsPerCut = 2, .printsCutMarks = true}, writer);
  fuzz::insist(writer.begin(), "the printer can be told");
  while (job.labels() < kMostLabels && pages.next())
    if (!job.add(pages.label(), {pages.dotsAcross(), pages.dotsAlong()})) return 0;
  if (job.labels() == 0) return 0;
  fuzz::insist(job.end(), "a job comes to its end");
  fuzz::insist(fuzz::isPrinted(commands), "the printer takes what its filter writes");
  return 0;
}
