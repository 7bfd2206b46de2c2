#include "tests/textinput/VettingModel.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <limits>

namespace cutline {
namespace {

constexpr char kInvalid[] = "InvalidCharacterNotification";
constexpr char kFormatError[] = "FormatErrorNotification";

const std::u16string kDigits = u"0123456789";
const std::u16string kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

// What a style accepts, spelt out; nothing for those that accept all of ASCII.
std::optional<std::u16string> acceptedBy(int style) {
  switch (style) {
    case 2:
      return kDigits;
    case 4:
      return kDigits + u".";
    case 6:
      return kLetters + kDigits + u" ";
    case 7:
      return kLetters + kDigits + u" $%+-./";
    case 8:
      return kDigits + u"$+-./:";
    case 9:
      return kDigits + u"$+-./:ABCDabcd";
    case 11:
      return kLetters + kDigits + u" !\"%'()*+,-./:;<=>?_";
    default:
      return std::nullopt;
  }
}

bool isAccepted(int style, char16_t c) {
  if (style == 10) return c >= u' ' && c <= u'~';
  const auto accepted = acceptedBy(style);
  return !accepted || accepted->find(c) != std::u16string::npos;
}

bool isAscii(const std::u16string& text) {
  return std::all_of(text.begin(), text.end(), [](char16_t c) { return c < 128; });
}

bool isMacRoman(const std::u16string& text) {
  return std::all_of(text.begin(), text.end(), [](char16_t c) { return c < 128 || c == u'é'; });
}

int bytesIn(const std::u16string& text) {
  int bytes = 0;
  for (const char16_t c : text) {
    const bool isHalf = c >= 0xD800 && c < 0xE000;
    bytes += c < 128 ? 1 : c < 0x800 || isHalf ? 2 : 3;
  }
  return bytes;
}

std::string spelt(char16_t c) {
  if (c < 128) return {static_cast<char>(c)};
  if (c == u'é') return "é";
  return c == u'あ' ? "あ" : "\xEF\xBF\xBD";
}

}  // namespace

int leadingNumber(const std::u16string& text) {
  using Limits = std::numeric_limits<int>;
  std::string ascii;
  for (const char16_t c : text) ascii += c < 128 ? static_cast<char>(c) : '?';
  const long long number = std::strtoll(ascii.c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

std::optional<Refusal> refusalOf(const VettingSettings& settings, const std::u16string& original,
                                 std::size_t from, const std::u16string& proposed, std::size_t to) {
  if (proposed.empty() || to <= from) return std::nullopt;
  const std::u16string typed = proposed.substr(from, to - from);
  const bool isForbidden = std::count(settings.forbidden.begin(), settings.forbidden.end(), typed);
  const bool isNumber = settings.style == 2 || settings.style == 4;
  const int length = bytesIn(proposed);
  Refusal refusal;
  for (const char16_t c : typed) {
    if ((settings.style != 0 && !isMacRoman(typed)) || isForbidden) {
      refusal = {kInvalid, spelt(c)};
      continue;
    }
    if (settings.maxLength != 0 && length > settings.maxLength) {
      refusal.name = kInvalid;
      continue;
    }
    if (settings.style == 0) continue;
    const bool isSecondPoint =
        settings.style == 4 && c == u'.' && original.find(u'.') != std::u16string::npos;
    if (!isAscii(typed) || isSecondPoint || !isAccepted(settings.style, c)) {
      refusal.name = kInvalid;
      continue;
    }
    if (!isNumber || (settings.maxLength != 0 && length != settings.maxLength)) continue;
    const int value = leadingNumber(proposed);
    if (settings.maxValue && *settings.maxValue < value) {
      refusal.name = kFormatError;
    } else if (settings.minValue && *settings.minValue > value) {
      refusal.name = kFormatError;
    }
  }
  if (refusal.name.empty()) return std::nullopt;
  return refusal;
}

}  // namespace cutline
