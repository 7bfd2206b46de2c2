// Edits at random, against the model of the vetting rules.
#include <algorithm>
#include <climits>
#include <random>
#include <sstream>

#include "tests/bundle/FormatterTest.h"
#include "tests/support/VettingModel.h"

namespace cutline::test {
namespace {

struct EditSettings : VettingSettings {
  std::shared_ptr<const int> object;  // of notifications
};

struct Edit {
  std::u16string original, proposed;
  TextRange selection, proposedSelection;
};

struct Outcome {
  std::string name;  // empty when the edit stands
  NotificationObject object;
};

Outcome outcomeOf(const Edit& edit, const EditSettings& settings, const void* formatter) {
  const auto refusal = refusalOf(settings, edit.original, edit.selection.location, edit.proposed,
                                 edit.proposedSelection.location);
  if (!refusal) return {};
  if (refusal->character) return {refusal->name, *refusal->character};
  if (settings.object) return {refusal->name, static_cast<const void*>(settings.object.get())};
  return {refusal->name, formatter};
}

class Dice {
 public:
  explicit Dice(unsigned seed) : mRandom(seed) {}

  std::size_t below(std::size_t end) { return mRandom() % end; }
  bool oneIn(std::size_t chances) { return below(chances) == 0; }
  template <typename List>
  auto oneOf(const List& list) {
    return list[below(std::size(list))];
  }

  // Mostly digits, so that values and lengths are met often.
  std::u16string text(std::size_t longest) {
    std::u16string made;
    for (std::size_t i = below(longest + 1); i > 0; --i) made += piece();
    return made;
  }

  EditSettings settings() {
    constexpr int kStyles[] = {0, 1, 2, 2,  2,  3,  4,  4,  4,       5,      6,
                               7, 8, 9, 10, 11, 12, 13, -1, INT_MIN, INT_MAX};
    constexpr int kLengths[] = {0, 0, 0, 1, 2, 3, 4, 6, 9, -1, INT_MAX};
    constexpr int kValues[] = {0, 1, 5, 9, 10, 42, 99, 255, 1000, -1, -5, INT_MAX, INT_MIN};
    constexpr const char* kForbidden[] = {"1", "0", ".", "a", "12", "あ", "😀", "", "é", "\uFFFD"};
    EditSettings made;
    made.style = oneOf(kStyles);
    made.maxLength = oneOf(kLengths);
    if (oneIn(2)) made.maxValue = oneOf(kValues);
    if (oneIn(3)) made.minValue = oneOf(kValues);
    while (oneIn(3)) made.forbidden.emplace_back(oneOf(kForbidden));
    if (oneIn(3)) made.object = std::make_shared<const int>(0);
    return made;
  }

  Edit edit() {
    Edit made;
    made.original = text(7);
    made.selection.location = below(made.original.size() + 1);
    made.selection.length = below(made.original.size() - made.selection.location + 1);
    if (oneIn(8)) return nonsense(made);
    const std::u16string typed = text(oneIn(3) ? 6 : 1);
    made.proposed = made.original;
    made.proposed.replace(made.selection.location, made.selection.length, typed);
    made.proposedSelection = {made.selection.location + typed.size(), 0};
    return made;
  }

 private:
  std::u16string piece() {
    if (!oneIn(3)) return {static_cast<char16_t>(u'0' + below(10))};
    if (oneIn(3)) return oneOf(charactersBeyondAscii());
    if (oneIn(10)) return {static_cast<char16_t>(0xD800 + below(0x800))};
    if (oneIn(3)) return {oneOf(std::u16string_view(u"..-+ \t"))};
    return {static_cast<char16_t>(1 + below(127))};
  }

  // What no user makes, but a toolkit might.
  Edit nonsense(Edit made) {
    made.proposed = text(8);
    made.selection = {oneIn(9) ? SIZE_MAX : below(10), below(10)};
    made.proposedSelection = {oneIn(9) ? SIZE_MAX : below(12), oneIn(9) ? SIZE_MAX : below(10)};
    return made;
  }

  std::mt19937 mRandom;
};

std::string described(const EditSettings& settings, const Edit& edit) {
  std::ostringstream text;
  text << "style " << settings.style << ", length " << settings.maxLength << ", values "
       << settings.minValue.value_or(0) << (settings.minValue ? "" : " (unchecked)") << " to "
       << settings.maxValue.value_or(0) << (settings.maxValue ? "" : " (unchecked)")
       << ", forbidden:";
  for (const std::string& string : settings.forbidden) text << " \"" << string << '"';
  const auto print = [&](const char* what, const std::u16string& units, TextRange range) {
    text << '\n' << what << std::hex;
    for (const char16_t c : units) text << ' ' << static_cast<int>(c);
    text << std::dec << " at " << range.location << ", " << range.length;
  };
  print("from", edit.original, edit.selection);
  print("to", edit.proposed, edit.proposedSelection);
  return text.str();
}

class FormatterFuzz : public FormatterTest, public testing::WithParamInterface<std::string> {
 protected:
  FormatterFuzz() : FormatterTest(GetParam()) {}

  void use(const EditSettings& settings) {
    useStyle(settings.style);
    formatter->setMaxLength(settings.maxLength);
    if (settings.maxValue) formatter->setMaxValue(*settings.maxValue);
    if (settings.minValue) formatter->setMinValue(*settings.minValue);
    for (const std::string& string : settings.forbidden) formatter->addInvalidCharacter(string);
    formatter->setNotificationObject(settings.object);
  }
};

TEST_P(FormatterFuzz, EditsAtRandomComeOutAsTheModelSays) {
  constexpr unsigned kSeed = 20210704;
  constexpr int kEdits = 20000;
  constexpr int kEditsOfOneFormatter = 20;
  Dice dice(kSeed);
  EditSettings settings;
  std::size_t refused = 0;
  for (int i = 0; i < kEdits; ++i) {
    if (i % kEditsOfOneFormatter == 0) {
      settings = dice.settings();
      settings.codeset = GetParam();
      use(settings);
    }
    const Edit made = dice.edit();
    const Outcome expected = outcomeOf(made, settings, formatter.get());
    SCOPED_TRACE("edit " + std::to_string(i) + " of seed " + std::to_string(kSeed) + ": " +
                 described(settings, made));
    posted.clear();
    const bool stands = edit(made.original, made.selection, made.proposed, made.proposedSelection);
    ASSERT_EQ(stands, expected.name.empty());
    ASSERT_EQ(lastName(), expected.name);
    ASSERT_EQ(lastObject(), expected.object);
    ASSERT_FALSE(HasFailure());
    refused += stands ? 0 : 1;
  }
  // Both must have been common, or little was tried.
  EXPECT_GT(refused, kEdits / 5U);
  EXPECT_LT(refused, kEdits / 5U * 4);
}

INSTANTIATE_TEST_SUITE_P(EachEncoding, FormatterFuzz,
                         testing::Values("UTF-8", "Shift_JIS", "ISO-8859-1"), [](const auto& row) {
                           std::string name = row.param;
                           std::erase_if(name, [](char c) { return !std::isalnum(c); });
                           return name;
                         });

}  // namespace
}  // namespace cutline::test
