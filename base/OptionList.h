// The options of a job or a destination, as they are saved, asked for and sent.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace cutline {

// NAME=VALUE pairs in order; a later pair of the same name wins.
using OptionList = std::vector<std::pair<std::string, std::string>>;

}  // namespace cutline
