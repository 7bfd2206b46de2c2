// The text encodings of the user's locale and of the panels' texts: strict both ways, nothing is
// replaced.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/TextEncodings.h"

namespace cutline {

// The codeset of the user's locale as LC_ALL, LC_CTYPE and LANG name it, whether or not the program
// has set its locale; "UTF-8" where that is plain ASCII or no locale is named.
std::string codesetOfUserLocale();

class LocaleTextEncodings final : public TextEncodings {
 public:
  // `systemCodeset` is what TextEncoding::system stands for; UTF-8 takes the place of one that the
  // system's converters (iconv) don't know.
  explicit LocaleTextEncodings(std::string systemCodeset = codesetOfUserLocale());

  std::optional<std::string> decode(std::string_view bytes,
                                    TextEncoding encoding) const noexcept override;
  std::optional<std::string> encode(std::string_view utf8,
                                    TextEncoding encoding) const noexcept override;
  std::vector<TextEncoding> availableStringEncodings() const noexcept override;

 private:
  // Whether it is the system's and not UTF-8.
  bool isOwn(TextEncoding encoding) const noexcept;

  std::string mSystemCodeset;
};

}  // namespace cutline
