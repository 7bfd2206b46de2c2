#include "tests/support/TestCallback.h"

#include <ostream>

namespace cutline::test {

std::ostream& operator<<(std::ostream& out, const Mark& mark) {
  return out << mark.key << "=" << mark.choice;
}

void TestCallback::willChangePPDOptionKeyValue(
    const std::string& key, const std::optional<std::string>& ppdChoice) noexcept {
  marks.push_back({key, ppdChoice.value_or("(nil)")});
  if (ppd && ppdChoice) ppdMarkOption(ppd, key.c_str(), ppdChoice->c_str());
}

}  // namespace cutline::test
