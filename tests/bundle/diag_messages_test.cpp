// What is no character comes out as a question mark.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "bundle/diag/messages.h"

namespace cutline::test {
namespace {

using namespace std::string_view_literals;

TEST(ConvertibleText, ValidTextStays) {
  for (const auto text : {""sv, "plain\n\x7F"sv, "a\0b"sv, "\xC2\x80\xDF\xBF"sv,
                          "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80"sv,
                          "\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"sv}) {
    EXPECT_EQ(convertibleText(text), text);
  }
}

TEST(ConvertibleText, EachCharacterThatIsNoneIsOneQuestionMark) {
  constexpr struct {
    std::string_view text;
    std::string_view converted;
  } kRows[] = {
      {"\x80"sv, "?"},                       // no beginning
      {"a\xFFz"sv, "a?z"},                   // never a byte of a character
      {"\xC0\x80"sv, "??"},                  // longer than it must be
      {"\xE0\x9F\xBF"sv, "???"},             // the same
      {"\xED\xA0\x80"sv, "?"},               // a surrogate
      {"\xED\xBF\xBF\xED\xA0\x80"sv, "??"},  // two of them
      {"\xED\xA0z"sv, "?z"},                 // half of one
      {"\xC3"sv, "?"},                       // cut off
      {"\xE2\x82"sv, "?"},                   // the same
      {"\xF0\x9F\x98z"sv, "?z"},             // the same
      {"\xF4\x90\x80\x80"sv, "????"},        // beyond the last character
      {"\xC3\xC3\xA9"sv, "?\xC3\xA9"},       // goes on with the next beginning
  };
  for (const auto& row : kRows) EXPECT_EQ(convertibleText(row.text), row.converted);
}

}  // namespace
}  // namespace cutline::test
