// The composer for what labels mostly are: PDF, PNG and JPEG, with their readers' code within.
// Asked as the other one is, in whose place it is started, and which it becomes for any other
// document.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "composition/ComposerName.h"
#include "composition/HelperRequest.h"
#include "composition/helper/ComposerRun.h"

namespace {

using namespace cutline;

// Returns where there is no such program.
void becomeOther(const std::vector<FileDescriptor>& files) {
  std::error_code problem;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", problem);
  const std::string path = self.parent_path().parent_path() / kComposerName;
  std::vector<std::string> numbers;
  for (const FileDescriptor& file : files) {
    ::fcntl(file.get(), F_SETFD, 0);
    numbers.push_back(std::to_string(file.get()));
  }
  std::vector<char*> arguments{const_cast<char*>(path.c_str())};
  for (std::string& number : numbers) arguments.push_back(number.data());
  arguments.push_back(nullptr);
  ::execv(path.c_str(), arguments.data());
}

void loadNone(DocumentKind, ReaderModules&) {}

}  // namespace

int main() {
  auto files = receiveFiles(STDIN_FILENO).value_or(std::vector<FileDescriptor>());
  const auto isOther = [](const FileDescriptor& document) {
    return needsModule(kindOf(document.get()));
  };
  if (!files.empty() && std::any_of(files.begin() + 1, files.end(), isOther)) becomeOther(files);
  runComposer(std::move(files), loadNone);
}
