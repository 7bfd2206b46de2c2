#include "samples/printer/CommandStream.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Numbers.h"

namespace cutline::printer {
namespace {

constexpr std::string_view kFirstLine = "cutline-printer 1";
constexpr std::size_t kMaxLine = 64 << 10;
constexpr std::size_t kReadSize = 64 << 10;
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool isPlain(unsigned char letter) { return letter >= 0x20 && letter != 0x7f && letter != '%'; }

std::string escaped(std::string_view text) {
  std::string result;
  for (const char letter : text) {
    const auto code = static_cast<unsigned char>(letter);
    if (isPlain(code)) {
      result += letter;
    } else {
      result += {'%', kHexDigits[code / 16], kHexDigits[code % 16]};
    }
  }
  return result;
}

std::string textOf(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isCoded = text[at] == '%' && at + 2 < text.size();
    const auto code =
        isCoded ? numberIn<unsigned>(text.substr(at + 1, 2), 16) : std::optional<unsigned>();
    result += code ? static_cast<char>(*code) : text[at];
    at += code ? 2 : 0;
  }
  return result;
}

// The part of `text` before its first blank, which it loses.
std::string_view wordTaken(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

std::optional<std::pair<std::uint32_t, std::uint32_t>> pairOf(std::string_view text) {
  const auto first = numberIn<std::uint32_t>(wordTaken(text));
  const auto second = numberIn<std::uint32_t>(text);
  if (!first || !second) return std::nullopt;
  return std::pair(*first, *second);
}

std::optional<Command> setting(std::string_view text) {
  const std::string_view name = wordTaken(text);
  return Setting{std::string(name), textOf(text)};
}

std::optional<Command> resolution(std::string_view text) {
  const auto dots = pairOf(text);
  if (!dots || dots->first == 0 || dots->second == 0) return std::nullopt;
  return Resolution{dots->first, dots->second};
}

std::optional<Command> feed(std::string_view text) {
  const auto dots = numberIn<std::uint32_t>(text);
  if (!dots || *dots > kMaxSide) return std::nullopt;
  return Feed{*dots};
}

std::optional<Command> cut(std::string_view text) {
  if (text == "half") return Cut::Half;
  if (text == "full") return Cut::Full;
  return std::nullopt;
}

std::optional<Command> end(std::string_view text) {
  if (!text.empty()) return std::nullopt;
  return End{};
}

std::string lineOf(const Setting& setting) {
  return "set " + setting.name + ' ' + escaped(setting.value);
}
std::string lineOf(const Resolution& dots) {
  return "resolution " + std::to_string(dots.across) + ' ' + std::to_string(dots.along);
}
std::string lineOf(const Feed& feed) { return "feed " + std::to_string(feed.dots); }
std::string lineOf(const Bitmap& label) {
  return "label " + std::to_string(label.width()) + ' ' + std::to_string(label.height());
}
std::string lineOf(Cut cut) { return cut == Cut::Half ? "cut half" : "cut full"; }
std::string lineOf(End) { return "end"; }

}  // namespace

bool CommandWriter::begin() { return line(kFirstLine); }

bool CommandWriter::write(const Command& command) {
  if (const auto* cut = std::get_if<Cut>(&command); cut != nullptr && *cut == Cut::None)
    return true;
  if (!line(std::visit([](const auto& what) { return lineOf(what); }, command))) return false;
  const auto* label = std::get_if<Bitmap>(&command);
  return label == nullptr || bytes(label->bytes().data(), label->bytes().size());
}

bool CommandWriter::line(std::string_view text) {
  const std::string whole = std::string(text) + '\n';
  return bytes(whole.data(), whole.size());
}

bool CommandWriter::bytes(const void* data, std::size_t size) {
  return writeAll(mDescriptor, data, size);
}

bool CommandReader::begin() { return line() == kFirstLine; }

// A signal ends the reading: it is how a job is told that it is cancelled.
bool CommandReader::fill() {
  mBuffer.erase(0, std::exchange(mUsed, 0));
  const std::size_t held = mBuffer.size();
  mBuffer.resize(held + kReadSize);
  const ssize_t got = ::read(mDescriptor, mBuffer.data() + held, kReadSize);
  mBuffer.resize(held + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
  return got > 0;
}

std::optional<std::string> CommandReader::line() {
  std::size_t end = mBuffer.find('\n', mUsed);
  while (end == std::string::npos) {
    if (mBuffer.size() - mUsed > kMaxLine || !fill()) return std::nullopt;
    end = mBuffer.find('\n', mUsed);
  }
  std::string text = mBuffer.substr(mUsed, end - mUsed);
  mUsed = end + 1;
  return text;
}

bool CommandReader::bytes(std::uint8_t* data, std::size_t size) {
  while (size > 0) {
    if (mUsed == mBuffer.size() && !fill()) return false;
    const std::size_t part = std::min(size, mBuffer.size() - mUsed);
    std::copy_n(mBuffer.data() + mUsed, part, data);
    mUsed += part;
    data += part;
    size -= part;
  }
  return true;
}

std::optional<Command> CommandReader::label(std::string_view size) {
  const auto sides = pairOf(size);
  if (!sides || sides->first > kMaxSide || sides->second > kMaxSide) return std::nullopt;
  if (Bitmap::bytesPerRow(sides->first) * sides->second > kMaxLabelBytes) return std::nullopt;
  Bitmap dots(sides->first, sides->second);
  if (!bytes(dots.bytes().data(), dots.bytes().size())) return std::nullopt;
  return dots;
}

std::optional<Command> CommandReader::next() {
  const auto text = line();
  if (!text) return std::nullopt;
  std::string_view rest = *text;
  const std::string_view verb = wordTaken(rest);
  if (verb == "label") return label(rest);
  struct Verb {
    std::string_view name;
    std::optional<Command> (*read)(std::string_view);
  };
  static constexpr std::array<Verb, 5> kVerbs = {{
      {"set", &setting},
      {"resolution", &resolution},
      {"feed", &feed},
      {"cut", &cut},
      {"end", &end},
  }};
  for (const Verb& known : kVerbs) {
    if (known.name == verb) return known.read(rest);
  }
  return std::nullopt;
}

}  // namespace cutline::printer
