// How large the text of labels can be.
#pragma once

#include <string_view>
#include <vector>

#include "composition/typeset/TextShaper.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {

struct TextFit {
  double size = 0;                     // points
  Wrapping wrapping = Wrapping::none;  // of what is too wide for the room at this size
};

// The largest size at which each of the labels fits the room, the same for all. Lines are broken
// only where they would not be readable whole, and words only where nothing else helps. There is a
// smallest size; what does not fit with it does not fit. `labels` is not empty.
TextFit fitted(TextShaper& shaper, const std::vector<std::string_view>& labels,
               const TextRoom& room);

// The label's text, shaped as the fit says.
TextBlock shaped(TextShaper& shaper, std::string_view label, const TextFit& fit,
                 const TextRoom& room);

}  // namespace cutline
