// How text is laid out for a label: as wide as the label is for who reads it.
#pragma once

#include "composition/Composition.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {

// The turn that puts a text's pages upright on this label where none is asked for.
Turn textTurn(const LabelPage& label, Turn asked);

// What can be printed on, as the reader of a text that is turned so holds it. Only a text that runs
// along a label whose content chooses the length is endless.
TextRoom textRoom(const CompositionRequest& request, Turn turn);

}  // namespace cutline
