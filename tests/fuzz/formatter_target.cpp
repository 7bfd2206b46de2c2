// Settings of the formatter and a sequence of edits: each stands or is refused as the model of the
// vetting rules says.
#include "bundle/textinput/PDEFormatter.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/fuzz/Input.h"
#include "tests/fuzz/Insist.h"
#include "tests/support/VettingModel.h"

namespace {

using namespace cutline;

constexpr const char* kCodesets[] = {"UTF-8", "ISO-8859-1", "Shift_JIS"};
constexpr const char* kForbidden[] = {"1", "0", ".", "a", "12", "あ", "😀", "", "é", "\uFFFD"};

test::VettingSettings settingsIn(fuzz::Input& input) {
  test::VettingSettings settings;
  settings.codeset = input.oneOf(kCodesets);
  settings.style = static_cast<std::int8_t>(input.byte());
  settings.maxLength = input.flag() ? input.integer() : static_cast<int>(input.below(8));
  if (input.flag()) settings.maxValue = input.integer();
  if (input.flag()) settings.minValue = input.integer();
  for (std::size_t left = input.below(4); left > 0; --left)
    settings.forbidden.emplace_back(input.oneOf(kForbidden));
  return settings;
}

std::u16string textIn(fuzz::Input& input) {
  constexpr std::size_t kAscii = 128;
  std::u16string text;
  for (std::size_t left = input.below(9); left > 0; --left) {
    const std::uint8_t byte = input.byte();
    if (byte < kAscii)
      text += static_cast<char16_t>(byte == 0 ? '0' : byte);
    else
      text += test::charactersBeyondAscii()[byte % test::charactersBeyondAscii().size()];
  }
  return text;
}

void apply(const test::VettingSettings& settings, PDEFormatter& formatter) {
  formatter.setMaxLength(settings.maxLength);
  if (settings.maxValue) formatter.setMaxValue(*settings.maxValue);
  if (settings.minValue) formatter.setMinValue(*settings.minValue);
  for (const std::string& string : settings.forbidden) formatter.addInvalidCharacter(string);
}

void tryEdit(fuzz::Input& input, const test::VettingSettings& settings, PDEFormatter& formatter) {
  const std::u16string original = textIn(input);
  const TextRange selection{input.below(12), input.below(12)};
  const std::optional<std::u16string> proposed = textIn(input);
  const TextRange after{input.below(12), input.below(12)};
  std::optional<std::u16string> text = proposed;
  TextRange range = after;
  const bool stands = formatter.isPartialStringValid(&text, &range, original, selection, nullptr);
  fuzz::insist(text == proposed && range == after, "nothing that was typed is changed");
  const auto refusal = refusalOf(settings, original, selection.location, *proposed, after.location);
  fuzz::insist(stands != refusal.has_value(), "the formatter agrees with the model");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const test::VettingSettings settings = settingsIn(input);
  const test::TestPlatform platform(settings.codeset);
  PDEFormatter formatter;
  formatter.initWithStyle(settings.style);
  apply(settings, formatter);
  while (!input.isEmpty()) tryEdit(input, settings, formatter);
  formatter.setFormatString(std::string(reinterpret_cast<const char*>(data), size));
  static_cast<void>(formatter.stringForObjectValue("17"));
  static_cast<void>(formatter.stringForObjectValue(17));
  return 0;
}
