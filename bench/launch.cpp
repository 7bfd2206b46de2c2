// launch RUNS WARMUPS -- LABEL COMMAND [ARGUMENT ...] [-- LABEL COMMAND [ARGUMENT ...]] ...
// Runs the commands in turn, again and again, so that a slower minute of the machine is
// everybody's, and prints, for each figure that one reports with a line "MARK name value", and for
// the process as a whole, the median, the least and the greatest. A command finds the moment of its
// own start (CLOCK_MONOTONIC, milliseconds) in LX_T0.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using Figures = std::map<std::string, std::vector<double>>;

double nowMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

[[noreturn]] void becomeCommand(char** command, int output, double start) {
  char text[64];
  std::snprintf(text, sizeof text, "%.6f", start);
  setenv("LX_T0", text, 1);
  dup2(output, STDOUT_FILENO);
  close(output);
  execvp(command[0], command);
  _exit(127);
}

void readMarks(int input, Figures& figures) {
  FILE* stream = fdopen(input, "r");
  char line[8192];
  char name[128];
  double value = 0;
  while (std::fgets(line, sizeof line, stream) != nullptr) {
    if (std::sscanf(line, "MARK %127s %lf", name, &value) == 2) figures[name].push_back(value);
  }
  std::fclose(stream);
}

// False when the command failed.
bool runOnce(char** command, Figures& figures) {
  int ends[2];
  if (pipe(ends) != 0) return false;
  const double start = nowMilliseconds();
  const pid_t child = fork();
  if (child == 0) {
    close(ends[0]);
    becomeCommand(command, ends[1], start);
  }
  close(ends[1]);
  readMarks(ends[0], figures);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  figures["wall_ms"].push_back(nowMilliseconds() - start);
  figures["cpu_ms"].push_back(milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime));
  figures["peak_MiB"].push_back(static_cast<double>(usage.ru_maxrss) / 1024.0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

struct Series {
  const char* label;
  std::vector<char*> command;  // null behind the last word
  Figures figures = {};
  int failures = 0;
};

// Each begins behind a "--" with its label.
std::vector<Series> seriesIn(char** words) {
  std::vector<Series> all;
  while (*words != nullptr && std::strcmp(*words, "--") == 0 && words[1] != nullptr) {
    Series series{*++words, {}};
    while (*++words != nullptr && std::strcmp(*words, "--") != 0) series.command.push_back(*words);
    if (series.command.empty()) return {};
    series.command.push_back(nullptr);
    all.push_back(std::move(series));
  }
  return *words == nullptr ? all : std::vector<Series>();
}

void print(const Series& series) {
  for (const auto& [name, values] : series.figures) {
    const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
    std::printf("%-28s %-16s median %9.2f  min %9.2f  max %9.2f  n=%zu\n", series.label,
                name.c_str(), median(values), *least, *greatest, values.size());
  }
  if (series.failures > 0) std::printf("%-28s FAILED RUNS %d\n", series.label, series.failures);
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<Series> all = argc > 3 ? seriesIn(argv + 3) : std::vector<Series>();
  if (all.empty()) {
    std::fputs("usage: launch RUNS WARMUPS -- LABEL COMMAND [ARGUMENT ...] [-- ...]\n", stderr);
    return 2;
  }
  const int runs = std::atoi(argv[1]);
  const int warmups = std::atoi(argv[2]);
  for (int i = 0; i < warmups + runs; ++i) {
    for (Series& series : all) {
      Figures ignored;
      const bool isRun = runOnce(series.command.data(), i < warmups ? ignored : series.figures);
      if (!isRun) ++series.failures;
    }
  }
  for (const Series& series : all) print(series);
  return std::ranges::any_of(all, [](const Series& each) { return each.failures > 0; }) ? 1 : 0;
}
