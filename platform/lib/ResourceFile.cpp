#include "platform/lib/ResourceFile.h"

#include <fstream>
#include <string_view>
#include <system_error>

namespace cutline {

std::optional<std::string> readResource(const std::filesystem::path& path,
                                        std::size_t limit) noexcept {
  std::error_code error;
  // A pipe or a device under the name would block or never end.
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  const auto size = std::filesystem::file_size(path, error);
  if (error || size > limit) return std::nullopt;
  std::string bytes(size, '\0');
  std::ifstream file(path, std::ios::binary);
  if (!file.read(bytes.data(), static_cast<std::streamsize>(size))) return std::nullopt;
  return bytes;
}

bool isResourceName(const std::string& name) noexcept {
  constexpr std::string_view kForbidden("/\0", 2);
  if (name.empty() || name == "." || name == "..") return false;
  return name.find_first_of(kForbidden) == std::string::npos;
}

}  // namespace cutline
