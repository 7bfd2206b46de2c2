// The text encodings on ICU's converters: strict both ways, nothing is replaced.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/TextEncodings.h"

struct UConverter;

namespace cutline {

// The codeset of the user's locale as LC_ALL, LC_CTYPE and LANG name it, whether or not the program
// has set its locale; "UTF-8" where that is plain ASCII or no locale is named.
std::string codesetOfUserLocale();

// For one thread at a time: converters are opened at their first use and kept.
class IcuTextEncodings final : public TextEncodings {
 public:
  // `systemCodeset` is what TextEncoding::system stands for; UTF-8 takes the place of one that ICU
  // doesn't know.
  explicit IcuTextEncodings(std::string systemCodeset = codesetOfUserLocale());
  ~IcuTextEncodings() override;

  std::optional<std::string> decode(std::string_view bytes,
                                    TextEncoding encoding) const noexcept override;
  std::optional<std::string> encode(std::string_view utf8,
                                    TextEncoding encoding) const noexcept override;
  std::vector<TextEncoding> availableStringEncodings() const noexcept override;

 private:
  struct Closer {
    void operator()(UConverter* converter) const noexcept;
  };
  using Converter = std::unique_ptr<UConverter, Closer>;
  static Converter open(const std::string& name) noexcept;
  // Null when ICU doesn't know the encoding.
  UConverter* converter(TextEncoding encoding) const noexcept;

  std::string mSystemCodeset;
  mutable std::array<Converter, 4> mConverters;  // by TextEncoding
};

}  // namespace cutline
