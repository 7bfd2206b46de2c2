// Reading of small files such as a bundle's resources.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "base/FileDescriptor.h"

namespace cutline {

// No resource of a bundle comes near this size.
inline constexpr std::size_t kLargestResource = std::size_t{16} << 20;

// Nor has a picture of a bundle as many pixels.
inline constexpr double kMostPicturePixels = 1 << 24;

// The bytes of a regular file; nothing when it is none, cannot be read or is larger than `limit`.
std::optional<std::string> readResource(const std::filesystem::path& path,
                                        std::size_t limit = kLargestResource) noexcept;

// The same of an open file.
std::optional<std::string> readResource(const FileDescriptor& file,
                                        std::size_t limit = kLargestResource) noexcept;

// Whether a regular file of at most that size stands there; it is not opened.
bool isResourceFile(const std::string& path, std::size_t limit = kLargestResource) noexcept;

// Whether a resource may go by this name: one path component, no NUL, neither "." nor "..".
bool isResourceName(const std::string& name) noexcept;

}  // namespace cutline
