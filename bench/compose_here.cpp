// compose_here PDF MOST
// Composes so many labels of a PDF, or all for 0, in this process: for tools that count what the
// confined program does.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "base/FileDescriptor.h"
#include "composition/reader/DocumentComposer.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: compose_here PDF MOST\n", stderr);
    return 2;
  }
  const cutline::FileDescriptor document(::open(argv[1], O_RDONLY | O_CLOEXEC));
  const cutline::FileDescriptor output(::memfd_create("labels", MFD_CLOEXEC));
  if (!document || !output) return 1;
  cutline::CompositionRequest request;
  request.label = {68.03, 141.73, 2.83, 5.67, 65.2, 136.06, 90, 90};
  request.names = {argv[1]};
  request.pages.most = std::atoi(argv[2]);
  cutline::DocumentComposer composer;
  const auto report = composer.compose(request, {document.get()}, output.get(), {});
  // As the program does: without letting go of what was read.
  ::_exit(report.failure ? 1 : 0);
}
