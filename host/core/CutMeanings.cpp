#include "host/core/CutMeanings.h"

#include <algorithm>
#include <map>
#include <utility>

#include "cups/PpdFacts.h"
#include "cups/PpdFile.h"
#include "host/core/CutRules.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

// No driver of ours to know has a tenth of it, and a hostile PPD must not take long.
constexpr std::size_t kMostCombinations = 2000;
// Constraints that are looked at, over all combinations.
constexpr std::size_t kMostLooks = 200'000;
constexpr std::size_t kMostYielding = 4;

using Meant = std::pair<CutMeaning, unsigned>;  // with the labels of everyFew

// What the settings mean, and whether another choice would say it better: less is better.
struct Reading {
  Meant meant;
  int strain = 0;
};

Reading readingOf(const CutSettings& settings, bool makesCopies) {
  if (settings.authority == CutAuthority::Printer) return {{CutMeaning::printerDecides, 0}};
  if (!settings.cutsAutomatically)
    return {{settings.cutsAtEnd ? CutMeaning::atEnd : CutMeaning::never, 0}};
  switch (settings.unit) {
    case CutUnit::Copy:
      if (makesCopies) return {{CutMeaning::eachCopy, 0}};
      return {{CutMeaning::atEnd, 0}, 2};
    case CutUnit::Document:
      return {{CutMeaning::atEnd, 0}, 1};
    case CutUnit::Page:
      return {{CutMeaning::eachLabel, 0}, 1};
    case CutUnit::Label:
      break;
  }
  if (settings.labelsPerCut <= 1) return {{CutMeaning::eachLabel, 0}};
  return {{CutMeaning::everyFew, settings.labelsPerCut}};
}

// Puts the marks back that it found.
class MarksKept {
 public:
  explicit MarksKept(const PpdFile& ppd) : mPpd(ppd), mMarks(ppd.markedOptions()) {}
  ~MarksKept() { restore(); }
  MarksKept(const MarksKept&) = delete;
  MarksKept& operator=(const MarksKept&) = delete;

  void restore() const {
    for (const auto& [keyword, choice] : mMarks)
      if (mPpd.markedChoice(keyword) != choice) mPpd.markChoice(keyword, choice);
  }

 private:
  const PpdFile& mPpd;
  OptionList mMarks;
};

class Search {
 public:
  Search(const PpdFile& ppd, const CutWords& words)
      : mPpd(ppd), mWords(words), mTable(ppd), mFilters(filterPrograms(ppd)), mMarks(ppd) {
    for (const std::string& keyword : optionsIn(words, mFilters)) {
      const PpdOption* option = mTable.find(keyword);
      if (option != nullptr && !option->choices.empty()) mOptions.push_back(option);
    }
  }

  CutMeanings result() {
    std::optional<Reading> now = reading(mFilters);
    if (!now) return {};
    std::vector<std::size_t> choices(mOptions.size(), 0);
    const std::size_t most =
        std::clamp<std::size_t>(kMostLooks / (mPpd.constraintCount() + 1), 1, kMostCombinations);
    std::size_t tried = 0;
    do {
      consider(choices);
    } while (++tried < most && advance(choices));
    return offersWith(now->meant);
  }

 private:
  struct Candidate {
    OptionList assignment;
    std::pair<std::size_t, int> cost;  // changes, strain
  };

  bool advance(std::vector<std::size_t>& choices) const {
    for (std::size_t at = choices.size(); at-- > 0;) {
      if (++choices[at] < mOptions[at]->choices.size()) return true;
      choices[at] = 0;
    }
    return false;
  }

  // Of the marks; nothing where no word says where it is cut.
  std::optional<Reading> reading(const std::vector<std::string>& filters) const {
    const CutSettings settings = settingsIn(
        mWords, [&](const std::string& option) { return mPpd.markedChoice(option); }, filters);
    if (settings.authority == CutAuthority::Nobody) return std::nullopt;
    return readingOf(settings, printerMakesCopies(mPpd));
  }

  void consider(const std::vector<std::size_t>& choices) {
    mMarks.restore();
    OptionList assignment;
    for (std::size_t at = 0; at < choices.size(); ++at)
      assign(assignment, mOptions[at]->keyword, mOptions[at]->choices[choices[at]].name);
    const std::optional<Reading> read = reading(mFilters);
    if (!read || !yieldOthers(assignment)) return;
    // A filter can make many choices mean the same: that is best which means it by itself.
    const std::optional<Reading> byItself = reading({});
    const int foreign = byItself && byItself->meant == read->meant ? 0 : 1;
    const Candidate candidate{assignment, {assignment.size(), 2 * read->strain + foreign}};
    const auto known = mBest.try_emplace(read->meant, candidate).first;
    if (candidate.cost < known->second.cost) known->second = candidate;
  }

  void assign(OptionList& assignment, const std::string& keyword, const std::string& choice) const {
    if (mPpd.markedChoice(keyword) == choice) return;
    mPpd.markChoice(keyword, choice);
    assignment.emplace_back(keyword, choice);
  }

  bool isOurs(const std::string& keyword) const {
    return std::ranges::any_of(mOptions,
                               [&](const PpdOption* option) { return option->keyword == keyword; });
  }

  // Has options that no word is about give way to those that have one; false where that is no help.
  bool yieldOthers(OptionList& assignment) const {
    for (std::size_t round = 0; round <= kMostYielding; ++round) {
      const std::optional<std::string> other = nextInTheWay();
      if (!other) return true;
      const PpdOption* option = mTable.find(*other);
      if (option == nullptr || mPpd.markedChoice(*other) == option->defaultChoice) return false;
      assign(assignment, option->keyword, option->defaultChoice);
    }
    return false;
  }

  // Of a conflict with one of ours; ours itself where both are. Nothing when there is none.
  std::optional<std::string> nextInTheWay() const {
    for (const Conflict& conflict : mPpd.conflicts()) {
      const bool isFirst = isOurs(conflict.keyword);
      if (!isFirst && !isOurs(conflict.otherKeyword)) continue;
      const std::string& other = isFirst ? conflict.otherKeyword : conflict.keyword;
      return isOurs(other) ? std::string() : other;
    }
    return std::nullopt;
  }

  CutMeanings offersWith(const Meant& now) const {
    CutMeanings meanings;
    for (const auto& [meant, best] : mBest) {
      if (meant == now) meanings.inForce = meanings.offers.size();
      meanings.offers.push_back({meant.first, meant.second, best.assignment});
    }
    return meanings;
  }

  const PpdFile& mPpd;
  const CutWords& mWords;
  OptionTable mTable;
  std::vector<std::string> mFilters;
  MarksKept mMarks;
  std::vector<const PpdOption*> mOptions;
  std::map<Meant, Candidate> mBest;
};

}  // namespace

CutMeanings cutMeaningsOf(const PpdFile& ppd, const CutWords& words) {
  if (hasCutOptions(ppd)) return {};
  return Search(ppd, words).result();
}

}  // namespace cutline
