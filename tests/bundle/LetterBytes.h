// Bytes that each encoding reads as something else, in the places of a PPD where libcups itself
// takes nothing but ASCII.
#pragma once

#include <cstring>
#include <string>

#include "tests/support/PpdText.h"

namespace cutline::test {

// One letter in UTF-8, two in Latin-1, none in ASCII.
inline constexpr char kLetterBytes[] = "\xC3\xA4";
inline constexpr char kLetterInUTF8[] = "ä";
inline constexpr char kLetterInLatin1[] = "Ã¤";

// Stands for the bytes in the keyword of a choice until the file is open.
inline constexpr char kLetterKeyword[] = "letter";

// Puts the bytes where the option's choices and default have kLetterKeyword.
inline void putLetterBytes(ppd_file_t* ppd, const char* keyword) {
  const auto replace = [](char* name) {
    if (std::string(name) == kLetterKeyword) std::memcpy(name, kLetterBytes, sizeof kLetterBytes);
  };
  ppd_option_t* option = ppdFindOption(ppd, keyword);
  for (int i = 0; i < option->num_choices; ++i) replace(option->choices[i].choice);
  replace(option->defchoice);
}

}  // namespace cutline::test
