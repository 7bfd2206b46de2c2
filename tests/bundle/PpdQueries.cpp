#include "tests/bundle/PpdQueries.h"

#include <cups/ppd.h>
#include <dlfcn.h>

#include <utility>

namespace cutline::test {
namespace {

PpdQueries* sListener = nullptr;

// Notes the question and passes it on to libcups, whose function of this name stands behind ours.
template <typename Answer, typename... Arguments>
Answer pass(const char* function, const std::string& question, Arguments... arguments) {
  PpdQueries* const listener = std::exchange(sListener, nullptr);
  if (listener) listener->note(question);
  const auto next = reinterpret_cast<Answer (*)(Arguments...)>(dlsym(RTLD_NEXT, function));
  const Answer answer = next(arguments...);
  sListener = listener;
  return answer;
}

std::string text(const char* bytes) { return bytes ? bytes : "(null)"; }

}  // namespace

PpdQueries::PpdQueries() { sListener = this; }
PpdQueries::~PpdQueries() { sListener = nullptr; }

}  // namespace cutline::test

extern "C" {

ppd_option_t* ppdFindOption(ppd_file_t* ppd, const char* keyword) {
  using namespace cutline::test;
  return pass<ppd_option_t*>("ppdFindOption", "find " + text(keyword), ppd, keyword);
}

ppd_choice_t* ppdFindMarkedChoice(ppd_file_t* ppd, const char* keyword) {
  using namespace cutline::test;
  return pass<ppd_choice_t*>("ppdFindMarkedChoice", "marked " + text(keyword), ppd, keyword);
}

ppd_attr_t* ppdFindAttr(ppd_file_t* ppd, const char* name, const char* spec) {
  using namespace cutline::test;
  return pass<ppd_attr_t*>("ppdFindAttr", "attribute " + text(name), ppd, name, spec);
}

int ppdMarkOption(ppd_file_t* ppd, const char* keyword, const char* choice) {
  using namespace cutline::test;
  return pass<int>("ppdMarkOption", "mark " + text(keyword) + " " + text(choice), ppd, keyword,
                   choice);
}
}
