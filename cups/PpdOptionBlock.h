// What a PPD says of one option, from where it is opened to where it is closed.
#pragma once

#include <cups/ppd.h>

#include <span>
#include <string_view>
#include <vector>

#include "cups/PpdStatements.h"

namespace cutline {

// Points into the PPD's contents.
struct OptionBlock {
  struct Choice {
    std::string_view name;
    std::string_view text;  // for people; libcups' own where the PPD gives none
    std::string_view code;  // what is sent for it
  };

  std::string_view keyword;
  std::string_view text;  // for people; the keyword where the PPD gives none
  ppd_ui_t ui = PPD_UI_PICKONE;
  ppd_section_t section = PPD_ORDER_ANY;  // where in the job the code is to stand
  float order = 0;
  std::string_view defaultChoice;  // empty where the PPD names none
  std::vector<Choice> choices;
  // What says nothing of the option itself: its texts in other languages.
  std::vector<std::string_view> others;
};

// Reads the statements of a plain option. No for a block with anything in it that libcups reads in
// a way of its own: texts that are no plain ASCII, custom choices, options that it knows by name.
// What the block had before is gone in either case.
bool readOptionBlock(std::string_view keyword, std::span<const PpdStatement> statements,
                     OptionBlock& block);

}  // namespace cutline
