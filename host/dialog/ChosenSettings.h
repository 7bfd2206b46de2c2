// What was chosen for a document that somebody else makes, for the program that asked.
#pragma once

#include <QByteArray>

namespace cutline {

class PrintModel;

// One JSON object:
//   printer   a string, with its preset as PRINTER/PRESET
//   options   an object: the printer's own options that the job has, by name
//   job       the same for what the print system knows beside them
//   copies    a number
//   pages     "1-4,7", or empty for all
//   page      an object: the paper's name; width, length, and the margins top, right, bottom and
//   left
//             in millimetres, as it is read: on a tape with its length level
// The names of options are those that `-o` takes. The printer is open.
QByteArray chosenSettings(PrintModel& model);

}  // namespace cutline
