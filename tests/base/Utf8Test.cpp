#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Utf8.h"

namespace cutline {
namespace {

using namespace std::string_view_literals;

struct Bytes {
  std::string_view bytes;
  std::vector<std::int32_t> characters;  // -1 for each that is none
};

std::vector<std::int32_t> charactersOf(std::string_view bytes) {
  std::vector<std::int32_t> characters;
  while (!bytes.empty()) characters.push_back(std::max(takeCharacter(bytes), std::int32_t{-1}));
  return characters;
}

TEST(Utf8, CharactersAreTakenFromTheStart) {
  const std::vector<Bytes> runs = {
      {""sv, {}},
      {"a\0b"sv, {'a', 0, 'b'}},
      {"\x7F\xC2\x80"sv, {0x7F, 0x80}},
      {"\xDF\xBF\xE0\xA0\x80"sv, {0x7FF, 0x800}},
      {"\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"sv, {0xD7FF, 0xE000, 0xFFFF}},
      {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"sv, {0x10000, 0x10FFFF}},
  };
  for (const auto& [bytes, characters] : runs) {
    EXPECT_EQ(charactersOf(bytes), characters) << bytes;
    EXPECT_TRUE(isUtf8(bytes)) << bytes;
  }
}

TEST(Utf8, WhatCouldHaveBegunACharacterIsOneThatIsNone) {
  const std::vector<Bytes> runs = {
      {"\x80"sv, {-1}},
      {"a\xFFz"sv, {'a', -1, 'z'}},
      {"\xC0\x80"sv, {-1, -1}},
      {"\xE0\x9F\xBF"sv, {-1, -1, -1}},
      {"\xED\xA0\x80"sv, {-1}},
      {"\xED\xBF\xBF\xED\xA0\x80"sv, {-1, -1}},
      {"\xED\xA0z"sv, {-1, 'z'}},
      {"\xED"sv, {-1}},
      {"\xC3"sv, {-1}},
      {"\xE2\x82"sv, {-1}},
      {"\xF0\x9F\x98z"sv, {-1, 'z'}},
      {"\xF4\x90\x80\x80"sv, {-1, -1, -1, -1}},
      {"\xC3\xC3\xA9"sv, {-1, 0xE9}},
  };
  for (const auto& [bytes, characters] : runs) {
    EXPECT_EQ(charactersOf(bytes), characters) << testing::PrintToString(bytes);
    EXPECT_FALSE(isUtf8(bytes)) << testing::PrintToString(bytes);
  }
}

TEST(Utf8, OnlyACharacterThatIsCutOffAtTheEndIsLeftOut) {
  const std::string_view text = "ab\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80";
  const std::vector<std::size_t> whole = {0, 1, 2, 2, 4, 4, 4, 7, 7, 7, 7, 11};
  for (std::size_t length = 0; length <= text.size(); ++length) {
    EXPECT_EQ(withoutCutCharacter(text.substr(0, length)), text.substr(0, whole[length]));
  }
  EXPECT_EQ(withoutCutCharacter("\x80\x80"sv), "\x80\x80"sv);
}

}  // namespace
}  // namespace cutline
