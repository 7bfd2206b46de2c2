// The typesetter, in its module beside this program.
#pragma once

namespace cutline {

class Typesetter;

// Loads the module. Null where it is not installed. Borrowed; it lives as long as the process.
Typesetter* loadedTypesetter();

}  // namespace cutline
