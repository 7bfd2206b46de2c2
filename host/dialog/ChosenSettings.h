// What was chosen for a document that somebody else makes, for the program that asked.
#pragma once

#include <QByteArray>

namespace cutline {

class PrintModel;

// One JSON object. Lengths are millimetres, the paper as the printer has it:
//   printer            a string, with its preset as PRINTER/PRESET
//   options            an object: the printer's own options that the job has, by name
//   job                the same for what the print system knows beside them
//   copies             a number
//   pages              "1-4,7", or empty for all
//   paper              an object: name, width, length, left, top, right, bottom (the margins)
//   orientation        "portrait", "landscape" or "reverse-landscape": how its text lies on it
// The names are options of this program, as `-o` takes them. The printer is open.
QByteArray chosenSettings(PrintModel& model);

}  // namespace cutline
