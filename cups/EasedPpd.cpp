#include "cups/EasedPpd.h"

#include <map>
#include <utility>

#include "cups/PpdGroupWalk.h"
#include "cups/PpdPlainOptions.h"
#include "cups/PpdStatements.h"

namespace cutline {

namespace {

constexpr std::string_view kPart = "cutline-part-";
constexpr std::string_view kOpenPart = "*OpenGroup: ";
constexpr std::string_view kClosePart = "*CloseGroup: part\n";
constexpr std::size_t kNoPart = static_cast<std::size_t>(-1);

bool hasMore(std::string_view contents, std::string_view word, std::size_t count) {
  std::size_t at = contents.find(word);
  for (; at != contents.npos && count > 0; --count) at = contents.find(word, at + word.size());
  return at != contents.npos;
}

// libcups skips the first and ends a line at the second. A part's name must be no other group's.
bool isPeculiar(std::string_view contents) {
  return contents.find('\x1a') != contents.npos || contents.find('\0') != contents.npos ||
         contents.find(kPart) != contents.npos;
}

// Writes a PPD anew, with its plain options in parts and without their defaults.
class Easing {
 public:
  Easing(std::string_view contents, std::size_t inPart)
      : mStatements(ppdStatements(contents)), mOptions(plainOptions(mStatements)), mInPart(inPart) {
    mEased.contents.reserve(contents.size());
  }

  EasedPpd eased() {
    PpdGroupWalk survey;
    forEachPiece([](const PlainOption&) {}, [&](const PpdStatement& each) { survey.pass(each); });
    forEachPiece([&](const PlainOption& option) { write(option, survey); },
                 [&](const PpdStatement& statement) { write(statement); });
    return std::move(mEased);
  }

 private:
  // How far a group has come.
  struct Place {
    std::size_t options = 0;
    std::size_t part = kNoPart;
  };

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

  void write(const PlainOption& option, const PpdGroupWalk& survey) {
    const std::string_view group = mWalk.group();
    goTo(survey.isPlain(group) ? partFor(group) : kNoPart);
    for (std::size_t at = option.first; at <= option.last; ++at)
      if (at != option.defaultAt) mEased.contents += mStatements[at].text;
    if (option.defaultAt != kNoStatement)
      mEased.defaults.emplace(option.keyword, option.defaultChoice);
  }

  // Nothing but what libcups skips may stand within a part beside plain options.
  void write(const PpdStatement& statement) {
    if (!statement.keyword.empty()) goTo(kNoPart);
    mWalk.pass(statement);
    mEased.contents += statement.text;
  }

  // The last part of the group, a new one where that is full. The first options are in the group.
  std::size_t partFor(std::string_view group) {
    Place& place = mPlaces[group];
    if (place.options > 0 && place.options % mInPart == 0) {
      place.part = mEased.parts.size();
      mEased.parts.push_back(group);
    }
    ++place.options;
    return place.part;
  }

  // Back in the group, or outside of groups, for kNoPart.
  void goTo(std::size_t part) {
    if (part == mPart) return;
    const auto& opening = mWalk.opening();
    if (opening || mPart != kNoPart) mEased.contents += kClosePart;
    if (part != kNoPart) {
      mEased.contents.append(kOpenPart).append(partName(part)) += '\n';
    } else if (opening) {
      mEased.contents += opening->text;
    }
    mPart = part;
  }

  const std::vector<PpdStatement> mStatements;
  const std::vector<PlainOption> mOptions;
  const std::size_t mInPart;
  PpdGroupWalk mWalk;
  std::map<std::string_view, Place> mPlaces;
  std::size_t mPart = kNoPart;  // that is open
  EasedPpd mEased;
};

}  // namespace

std::optional<EasedPpd> easedPpd(std::string_view contents, const EasingCounts& counts) {
  if (!hasMore(contents, "*OpenUI", counts.fewOptions) || isPeculiar(contents)) return std::nullopt;
  return Easing(contents, counts.inPart).eased();
}

std::string partName(std::size_t part) { return std::string(kPart) + std::to_string(part); }

bool isPart(std::string_view group) { return group.starts_with(kPart); }

}  // namespace cutline
