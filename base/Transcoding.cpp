#include "base/Transcoding.h"

#include <iconv.h>

#include <array>
#include <cerrno>

namespace cutline {

namespace {

// The C library's own word for failure; no converter has it.
bool isFailure(std::size_t result) { return result == static_cast<std::size_t>(-1); }

class Converter {
 public:
  Converter(const std::string& from, const std::string& to)
      : mHandle(iconv_open(to.c_str(), from.c_str())) {}
  ~Converter() {
    if (isOpen()) iconv_close(mHandle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool isOpen() const { return !isFailure(reinterpret_cast<std::size_t>(mHandle)); }

  // Adds what becomes of the bytes, or, without any, what brings the text back to its first state.
  // False when not all of them could be converted, each to what it is.
  bool convert(char* bytes, std::size_t count, std::string& result) {
    std::array<char, 4096> block;
    while (true) {
      char* end = block.data();
      std::size_t room = block.size();
      const std::size_t changed =
          iconv(mHandle, bytes ? &bytes : nullptr, bytes ? &count : nullptr, &end, &room);
      const bool isFull = isFailure(changed) && errno == E2BIG;
      result.append(block.data(), end);
      if (!isFull) return changed == 0;
    }
  }

 private:
  iconv_t mHandle;
};

// To iconv no name is the locale's encoding, and what follows a slash asks it to replace.
bool isPlainName(const std::string& name) {
  return !name.empty() && name.find('/') == std::string::npos;
}

}  // namespace

std::optional<std::string> transcoded(std::string_view text, const std::string& from,
                                      const std::string& to) {
  if (!isPlainName(from) || !isPlainName(to)) return std::nullopt;
  Converter converter(from, to);
  if (!converter.isOpen()) return std::nullopt;
  std::string result;
  // The interface dates from before const; it writes nothing there.
  auto* bytes = const_cast<char*>(text.data());
  if (!text.empty() && !converter.convert(bytes, text.size(), result)) return std::nullopt;
  if (!converter.convert(nullptr, 0, result)) return std::nullopt;
  return result;
}

}  // namespace cutline
