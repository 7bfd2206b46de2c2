#include "tests/fuzz/Targets.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "tests/support/TemporaryFolder.h"

extern "C" {
int fuzz_bundle_files(const std::uint8_t* data, std::size_t size);
int fuzz_commands(const std::uint8_t* data, std::size_t size);
int fuzz_composition_text(const std::uint8_t* data, std::size_t size);
int fuzz_cut_words(const std::uint8_t* data, std::size_t size);
int fuzz_documents(const std::uint8_t* data, std::size_t size);
int fuzz_formatter(const std::uint8_t* data, std::size_t size);
int fuzz_job_options(const std::uint8_t* data, std::size_t size);
int fuzz_panel_events(const std::uint8_t* data, std::size_t size);
int fuzz_plugin_files(const std::uint8_t* data, std::size_t size);
int fuzz_ppd(const std::uint8_t* data, std::size_t size);
int fuzz_print_dialog(const std::uint8_t* data, std::size_t size);
int fuzz_raster(const std::uint8_t* data, std::size_t size);
int fuzz_saved_options(const std::uint8_t* data, std::size_t size);
int fuzz_ticket(const std::uint8_t* data, std::size_t size);
int fuzz_trace(const std::uint8_t* data, std::size_t size);
}

namespace cutline::fuzz {

namespace {

const std::string kFolder = CUTLINE_SOURCE_DIR "/tests/fuzz/";

// A line of a fuzzer's dictionary: a word in quotes, with \\, \" and \xNN.
std::string wordIn(std::string_view line) {
  constexpr int kHexadecimal = 16;
  std::string word;
  for (std::size_t at = 1; at + 1 < line.size(); ++at) {
    if (line[at] == '\\' && line[at + 1] == 'x') {
      word +=
          static_cast<char>(std::stoi(std::string(line.substr(at + 2, 2)), nullptr, kHexadecimal));
      at += 3;
    } else {
      if (line[at] == '\\') ++at;
      word += line[at];
    }
  }
  return word;
}

}  // namespace

// So many mutants that the quick form of each takes a second or two.
const std::vector<Target>& targets() {
  static const std::vector<Target> all = {
      {"bundle_files", fuzz_bundle_files, 200, 10'000, "property_list"},
      {"commands", fuzz_commands, 4000, 200'000, "commands"},
      {"composition_text", fuzz_composition_text, 5000, 250'000},
      {"cut_words", fuzz_cut_words, 5000, 250'000, "cut_words"},
      {"documents", fuzz_documents, 500, 25'000, "documents", {.seconds = 10}},
      {"formatter", fuzz_formatter, 4000, 200'000},
      {"job_options", fuzz_job_options, 500, 25'000, "options"},
      {"panel_events", fuzz_panel_events, 60, 3000},
      {"plugin_files", fuzz_plugin_files, 2000, 100'000, "property_list"},
      {"ppd", fuzz_ppd, 1000, 50'000, "ppd"},
      {"print_dialog", fuzz_print_dialog, 2000, 100'000, "ppd"},
      {"raster", fuzz_raster, 1000, 50'000},
      {"saved_options", fuzz_saved_options, 500, 25'000, "saved_options"},
      {"ticket", fuzz_ticket, 4000, 200'000, "property_list"},
      {"trace", fuzz_trace, 1500, 75'000, "trace"},
  };
  return all;
}

std::vector<std::string> wordsOf(const Target& target) {
  std::vector<std::string> words;
  if (*target.words == '\0') return words;
  std::ifstream lines(kFolder + "words/" + target.words + ".dict");
  for (std::string line; std::getline(lines, line);) words.push_back(wordIn(line));
  return words;
}

std::vector<std::string> corpusOf(const Target& target) {
  std::vector<std::string> paths;
  // What a dialog is opened on is a PPD, too.
  const std::string name = target.name == std::string_view("print_dialog") ? "ppd" : target.name;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder + "corpus/" + name))
    paths.push_back(entry.path());
  std::ranges::sort(paths);
  std::vector<std::string> inputs;
  for (const std::string& path : paths) inputs.push_back(test::contentsOf(path));
  return inputs;
}

}  // namespace cutline::fuzz
