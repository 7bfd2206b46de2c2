// A fuzzer's bytes, taken off one by one as numbers and texts. When they are used up, numbers are 0
// and texts empty.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace cutline::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : mRest(reinterpret_cast<const char*>(data), size) {}

  bool isEmpty() const { return mRest.empty(); }

  std::uint8_t byte() {
    if (mRest.empty()) return 0;
    const auto first = static_cast<std::uint8_t>(mRest.front());
    mRest.remove_prefix(1);
    return first;
  }
  bool flag() { return (byte() & 1U) != 0; }
  // Below `end`, which is not 0.
  std::size_t below(std::size_t end) {
    constexpr std::size_t kByte = 256;
    std::size_t number = byte();
    if (end > kByte) number = number * kByte + byte();
    return number % end;
  }
  std::int32_t integer() {
    std::uint32_t bits = 0;
    for (int i = 0; i < 4; ++i) bits = (bits << 8U) | byte();
    return static_cast<std::int32_t>(bits);
  }
  template <typename List>
  auto oneOf(const List& list) {
    return list[below(std::size(list))];
  }

  // As many bytes as the next one says, or what is left.
  std::string text() {
    const std::size_t wanted = byte();
    const std::size_t size = std::min(wanted, mRest.size());
    std::string taken(mRest.substr(0, size));
    mRest.remove_prefix(size);
    return taken;
  }
  std::string rest() { return std::string(std::exchange(mRest, {})); }

 private:
  std::string_view mRest;
};

}  // namespace cutline::fuzz
