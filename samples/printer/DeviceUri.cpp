#include "samples/printer/DeviceUri.h"

#include <charconv>

namespace cutline::printer {
namespace {

constexpr std::string_view kPace = "pace=";
constexpr unsigned kMaxPace = 60'000;

std::optional<unsigned> paceOf(std::string_view query) {
  unsigned pace = 0;
  if (!query.starts_with(kPace)) return std::nullopt;
  query.remove_prefix(kPace.size());
  const char* end = query.data() + query.size();
  const auto [stop, error] = std::from_chars(query.data(), end, pace);
  if (error != std::errc() || stop != end || pace > kMaxPace) return std::nullopt;
  return pace;
}

// None for a % without two digits, and for a NUL, at which the system would cut the path.
std::optional<std::string> unescaped(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    unsigned code = static_cast<unsigned char>(text[at]);
    if (text[at] == '%') {
      if (at + 2 >= text.size()) return std::nullopt;
      const char* digits = text.data() + at + 1;
      const auto [end, error] = std::from_chars(digits, digits + 2, code, 16);
      if (error != std::errc() || end != digits + 2) return std::nullopt;
      at += 2;
    }
    if (code == 0) return std::nullopt;
    result += static_cast<char>(code);
  }
  return result;
}

}  // namespace

std::optional<DeviceUri> deviceUriOf(std::string_view text) {
  if (!text.starts_with(kDeviceScheme)) return std::nullopt;
  text.remove_prefix(kDeviceScheme.size());
  if (!text.starts_with(":/")) return std::nullopt;
  text.remove_prefix(1);
  DeviceUri uri;
  if (const std::size_t mark = text.find('?'); mark != std::string_view::npos) {
    const auto pace = paceOf(text.substr(mark + 1));
    if (!pace) return std::nullopt;
    uri.pace = *pace;
    text = text.substr(0, mark);
  }
  auto folder = unescaped(text);
  if (!folder) return std::nullopt;
  uri.folder = std::move(*folder);
  return uri;
}

}  // namespace cutline::printer
