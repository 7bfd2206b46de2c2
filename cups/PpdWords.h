// The words that a PPD is made of.
#pragma once

#include <string_view>

namespace cutline {

// Whether it can be the name of an option or of a choice, with nothing in it that is read in a way
// of its own.
bool isPpdWord(std::string_view text);

// libcups finds options and attributes in whichever letters they are written, in every locale.
bool isSameName(std::string_view a, std::string_view b);

// Whether the keyword is that of a default choice, and of which option.
bool isDefault(std::string_view keyword);
std::string_view withoutDefault(std::string_view keyword);

// Whether the keyword is that of a text in some language, such as "de.Translation".
bool isTranslation(std::string_view keyword);

}  // namespace cutline
