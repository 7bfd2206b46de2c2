// Lays documents onto label pages, confined: standard input gives the PDF to write, the documents
// and then the request; the report goes to standard output. Started for StartedComposer, or by the
// lean composer, which has taken those files already and names their descriptors.
#include <cstdlib>
#include <utility>

#include "base/Numbers.h"
#include "composition/HelperRequest.h"
#include "composition/helper/ComposerRun.h"
#include "composition/helper/LoadedModules.h"

using namespace cutline;

int main(int argc, char** argv) {
  std::vector<FileDescriptor> files;
  for (int at = 1; at < argc; ++at) files.emplace_back(numberIn<int>(argv[at]).value_or(-1));
  if (files.empty()) files = receiveFiles(STDIN_FILENO).value_or(std::vector<FileDescriptor>());
  runComposer(std::move(files), loadModule);
}
