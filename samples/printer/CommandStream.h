// The language that the filter speaks to the printer: lines of commands, a label's dots behind its
// line.
//
//   cutline-printer 1         first line
//   set NAME VALUE            a fact about the job; control characters and % in VALUE as %XX
//   resolution ACROSS ALONG   dots an inch
//   feed DOTS                 blank tape
//   label WIDTH HEIGHT        followed by the rows of the bitmap
//   cut half|full
//   end                       without it the job was broken off
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "samples/printer/Bitmap.h"
#include "strip/KnifeRules.h"

namespace cutline::printer {

struct Setting {
  std::string name;
  std::string value;
};
struct Resolution {
  std::uint32_t across = 0;
  std::uint32_t along = 0;
};
struct Feed {
  std::uint32_t dots = 0;
};
struct End {};
using Command = std::variant<Setting, Resolution, Feed, Bitmap, Cut, End>;

// What a page may take in the printer's memory.
inline constexpr std::uint64_t kMaxLabelBytes = 64U << 20;
inline constexpr std::uint32_t kMaxSide = 1'000'000;

// Writes to a descriptor that stays the caller's.
class CommandWriter {
 public:
  explicit CommandWriter(int descriptor) : mDescriptor(descriptor) {}

  // No when the other end is gone or full; the rest is then not worth writing. Cut::None
  // writes nothing.
  bool begin();
  bool write(const Command& command);

 private:
  bool line(std::string_view text);
  bool bytes(const void* data, std::size_t size);

  int mDescriptor;
};

// Reads from a descriptor that stays the caller's.
class CommandReader {
 public:
  explicit CommandReader(int descriptor) : mDescriptor(descriptor) {}

  // The first line; no when something else comes.
  bool begin();
  // The next command; none at the end of the data, after a signal, and on what is no command.
  std::optional<Command> next();

 private:
  std::optional<std::string> line();
  bool bytes(std::uint8_t* data, std::size_t size);
  bool fill();

  std::optional<Command> label(std::string_view size);

  int mDescriptor;
  std::string mBuffer;
  std::size_t mUsed = 0;
};

}  // namespace cutline::printer
