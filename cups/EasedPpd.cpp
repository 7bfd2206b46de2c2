#include "cups/EasedPpd.h"

#include <span>
#include <utility>

#include "cups/PpdGroupWalk.h"
#include "cups/PpdPlainOptions.h"
#include "cups/PpdStatements.h"

namespace cutline {

namespace {

bool hasMore(std::string_view contents, std::string_view word, std::size_t count) {
  std::size_t at = contents.find(word);
  for (; at != contents.npos && count > 0; --count) at = contents.find(word, at + word.size());
  return at != contents.npos;
}

// libcups skips the first sign, and ends a line at the second. Behind the words it reads nothing.
bool isPeculiar(std::string_view contents) {
  return contents.find('\x1a') != contents.npos || contents.find('\0') != contents.npos ||
         contents.find("*%APLWORKSET START") != contents.npos;
}

// Writes a PPD anew without most of its plain options.
class Easing {
 public:
  explicit Easing(std::string_view contents)
      : mStatements(ppdStatements(contents)), mOptions(plainOptions(mStatements)) {}

  std::optional<EasedPpd> eased() {
    PpdGroupWalk survey;
    forEachPiece([](const PlainOption&) {}, [&](const PpdStatement& each) { survey.pass(each); });
    forEachPiece([&](const PlainOption& option) { write(option, survey); },
                 [&](const PpdStatement& statement) { write(statement); });
    if (!mHasMemory) return std::nullopt;
    return std::move(mEased);
  }

 private:
  // Calls one function or the other for each of the plain options and of the statements between
  // them.
  void forEachPiece(const auto& onOption, const auto& onStatement) const {
    auto option = mOptions.begin();
    for (std::size_t at = 0; at < mStatements.size(); ++at) {
      if (option == mOptions.end() || at != option->first) {
        onStatement(mStatements[at]);
        continue;
      }
      onOption(*option);
      at = option->last;
      ++option;
    }
  }

  // The first option of a group stays: it says where among the groups its own comes.
  void write(const PlainOption& option, const PpdGroupWalk& survey) {
    const std::string_view group = mWalk.group();
    const std::span<const PpdStatement> block =
        std::span(mStatements).subspan(option.first, option.last - option.first + 1);
    if (!survey.isPlain(group)) return keep(block);
    OptionRecords& options = mEased.groups[group];
    const bool mayGo = options.size() > 0 && !option.isNamedElsewhere && !mWalk.isOptionOpen();
    if (!mayGo || !readOptionBlock(option.keyword, block, mBlock)) {
      mHasMemory = options.addPlace(option.keyword) && mHasMemory;
      return keep(block);
    }
    mHasMemory = options.add(mBlock) && mHasMemory;
    for (const std::string_view text : mBlock.others) mEased.contents += text;
  }

  void keep(std::span<const PpdStatement> block) {
    for (const PpdStatement& each : block) mEased.contents += each.text();
    mWalk.passOption();
  }

  void write(const PpdStatement& statement) {
    mWalk.pass(statement);
    mEased.contents += statement.text();
  }

  const std::vector<PpdStatement> mStatements;
  const std::vector<PlainOption> mOptions;
  PpdGroupWalk mWalk;
  OptionBlock mBlock;  // the one that is being read
  EasedPpd mEased;
  bool mHasMemory = true;
};

}  // namespace

std::optional<EasedPpd> easedPpd(std::string_view contents, std::size_t fewOptions) {
  if (!hasMore(contents, "*OpenUI", fewOptions) || isPeculiar(contents)) return std::nullopt;
  return Easing(contents).eased();
}

}  // namespace cutline
