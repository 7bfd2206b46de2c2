// cutline_call_filters FILE: writes the filters of calls into the file, as the source of the
// functions of composition/helper/CallFilters.h. To make one takes nine times as long as to have
// the kernel take it, and so a tenth of what a helper does; it is done once, when that is built.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string_view>

#include "composition/filters/CallRules.h"

namespace {

using namespace cutline;

bool isOwnProcess(const sock_filter& step) { return step.k == kOwnProcess; }

void writeSteps(std::ostream& out, std::string_view name, const CallFilter& filter) {
  out << "sock_filter " << name << "[] = {\n";
  for (const sock_filter& step : filter)
    out << "    {" << step.code << ", " << +step.jt << ", " << +step.jf << ", " << step.k << "},\n";
  out << "};\n";
}

void write(std::ostream& out, const CallFilter& reading, const CallFilter& reachingOut) {
  const auto own = std::ranges::find_if(reading, isOwnProcess) - reading.begin();
  out << "// Written by cutline_call_filters.\n"
         "#include \"composition/helper/CallFilters.h\"\n"
         "namespace cutline {\n"
         "namespace {\n";
  writeSteps(out, "reading", reading);
  writeSteps(out, "reachingOut", reachingOut);
  out << "}\n"
         "std::span<sock_filter> readingFilterOf(std::uint32_t process) noexcept {\n"
         "  reading["
      << own
      << "].k = process;\n"
         "  return reading;\n"
         "}\n"
         "std::span<sock_filter> reachingOutFilter() noexcept { return reachingOut; }\n"
         "}\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: cutline_call_filters FILE\n", stderr);
    return 2;
  }
  const CallFilter reading = readingFilter();
  const CallFilter reachingOut = reachingOutFilter();
  // The program that has the filter puts its number in this one place.
  if (reachingOut.empty() || std::ranges::count_if(reading, isOwnProcess) != 1) {
    std::fputs("cutline_call_filters: the filters cannot be made\n", stderr);
    return 1;
  }
  std::ofstream file(argv[1]);
  write(file, reading, reachingOut);
  file.close();
  return file.good() ? 0 : 1;
}
