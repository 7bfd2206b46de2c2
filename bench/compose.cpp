// compose HELPER_DIRECTORY RUNS
// Times how long documents take to become labels, and how long the first of them takes. Each
// page has a few words and lines.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "bench/LabelsPdf.h"
#include "composition/Composer.h"

namespace {

using cutline::CompositionRequest;

constexpr int kPageCounts[] = {12, 300, 10000};

double millisecondsOf(const std::string& helpers, const std::string& path,
                      const CompositionRequest& request) {
  const auto start = std::chrono::steady_clock::now();
  const auto composed = cutline::compose(helpers, {path}, request);
  if (!composed) {
    std::fprintf(stderr, "%s\n", composed.error().message.c_str());
    std::exit(EXIT_FAILURE);
  }
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  return time.count();
}

void measure(const char* what, const std::string& helpers, const std::string& path,
             const CompositionRequest& request, int runs) {
  std::vector<double> times;
  for (int run = 0; run < runs; ++run) times.push_back(millisecondsOf(helpers, path, request));
  std::sort(times.begin(), times.end());
  std::printf("%-28s %-16s median %9.2f  min %9.2f  max %9.2f  n=%zu\n", "compose", what,
              times[times.size() / 2], times.front(), times.back(), times.size());
}

void measurePages(int pages, const std::string& helpers, int runs) {
  const std::string path = "/tmp/cutline-bench-" + std::to_string(getpid()) + ".pdf";
  std::ofstream(path, std::ios::binary) << cutline::labelsPdf(pages);
  CompositionRequest request;
  request.label = {68.03, 141.73, 2.83, 5.67, 65.2, 136.06, 90, 90};
  const std::string count = std::to_string(pages);
  measure((count + "_pages").c_str(), helpers, path, request, runs);
  request.pages.most = 1;
  measure(("first_of_" + count).c_str(), helpers, path, request, runs);
  std::remove(path.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: compose HELPER_DIRECTORY RUNS\n", stderr);
    return 2;
  }
  for (const int pages : kPageCounts) measurePages(pages, argv[1], std::atoi(argv[2]));
  return 0;
}
