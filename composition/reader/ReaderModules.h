// What reads kinds of documents that most jobs are not of, in modules of their own. Borrowed; null
// where a module is missing or not needed.
#pragma once

namespace cutline {

class PictureReader;
class Typesetter;

struct ReaderModules {
  Typesetter* typesetter = nullptr;
  PictureReader* pictures = nullptr;
};

}  // namespace cutline
