#pragma once

#include <string>

namespace cutline {

// A PDF document of that many labels of 50 x 24 mm, each with a few words and forty bars.
std::string labelsPdf(int pages);

}  // namespace cutline
