#include "composition/typeset/LibraryTypesetter.h"

#include <new>

#include "composition/typeset/Drawing.h"
#include "composition/typeset/TextPages.h"

namespace cutline {
namespace {

// Nothing is thrown out of the module.
template <typename Act>
bool guarded(TypesetProblem& problem, Act&& act) noexcept {
  try {
    return act();
  } catch (const std::bad_alloc&) {
    problem.problem = DocumentProblem::tooLarge;
  } catch (...) {
    problem.problem = DocumentProblem::broken;
  }
  return false;
}

}  // namespace

bool LibraryTypesetter::setText(std::string_view text, const TextRoom& room,
                                const TextSettings& settings, int most, TypesetPages& pages,
                                TypesetProblem& problem) noexcept {
  return guarded(problem, [&] { return textPages(text, room, settings, most, pages, problem); });
}

bool LibraryTypesetter::setDrawing(std::string_view svg, TypesetPages& pages,
                                   TypesetProblem& problem) noexcept {
  return guarded(problem, [&] { return drawingPage(svg, pages, problem); });
}

}  // namespace cutline
