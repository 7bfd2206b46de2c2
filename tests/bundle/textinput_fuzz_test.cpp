// Edits at random, against a model that walks the typed text step by step and converts nothing but
// by its own table of characters.
#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <sstream>

#include "tests/bundle/FormatterTest.h"
#include "tests/bundle/StyleCharacters.h"

namespace cutline::test {
namespace {

// Characters that edits are made of, with their bytes in each system encoding; 0 where they are not
// in it. Every other character here is ASCII, and has one byte in each.
struct Character {
  std::u16string units;
  std::string utf8;
  bool isInMacRoman;
  std::size_t bytesInLatin1;
  std::size_t bytesInShiftJis;
};
const std::vector<Character> kCharacters = {
    {u"é", "é", true, 1, 0},
    {u"ß", "ß", true, 1, 0},
    {u"€", "€", true, 0, 0},
    {u"Ω", "Ω", true, 0, 2},
    {u"あ", "あ", false, 0, 2},
    {u"ｱ", "ｱ", false, 0, 1},
    {u"１", "１", false, 0, 2},
    {u"\u00AD", "\u00AD", false, 1, 0},
    {u"\u200B", "\u200B", false, 0, 0},
    {u"😀", "😀", false, 0, 0},
};

// A text taken apart into characters; nothing when it isn't made of those.
std::optional<std::vector<Character>> charactersOf(std::u16string_view text) {
  std::vector<Character> characters;
  while (!text.empty()) {
    Character next{{text[0]}, {static_cast<char>(text[0])}, true, 1, 1};
    const auto found = std::ranges::find_if(
        kCharacters, [&](const Character& one) { return text.starts_with(one.units); });
    if (found != kCharacters.end()) next = *found;
    if (found == kCharacters.end() && text[0] >= 128) return std::nullopt;
    text.remove_prefix(next.units.size());
    characters.push_back(next);
  }
  return characters;
}

struct Settings {
  int style = 0;
  int maxLength = 0;
  std::optional<int> maxValue, minValue;
  std::vector<std::string> forbidden;
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

class Model {
 public:
  Model(std::string codeset, Settings settings, const void* formatter)
      : mCodeset(std::move(codeset)), mSettings(std::move(settings)), mFormatter(formatter) {}

  Outcome outcome(const Edit& edit) const {
    const std::size_t from = edit.selection.location;
    const std::size_t to = edit.proposedSelection.location;
    if (edit.proposed.empty() || to <= from || to > edit.proposed.size()) return {};
    const std::u16string typed = edit.proposed.substr(from, to - from);

    std::string name;
    std::optional<std::string> character;
    for (const char16_t c : typed) {
      if (mSettings.style != 0 && !isInMacRoman(typed)) {
        character = oneCharacter(c);
        name = "InvalidCharacterNotification";
        continue;
      }
      if (isForbidden(typed)) {
        character = oneCharacter(c);
        name = "InvalidCharacterNotification";
        continue;
      }
      const std::int64_t length = lengthOf(edit.proposed);
      if (mSettings.maxLength != 0 && length > mSettings.maxLength) {
        name = "InvalidCharacterNotification";
        continue;
      }
      if (mSettings.style == 0) continue;
      if (!isAscii(typed) || !isInStyle(c, edit.original)) {
        name = "InvalidCharacterNotification";
        continue;
      }
      if (mSettings.style != 2 && mSettings.style != 4) continue;
      if (mSettings.maxLength != 0 && length != mSettings.maxLength) continue;
      const int value = valueOf(edit.proposed);
      if (mSettings.maxValue && *mSettings.maxValue < value) {
        name = "FormatErrorNotification";
      } else if (mSettings.minValue && *mSettings.minValue > value) {
        name = "FormatErrorNotification";
      }
    }
    if (name.empty()) return {};
    if (character) return {name, *character};
    if (mSettings.object) return {name, static_cast<const void*>(mSettings.object.get())};
    return {name, mFormatter};
  }

 private:
  static std::string oneCharacter(char16_t c) {
    const auto characters = charactersOf({&c, 1});
    return characters ? characters->front().utf8 : "\uFFFD";
  }

  static bool isInMacRoman(const std::u16string& text) {
    const auto characters = charactersOf(text);
    return characters && std::ranges::all_of(*characters, &Character::isInMacRoman);
  }

  static bool isAscii(const std::u16string& text) {
    return std::ranges::all_of(text, [](char16_t c) { return c < 128; });
  }

  bool isForbidden(const std::u16string& text) const {
    const auto characters = charactersOf(text);
    if (!characters) return false;
    std::string whole;
    for (const Character& character : *characters) whole += character.utf8;
    return std::ranges::count(mSettings.forbidden, whole) > 0;
  }

  std::int64_t lengthOf(const std::u16string& text) const {
    const auto characters = charactersOf(text);
    const auto inCharacters = static_cast<std::int64_t>(text.size());
    if (!characters) return inCharacters;
    std::size_t length = 0;
    for (const Character& character : *characters) {
      std::size_t bytes = character.utf8.size();
      if (mCodeset == "ISO-8859-1") bytes = character.bytesInLatin1;
      if (mCodeset == "Shift_JIS") bytes = character.bytesInShiftJis;
      if (bytes == 0) return inCharacters;
      length += bytes;
    }
    return static_cast<std::int64_t>(length);
  }

  bool isInStyle(char16_t c, const std::u16string& original) const {
    if (mSettings.style == 4 && !original.empty() && c == u'.' &&
        original.find(u'.') != original.npos) {
      return false;
    }
    const auto taken = charactersOfStyle(mSettings.style);
    return !taken || taken->find(static_cast<char>(c)) != taken->npos;
  }

  static int valueOf(const std::u16string& text) {
    std::string ascii;
    for (const char16_t c : text) ascii += c < 128 ? static_cast<char>(c) : '?';
    const long long value = std::strtoll(ascii.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
  }

  std::string mCodeset;
  Settings mSettings;
  const void* mFormatter;
};

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

  Settings settings() {
    constexpr int kStyles[] = {0, 1, 2, 2,  2,  3,  4,  4,  4,       5,      6,
                               7, 8, 9, 10, 11, 12, 13, -1, INT_MIN, INT_MAX};
    constexpr int kLengths[] = {0, 0, 0, 1, 2, 3, 4, 6, 9, -1, INT_MAX};
    constexpr int kValues[] = {0, 1, 5, 9, 10, 42, 99, 255, 1000, -1, -5, INT_MAX, INT_MIN};
    constexpr const char* kForbidden[] = {"1", "0", ".", "a", "12", "あ", "😀", "", "é", "\uFFFD"};
    Settings made;
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
    if (oneIn(3)) return oneOf(kCharacters).units;
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

std::string described(const Settings& settings, const Edit& edit) {
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

  void use(const Settings& settings) {
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
  Settings settings;
  std::size_t refused = 0;
  for (int i = 0; i < kEdits; ++i) {
    if (i % kEditsOfOneFormatter == 0) use(settings = dice.settings());
    const Edit made = dice.edit();
    const Outcome expected = Model(GetParam(), settings, formatter.get()).outcome(made);
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
