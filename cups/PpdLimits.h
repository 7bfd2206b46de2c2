// What a PPD must not have: more than libcups can bear, and measures of paper that are none.
#pragma once

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>

#include "base/OptionList.h"
#include "base/Result.h"

namespace cutline {

// 100 metres, in points: the longest label by far.
inline constexpr double kLongestPaper = 283464.6;

// An error for a PPD that would keep libcups busy for minutes, told by its text alone.
std::optional<Error> tooMuchForLibcups(std::string_view contents, const Sentence& name);

// An error for an opened PPD that nothing may be marked in, because its custom size has a parameter
// that is no measure, or its default size no usable one.
std::optional<Error> unusableSizes(ppd_file_t* ppd, const Sentence& name);

// Whether there can be paper of that size.
bool isUsable(const ppd_size_t& size);
// True for a choice of the page size that the PPD gives measures that no paper has.
bool isUnusableSize(ppd_file_t* ppd, std::string_view keyword, const std::string& choice);
// The options but for such choices.
OptionList withoutUnusableSizes(ppd_file_t* ppd, const OptionList& options);

}  // namespace cutline
