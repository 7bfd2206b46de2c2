// What the module exports.
#include "composition/typeset/LibraryTypesetter.h"

extern "C" cutline::Typesetter* CutlineTypesetter() noexcept {
  static cutline::LibraryTypesetter typesetter;
  return &typesetter;
}
