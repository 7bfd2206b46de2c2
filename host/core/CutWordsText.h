// Cut words as a person writes them, one a line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Sentence.h"
#include "host/core/CutWords.h"

namespace cutline {

struct CutWordsText {
  CutWords words;
  std::vector<Sentence> problems;  // of lines that were left out
};

// Reads a text of any origin. `name` is what problems call it.
CutWordsText cutWordsIn(std::string_view text, const std::string& name);

}  // namespace cutline
