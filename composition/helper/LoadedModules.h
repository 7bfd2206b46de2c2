// The modules beside this program, each loaded once it is asked for.
#pragma once

namespace cutline {

class PictureReader;
class Typesetter;

// Null where the module is not installed. Borrowed; they live as long as the process.
Typesetter* loadedTypesetter();
PictureReader* loadedPictureReader();

}  // namespace cutline
