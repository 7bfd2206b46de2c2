#include "bundle/options/uri_scheme.h"

#include <algorithm>

namespace cutline {
namespace {

constexpr bool isLetter(char c) noexcept {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool belongsToScheme(char c) noexcept {
  return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

}  // namespace

std::string_view schemeOfURI(std::string_view uri) noexcept {
  const auto colon = uri.find(':');
  if (colon == std::string_view::npos || colon == 0) return {};
  const std::string_view scheme = uri.substr(0, colon);
  const bool isWellFormed =
      isLetter(scheme.front()) && std::all_of(scheme.begin(), scheme.end(), belongsToScheme);
  return isWellFormed ? scheme : std::string_view();
}

}  // namespace cutline
