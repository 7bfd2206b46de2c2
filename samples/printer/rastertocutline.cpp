// The driver of the virtual label printer: a CUPS filter from raster pages to the printer's
// commands.
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/FileDescriptor.h"
#include "samples/printer/Choices.h"
#include "samples/printer/CommandStream.h"
#include "samples/printer/LabelJob.h"
#include "samples/printer/RasterPages.h"

namespace {

using cutline::FileDescriptor;
using namespace cutline::printer;

// The places of a filter's arguments.
enum Argument { kJob = 1, kUser, kTitle, kCopies, kOptions, kFile };

// Many times what the largest label takes. A header may name lines of gigabytes, and libcups makes
// room for one before anybody can look at it.
void limitMemory() {
#ifndef CUTLINE_SANITIZED
  constexpr rlim_t kMost = rlim_t{1} << 30U;
  const rlimit limit{kMost, kMost};
  ::setrlimit(RLIMIT_AS, &limit);
#endif
}

int fail(const std::string& problem) {
  std::fprintf(stderr, "ERROR: %s\n", problem.c_str());
  return EXIT_FAILURE;
}

bool writeFacts(CommandWriter& writer, const Choices& choices, int count, char* arguments[]) {
  if (!writer.begin()) return false;
  for (int at = 0; at < count; ++at) {
    if (!writer.write(Setting{"filter.argv" + std::to_string(at), arguments[at]})) return false;
  }
  for (const auto& [keyword, choice] : choices) {
    if (!writer.write(Setting{keyword, choice})) return false;
  }
  return true;
}

// The copies are in the raster already: the PPD leaves them to the filters before this one.
int print(RasterPages& pages, LabelJob& job) {
  while (pages.next()) {
    if (!job.add(pages.label(), {pages.dotsAcross(), pages.dotsAlong()}))
      return fail("The printer takes no more data.");
    std::fprintf(stderr, "INFO: Printing label %u\nPAGE: %u 1\n", job.labels(), job.labels());
  }
  if (!pages.problem().empty()) return fail("Label not printable: " + pages.problem() + ".");
  if (job.labels() == 0) return fail("The document has no pages to print.");
  return job.end() ? EXIT_SUCCESS : fail("The printer takes no more data.");
}

int printFrom(int input, const Choices& choices, CommandWriter& writer) {
  const auto halftone = choices.find("Halftone");
  const bool dots = halftone != choices.end() && halftone->second == "Dots";
  RasterPages pages(input, dots ? Halftone::Dots : Halftone::Sharp);
  LabelJob job(cutSettingsOf(choices), writer);
  return print(pages, job);
}

}  // namespace

int main(int count, char* arguments[]) {
  if (count < kFile || count > kFile + 1) {
    std::fprintf(stderr, "Usage: rastertocutline JOB USER TITLE COPIES OPTIONS [FILE]\n");
    return EXIT_FAILURE;
  }
  std::signal(SIGPIPE, SIG_IGN);
  limitMemory();
  const char* ppd = std::getenv("PPD");
  const auto choices = choicesOf(ppd == nullptr ? "" : ppd, arguments[kOptions]);
  if (!choices) return fail("The printer's PPD file cannot be read.");
  const bool named = count > kFile;
  const FileDescriptor file(named ? ::open(arguments[kFile], O_RDONLY | O_CLOEXEC) : -1);
  if (named && !file) return fail(std::string("The file cannot be read: ") + arguments[kFile]);
  CommandWriter writer(STDOUT_FILENO);
  if (!writeFacts(writer, *choices, count, arguments))
    return fail("The printer takes no more data.");
  return printFrom(named ? file.get() : STDIN_FILENO, *choices, writer);
}
