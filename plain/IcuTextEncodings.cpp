#include "plain/IcuTextEncodings.h"

#include <langinfo.h>
#include <locale.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <cstdlib>
#include <limits>
#include <utility>

namespace cutline {
namespace {

constexpr char kUTF8[] = "UTF-8";

// By TextEncoding; the last is the user's own.
constexpr const char* kConverterNames[] = {"US-ASCII", kUTF8, "macintosh", nullptr};

// Two bytes a unit and the escape sequences of stateful encodings, with room to spare.
constexpr std::size_t kMostBytesPerUnit = 8;
constexpr std::size_t kLongest = std::numeric_limits<std::int32_t>::max() / kMostBytesPerUnit - 64;

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

std::optional<std::u16string> toUnits(UConverter* from, std::string_view bytes) {
  if (!from || bytes.size() > kLongest) return std::nullopt;
  std::u16string units(bytes.size() * 2 + 1, u'\0');
  UErrorCode status = U_ZERO_ERROR;
  const auto length = ucnv_toUChars(from, units.data(), static_cast<std::int32_t>(units.size()),
                                    bytes.data(), static_cast<std::int32_t>(bytes.size()), &status);
  if (U_FAILURE(status)) return std::nullopt;
  units.resize(static_cast<std::size_t>(length));
  return units;
}

std::optional<std::string> fromUnits(UConverter* to, std::u16string_view units) {
  if (!to) return std::nullopt;
  std::string bytes(units.size() * kMostBytesPerUnit + 64, '\0');
  UErrorCode status = U_ZERO_ERROR;
  const auto length =
      ucnv_fromUChars(to, bytes.data(), static_cast<std::int32_t>(bytes.size()), units.data(),
                      static_cast<std::int32_t>(units.size()), &status);
  if (U_FAILURE(status)) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

// Lets the error that it is called for stand. ICU's own callback of that kind drops what is
// invisible, such as a soft hyphen, where the encoding lacks it.
void stopEncoding(const void*, UConverterFromUnicodeArgs*, const UChar*, std::int32_t, UChar32,
                  UConverterCallbackReason, UErrorCode*) {}

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

IcuTextEncodings::IcuTextEncodings(std::string systemCodeset)
    : mSystemCodeset(std::move(systemCodeset)) {}

IcuTextEncodings::~IcuTextEncodings() = default;

void IcuTextEncodings::Closer::operator()(UConverter* converter) const noexcept {
  ucnv_close(converter);
}

IcuTextEncodings::Converter IcuTextEncodings::open(const std::string& name) noexcept {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(name.c_str(), &status));
  if (U_FAILURE(status)) return nullptr;
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFromUCallBack(converter.get(), stopEncoding, nullptr, nullptr, nullptr, &status);
  ucnv_setFallback(converter.get(), false);
  return U_FAILURE(status) ? nullptr : std::move(converter);
}

UConverter* IcuTextEncodings::converter(TextEncoding encoding) const noexcept {
  const auto index = static_cast<std::size_t>(encoding);
  Converter& kept = mConverters[index];
  const char* name = kConverterNames[index];
  if (!kept) kept = open(name ? name : mSystemCodeset);
  // Not even ASCII could be read otherwise.
  if (!kept && !name) kept = open(kUTF8);
  return kept.get();
}

std::optional<std::string> IcuTextEncodings::decode(std::string_view bytes,
                                                    TextEncoding encoding) const noexcept {
  const auto units = toUnits(converter(encoding), bytes);
  return units ? fromUnits(converter(TextEncoding::utf8), *units) : std::nullopt;
}

std::optional<std::string> IcuTextEncodings::encode(std::string_view utf8,
                                                    TextEncoding encoding) const noexcept {
  const auto units = toUnits(converter(TextEncoding::utf8), utf8);
  return units ? fromUnits(converter(encoding), *units) : std::nullopt;
}

std::vector<TextEncoding> IcuTextEncodings::availableStringEncodings() const noexcept {
  return {TextEncoding::macRoman, TextEncoding::ascii, TextEncoding::utf8, TextEncoding::system};
}

}  // namespace cutline
