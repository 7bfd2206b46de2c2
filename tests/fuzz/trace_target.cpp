// Formats of traces with arguments of any kind, and dumps of any bytes.
#include <fcntl.h>

#include <climits>
#include <list>
#include <vector>

#include "base/FileDescriptor.h"
#include "base/Utf8.h"
#include "bundle/diag/diagnostics.h"
#include "bundle/diag/messages.h"
#include "tests/fuzz/Input.h"
#include "tests/fuzz/Insist.h"

namespace {

using namespace cutline;

struct Object final : Describable {
  explicit Object(std::string words) : mWords(std::move(words)) {}
  std::string description() const noexcept override { return mWords; }

 private:
  std::string mWords;
};

FormatArgument argumentIn(fuzz::Input& input, std::list<std::string>& texts, const Object& object) {
  switch (input.below(6)) {
    case 0:
      return input.integer();
    case 1:
      return static_cast<std::uint64_t>(input.integer()) << 31U;
    case 2:
      return static_cast<double>(input.integer()) / static_cast<double>(input.integer() | 1);
    case 3:
      return static_cast<const void*>(&input);
    case 4:
      return object;
    default:
      return texts.emplace_back(input.text());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const FileDescriptor nowhere(::open("/dev/null", O_WRONLY | O_CLOEXEC));
  constexpr std::size_t kMostArguments = 8;
  fuzz::Input input(data, size);
  const std::string format = input.text();
  const Object object(input.text());
  std::list<std::string> texts;
  std::vector<FormatArgument> list;
  while (!input.isEmpty() && list.size() < kMostArguments)
    list.push_back(argumentIn(input, texts, object));
  const FormatArguments arguments{std::span<const FormatArgument>(list)};
  fuzz::insist(isUtf8(formattedMessage(format, arguments)), "messages are UTF-8");
  PDELog(&object, format.c_str(), arguments);
  debugLogFd(0, nowhere.get(), format.c_str(), arguments);
  memoryCheckFd(0, nowhere.get(), data, static_cast<int>(size));
  memoryCheckFd(0, nowhere.get(), nullptr, INT_MAX);
  return 0;
}
