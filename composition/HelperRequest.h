// What a confined program is asked, through a Unix stream socket: files, and then a text.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileDescriptor.h"

namespace cutline {

// The files are borrowed. A program that does not take them is noticed by its answer.
void sendFiles(int socket, std::span<const int> files);
// Blocks for up to `patience`. A program that does not take it all is noticed by its answer.
void sendText(int socket, std::string_view text, std::chrono::milliseconds patience);

// The files that are sent first; no program that is started gets them. Nothing where the other end
// sends none.
std::optional<std::vector<FileDescriptor>> receiveFiles(int socket);
// Whether the text that follows them is there, or begins to be.
bool isTextSent(int socket);
// All of it, once the other end is closed. Nothing where it cannot be had.
std::optional<std::string> receiveText(int socket);

}  // namespace cutline
