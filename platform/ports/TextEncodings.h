// Conversions between text encodings. Implemented by LocaleTextEncodings and by tests.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cutline {

enum class TextEncoding { ascii, utf8, macRoman, system };

class TextEncodings {
 public:
  virtual ~TextEncodings();
  // Bytes in `encoding` as UTF-8; nothing when they are not valid in it.
  virtual std::optional<std::string> decode(std::string_view bytes,
                                            TextEncoding encoding) const noexcept = 0;
  // UTF-8 text as bytes in `encoding`; nothing when it cannot be converted without loss.
  virtual std::optional<std::string> encode(std::string_view utf8,
                                            TextEncoding encoding) const noexcept = 0;
  // The encodings that the platform offers, in its own order.
  virtual std::vector<TextEncoding> availableStringEncodings() const noexcept = 0;
};

}  // namespace cutline
