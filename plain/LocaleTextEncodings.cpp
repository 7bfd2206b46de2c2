#include "plain/LocaleTextEncodings.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/Transcoding.h"
#include "base/Utf16.h"
#include "base/Utf8.h"

namespace cutline {
namespace {

constexpr char kUTF8[] = "UTF-8";
constexpr int kAsciiEnd = 0x80;

// Mac Roman from 0x80 on. The C library's own has a Greek letter where the increment sign stands.
constexpr std::u16string_view kMacRoman =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
    u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
    u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
    u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";
static_assert(kMacRoman.size() == 128);

bool isAsciiByte(char byte) { return static_cast<unsigned char>(byte) < kAsciiEnd; }
bool isAscii(std::string_view bytes) { return std::ranges::all_of(bytes, isAsciiByte); }

std::string fromMacRoman(std::string_view bytes) {
  std::u16string units;
  units.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    units += value < kAsciiEnd ? char16_t{value} : kMacRoman[value - kAsciiEnd];
  }
  return utf8FromUtf16(units);
}

std::optional<std::string> toMacRoman(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::int32_t character = takeCharacter(utf8);
    if (character < 0) return std::nullopt;
    const auto place = std::ranges::find(kMacRoman, character) - kMacRoman.begin();
    if (character >= kAsciiEnd && place == std::ssize(kMacRoman)) return std::nullopt;
    bytes += static_cast<char>(character < kAsciiEnd ? character : kAsciiEnd + place);
  }
  return bytes;
}

// The codeset in a locale's name, "de_DE.ISO-8859-1@euro"; empty when the name has none.
std::string codesetInName(std::string_view locale) {
  const auto dot = locale.find('.');
  if (dot == locale.npos) return {};
  const std::string_view rest = locale.substr(dot + 1);
  return std::string(rest.substr(0, rest.find('@')));
}

// What the environment names, for locales that aren't installed.
std::string codesetInEnvironment() {
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return codesetInName(value);
  }
  return {};
}

bool isKnown(const std::string& codeset) {
  return codeset == kUTF8 || transcoded({}, codeset, kUTF8);
}

// Of the encodings that have the bytes of UTF-8.
std::optional<std::string> sameInUtf8(std::string_view bytes, TextEncoding encoding) {
  const bool isText = encoding == TextEncoding::ascii ? isAscii(bytes) : isUtf8(bytes);
  if (!isText) return std::nullopt;
  return std::string(bytes);
}

}  // namespace

std::string codesetOfUserLocale() {
  std::string codeset;
  if (locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr)) {
    codeset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
  } else {
    codeset = codesetInEnvironment();
  }
  // ASCII is the codeset of programs that nobody gave a locale; their text is UTF-8 today.
  const bool isAscii = codeset.empty() || codeset == "ANSI_X3.4-1968" || codeset == "US-ASCII";
  return isAscii ? kUTF8 : codeset;
}

LocaleTextEncodings::LocaleTextEncodings(std::string systemCodeset)
    : mSystemCodeset(isKnown(systemCodeset) ? std::move(systemCodeset) : kUTF8) {}

std::optional<std::string> LocaleTextEncodings::decode(std::string_view bytes,
                                                       TextEncoding encoding) const noexcept {
  if (encoding == TextEncoding::macRoman) return fromMacRoman(bytes);
  if (isOwn(encoding)) return transcoded(bytes, mSystemCodeset, kUTF8);
  return sameInUtf8(bytes, encoding);
}

std::optional<std::string> LocaleTextEncodings::encode(std::string_view utf8,
                                                       TextEncoding encoding) const noexcept {
  if (encoding == TextEncoding::macRoman) return toMacRoman(utf8);
  if (isOwn(encoding)) return transcoded(utf8, kUTF8, mSystemCodeset);
  return sameInUtf8(utf8, encoding);
}

bool LocaleTextEncodings::isOwn(TextEncoding encoding) const noexcept {
  return encoding == TextEncoding::system && mSystemCodeset != kUTF8;
}

std::vector<TextEncoding> LocaleTextEncodings::availableStringEncodings() const noexcept {
  return {TextEncoding::macRoman, TextEncoding::ascii, TextEncoding::utf8, TextEncoding::system};
}

}  // namespace cutline
