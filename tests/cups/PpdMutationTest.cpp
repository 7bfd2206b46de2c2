// Damaged PPDs: whatever is opened can be marked, asked and closed.
#include <gtest/gtest.h>

#include <random>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include "cups/PpdFile.h"
#include "tests/cups/Fixtures.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr unsigned kSeed = 20240607;
constexpr int kMutants = 400;

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
    lines.push_back(text.substr(start, end - start + 1));
    start = end + 1;
  }
  return lines;
}

class Mutator {
 public:
  explicit Mutator(const std::string& text) : mLines(linesOf(text)) {}

  std::string next() {
    std::vector<std::string> lines = mLines;
    for (int count = 1 + below(6); count > 0; --count) mutate(lines);
    std::string text;
    for (const std::string& line : lines) text += line;
    return text;
  }

 private:
  int below(std::size_t limit) { return static_cast<int>(mRandom() % limit); }

  void mutate(std::vector<std::string>& lines) {
    // The header stays, so that most mutants get past it.
    const std::size_t at = 1 + below(lines.size() - 1);
    const std::size_t other = 1 + below(lines.size() - 1);
    std::string& line = lines[at];
    if (line.empty()) return;
    switch (below(6)) {
      case 0:
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
        break;
      case 1:
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), std::string(lines[other]));
        break;
      case 2:
        std::swap(line, lines[other]);
        break;
      case 3:
        line[below(line.size())] = static_cast<char>(below(256));
        break;
      case 4:
        line.insert(below(line.size()), std::string(below(120), 'x'));
        break;
      default:
        line.erase(below(line.size()));
    }
  }

  std::vector<std::string> mLines;
  std::mt19937 mRandom{kSeed};
};

void useEverything(const PpdFile& ppd) {
  ppd.mark({{{"LxHalfCut", "ON"}, {"PageSize", "Custom.20x50mm"}, {"Cutter", "False"}}});
  for (const OptionGroup& group : ppd.optionGroups()) {
    for (const PpdOption& option : group.options) {
      for (const OptionChoice& choice : option.choices) {
        ppd.markChoice(option.keyword, choice.name);
        ppd.conflicts();
      }
      static_cast<void>(ppd.checkChoice(option.keyword, "NONE OF THEM"));
    }
  }
  ppd.markedOptions();
  ppd.paperSizes();
  ppd.markedPaper();
}

// libcups itself loses texts of a PPD that has a statement twice; that is not what is tested here.
Result<std::shared_ptr<PpdFile>> openDamaged(const std::string& path) {
#ifdef __SANITIZE_ADDRESS__
  const __lsan::ScopedDisabler disabler;
#endif
  return PpdFile::open(path);
}

TEST(PpdMutation, WhateverIsOpenedCanBeUsed) {
  const test::TemporaryFolder folder;
  Mutator mutator(test::fixtureText("tape.ppd"));
  int opened = 0;
  for (int i = 0; i < kMutants; ++i) {
    const auto ppd = openDamaged(folder.write("mutant.ppd", mutator.next()));
    if (!ppd) {
      EXPECT_FALSE(ppd.error().message.empty());
      continue;
    }
    ++opened;
    useEverything(**ppd);
  }
  EXPECT_GT(opened, kMutants / 4) << "too few mutants are opened to tell anything";
}

}  // namespace
}  // namespace cutline
