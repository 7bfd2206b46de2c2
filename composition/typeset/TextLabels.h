// What text each label gets.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "composition/Composition.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {

// The text without what only tells how its file is written: a mark at the beginning, the kind of
// line ends, blanks that nobody sees, control characters. Tabs stay; a form feed ends a label.
std::string plainText(std::string_view text);

// The labels of such a text, which they are parts of: blocks between blank lines, or each line that
// has something in it.
std::vector<std::string_view> labelsOf(std::string_view plain, TextUnit unit);

// What no labels can be made of: none at all, too many, or one with more text than anybody reads
// from a label.
std::optional<TypesetProblem> problemWith(const std::vector<std::string_view>& labels);

}  // namespace cutline
