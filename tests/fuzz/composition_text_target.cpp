// What the confined programs and their client write to each other, and page ranges: what is read
// says the same when it is written again.
#include "composition/Composition.h"
#include "tests/fuzz/Insist.h"

namespace {

using namespace cutline;

template <typename Form>
void readAgain(std::string_view text) {
  const auto form = Form::parse(text);
  if (!form) return;
  const std::string written = form->asText();
  const auto again = Form::parse(written);
  fuzz::insist(again && again->asText() == written, "what is written can be read");
}

void readRanges(const std::string& text) {
  const auto ranges = PageRanges::parse(text);
  if (!ranges) return;
  const auto again = PageRanges::parse(ranges->text());
  fuzz::insist(again && again->text() == ranges->text(), "page ranges stay what they are");
  fuzz::insist(ranges->countOf(100) <= 100, "no more pages than there are");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  readAgain<CompositionRequest>(text);
  readAgain<CompositionReport>(text);
  readRanges(text);
  return 0;
}
