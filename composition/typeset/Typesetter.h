// Sets text and drawings as a small PDF, which is then laid onto labels like any other. Implemented
// by a module of its own (cutline-typeset.so), loaded when a document asks for it: most jobs start
// without its libraries.
#pragma once

#include <string>
#include <string_view>

#include "composition/Composition.h"

namespace cutline {

// What a label has room for, in points, as a reader holds it.
struct TextRoom {
  double width = 0;
  double height = 0;
  // As wide as the longest line needs, and no wider than the width where that is more than 0: the
  // label's length follows the content.
  bool isEndless = false;
};

struct TypesetPages {
  std::string pdf;       // the file's bytes
  bool isStated = true;  // false for a drawing that states no size, only proportions
};

// What failed: what the document cannot be made into, and a detail as CompositionFailure has it.
struct TypesetProblem {
  DocumentProblem problem = DocumentProblem::broken;
  std::string detail;
};

class Typesetter {
 public:
  virtual ~Typesetter() = default;
  // One page a label, each exactly the room (an endless one as wide as its text needs), the text as
  // large as fits all labels alike where no size is asked for. `most` labels from the beginning; 0
  // for all. No, with a problem, for what is not UTF-8 or too much; the result is left alone then.
  virtual bool setText(std::string_view text, const TextRoom& room, const TextSettings& settings,
                       int most, TypesetPages& pages, TypesetProblem& problem) noexcept = 0;
  // One page of the drawing's own size.
  virtual bool setDrawing(std::string_view svg, TypesetPages& pages,
                          TypesetProblem& problem) noexcept = 0;
};

inline constexpr char kTypesetModuleName[] = "cutline-typeset.so";
inline constexpr char kTypesetterSymbol[] = "CutlineTypesetter";

extern "C" {
// Exported by the module; borrowed, it lives as long as the process.
cutline::Typesetter* CutlineTypesetter() noexcept;
}

}  // namespace cutline
