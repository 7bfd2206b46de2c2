#include "tests/support/VettingModel.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace cutline::test {
namespace {

constexpr char kInvalid[] = "InvalidCharacterNotification";
constexpr char kFormatError[] = "FormatErrorNotification";

// A character with its bytes in each system encoding; 0 where it is not in it. ASCII has one byte
// in each.
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

std::string spelt(char16_t unit) {
  const auto characters = charactersOf({&unit, 1});
  return characters ? characters->front().utf8 : "\uFFFD";
}

bool isInMacRoman(const std::u16string& text) {
  const auto characters = charactersOf(text);
  return characters && std::ranges::all_of(*characters, &Character::isInMacRoman);
}

bool isAscii(const std::u16string& text) {
  return std::ranges::all_of(text, [](char16_t c) { return c < 128; });
}

// One step of the walk through what was typed.
class Vetting {
 public:
  Vetting(const VettingSettings& settings, const std::u16string& original,
          const std::u16string& proposed)
      : mSettings(settings), mOriginal(original), mProposed(proposed) {}

  void see(char16_t unit, const std::u16string& typed) {
    const bool isEncoded = mSettings.style == 0 || isInMacRoman(typed);
    if (!isEncoded || isForbidden(typed)) {
      mRefusal = {kInvalid, spelt(unit)};
      return;
    }
    const std::int64_t length = lengthOf(mProposed);
    const bool isTooLong = mSettings.maxLength != 0 && length > mSettings.maxLength;
    if (isTooLong || (mSettings.style != 0 && (!isAscii(typed) || !isInStyle(unit)))) {
      mRefusal.name = kInvalid;
      return;
    }
    if (mSettings.style != 2 && mSettings.style != 4) return;
    if (mSettings.maxLength == 0 || length == mSettings.maxLength) seeValue();
  }

  std::optional<Refusal> refusal() const {
    if (mRefusal.name.empty()) return std::nullopt;
    return mRefusal;
  }

 private:
  void seeValue() {
    const int value = leadingNumber(mProposed);
    if (mSettings.maxValue && *mSettings.maxValue < value) {
      mRefusal.name = kFormatError;
    } else if (mSettings.minValue && *mSettings.minValue > value) {
      mRefusal.name = kFormatError;
    }
  }

  bool isForbidden(const std::u16string& text) const {
    const auto characters = charactersOf(text);
    if (!characters) return false;
    std::string whole;
    for (const Character& character : *characters) whole += character.utf8;
    return std::ranges::count(mSettings.forbidden, whole) > 0;
  }

  std::size_t bytesOf(const Character& character) const {
    if (mSettings.codeset == "ISO-8859-1") return character.bytesInLatin1;
    if (mSettings.codeset == "Shift_JIS") return character.bytesInShiftJis;
    return character.utf8.size();
  }

  // In bytes of the system's encoding, or in characters of a text that it lacks.
  std::int64_t lengthOf(const std::u16string& text) const {
    const auto characters = charactersOf(text);
    const auto inCharacters = static_cast<std::int64_t>(text.size());
    if (!characters) return inCharacters;
    std::size_t length = 0;
    for (const Character& character : *characters) {
      const std::size_t bytes = bytesOf(character);
      if (bytes == 0) return inCharacters;
      length += bytes;
    }
    return static_cast<std::int64_t>(length);
  }

  bool isInStyle(char16_t unit) const {
    const bool hasPoint = mOriginal.find(u'.') != std::u16string::npos;
    if (mSettings.style == 4 && unit == u'.' && hasPoint) return false;
    const auto taken = charactersOfStyle(mSettings.style);
    return !taken || taken->find(static_cast<char>(unit)) != std::string::npos;
  }

  const VettingSettings& mSettings;
  const std::u16string& mOriginal;
  const std::u16string& mProposed;
  Refusal mRefusal;
};

}  // namespace

std::optional<Refusal> refusalOf(const VettingSettings& settings, const std::u16string& original,
                                 std::size_t from, const std::u16string& proposed, std::size_t to) {
  if (proposed.empty() || to <= from || to > proposed.size()) return std::nullopt;
  const std::u16string typed = proposed.substr(from, to - from);
  Vetting vetting(settings, original, proposed);
  for (const char16_t unit : typed) vetting.see(unit, typed);
  return vetting.refusal();
}

const std::vector<std::u16string>& charactersBeyondAscii() {
  static const std::vector<std::u16string> characters = [] {
    std::vector<std::u16string> all;
    for (const Character& character : kCharacters) all.push_back(character.units);
    return all;
  }();
  return characters;
}

std::optional<std::string> charactersOfStyle(int style) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  switch (style) {
    case 2:
      return "0123456789";
    case 4:
      return "0123456789.";
    case 6:
      return letters + "0123456789 ";
    case 7:
      return letters + "0123456789 $%+-./";
    case 8:
      return "0123456789$+-./:";
    case 9:
      return "0123456789$+-./:ABCDabcd";
    case 10:
      return letters + "0123456789 !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
    case 11:
      return letters + "0123456789 !\"%'()*+,-./:;<=>?_";
    default:
      return std::nullopt;
  }
}

int leadingNumber(const std::u16string& text) {
  using Limits = std::numeric_limits<int>;
  std::string ascii;
  for (const char16_t c : text) ascii += c < 128 ? static_cast<char>(c) : '?';
  const long long number = std::strtoll(ascii.c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

}  // namespace cutline::test
