// Stateless helpers of the panels: PPD attributes and options, choice lists, titles, and small
// string tests. Each tolerates an absent PPD, option or attribute.
#pragma once

#include <cups/ppd.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "bundle/ppd/PDEChoice.h"
#include "platform/ports/Geometry.h"

namespace cutline {

class Control;

class PDEUtilsMethod13 {
 public:
  PDEUtilsMethod13() = delete;

  static bool runningOn105OrLater() noexcept;

  // ppdAttrValStr:cStrKey:  The attribute's value, decoded in the system encoding; nothing when the
  // attribute or its value is absent or cannot be decoded.
  static std::optional<std::string> ppdAttrValStr(ppd_file_t* ppd, const char* cStrKey) noexcept;
  // ppdOptionTextStr:cStrKey:  The option's text, decoded in the system encoding.
  static std::optional<std::string> ppdOptionTextStr(ppd_file_t* ppd, const char* cStrKey) noexcept;
  // isSupportedItem:cStrKey:  True exactly when the attribute's value is "False": the attributes
  // say what is hidden, the callers ask what is shown.
  static bool isSupportedItem(ppd_file_t* ppd, const char* cStrKey) noexcept;
  // originItem:cStrKey:  The point that the attribute's value spells, as "{x, y}"; else the zero
  // point.
  static Point originItem(ppd_file_t* ppd, const char* cStrKey) noexcept;

  // arrayFromPPDOption:  A new list; null for a null option. It borrows the PPD's records.
  static std::unique_ptr<ChoiceList> arrayFromPPDOption(ppd_option_t* option) noexcept;
  // findChoiceForString:choices:  The first element with this PPD title, or without a keyword the
  // first default one; null when there is none.
  static PDEChoice* findChoiceForString(const std::optional<std::string>& keyword,
                                        const ChoiceList* choices) noexcept;

  // newOptionTitle:  The option's text; nothing when it is no valid UTF-8.
  static std::optional<std::string> newOptionTitle(const ppd_option_t* option) noexcept;
  // newChoiceTitle:
  static std::optional<std::string> newChoiceTitle(const ppd_choice_t* choice) noexcept;

  // setEnabledForText:item:  Gives a control that can take a text colour the enabled colour when
  // the flag is exactly 1 and the disabled one otherwise; leaves other controls alone.
  static void setEnabledForText(int enabled, Control* item) noexcept;

  // The string group (PDEUtils_String.cpp).

  // stringLengthConvertedToEncoding:  The number of bytes in the system encoding, or else in the
  // first encoding of the platform that can carry the string; 0 for no string or when none can.
  static std::size_t stringLengthConvertedToEncoding(
      const std::optional<std::string>& string) noexcept;
  // scanString:intoString:  Whether the pattern occurs, byte for byte. An empty pattern never does.
  static bool scanString(const std::string& text, const std::string& pattern) noexcept;
  // deleteString:intoString:  The text without the pattern's first occurrence; nothing when it has
  // none.
  static std::optional<std::string> deleteString(const std::string& text,
                                                 const std::string& pattern) noexcept;
};

}  // namespace cutline
