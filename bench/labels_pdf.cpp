// labels_pdf LABELS: writes a PDF document of that many labels to standard output.
#include <cstdio>
#include <cstdlib>

#include "bench/LabelsPdf.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: labels_pdf LABELS\n", stderr);
    return 2;
  }
  const std::string pdf = cutline::labelsPdf(std::atoi(argv[1]));
  return std::fwrite(pdf.data(), 1, pdf.size(), stdout) == pdf.size() ? 0 : 1;
}
