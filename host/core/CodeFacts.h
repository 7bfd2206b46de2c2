// What a file of code says of itself, read without running any of it: a library's constructors run
// as soon as it is loaded.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/FileDescriptor.h"

namespace cutline {

// The bytes of the file's section of that name; nothing when there is none.
std::optional<std::string> codeSection(const FileDescriptor& file, std::string_view name);

// Whether the library offers a function or a variable of that name to those who load it.
bool offersSymbol(const FileDescriptor& file, std::string_view name);

}  // namespace cutline
