#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

#include "composition/reader/ContentInk.h"

namespace cutline {
namespace {

constexpr int kAnyOperands = -1;  // the action looks at them, or nobody does
constexpr double kPercent = 100;

double numberAt(const Operation& operation, std::size_t at) {
  return operation.operands[at].number;
}

bool hasNumbers(const Operation& operation, int count) {
  const auto isNumber = [](const Operand& one) { return one.kind == Operand::Kind::number; };
  return operation.operands.size() == static_cast<std::size_t>(count) &&
         std::ranges::all_of(operation.operands, isNumber);
}

}  // namespace

// What an operator does to the box; those without an action do nothing to it.
struct ContentInk::Action {
  std::string_view name;
  int numbers = kAnyOperands;
  void (*run)(ContentInk&, const Operation&) = nullptr;
};

const ContentInk::Action* ContentInk::actionOf(const std::string& name) {
  using C = ContentInk;
  using O = const Operation&;
  // In the order of their names.
  static constexpr std::array kActions = std::to_array<Action>({
      {"\"", kAnyOperands, [](C& c, O o) { c.showSpacedOnNextLine(o); }},
      {"'", kAnyOperands, [](C& c, O o) { c.nextLine(), c.showText(o, 0); }},
      {"B", 0, [](C& c, O) { c.paintPath(true, true); }},
      {"B*", 0, [](C& c, O) { c.paintPath(true, true); }},
      {"BDC"},
      {"BMC"},
      {"BT", 0, [](C& c, O) { c.mCursor.set({}); }},
      {"BX"},
      {"CS"},
      {"DP"},
      {"Do", kAnyOperands, [](C& c, O o) { c.drawObject(o); }},
      {"EI", 0, [](C& c, O) { c.drawImage(); }},
      {"EMC"},
      {"ET"},
      {"EX"},
      {"F", 0, [](C& c, O) { c.paintPath(true, false); }},
      {"G"},
      {"J"},
      {"K"},
      {"M", 1, [](C& c, O o) { c.mState.stroke.miterLimit = numberAt(o, 0); }},
      {"MP"},
      {"Q", 0, [](C& c, O) { c.restore(); }},
      {"RG"},
      {"S", 0, [](C& c, O) { c.paintPath(false, true); }},
      {"SC"},
      {"SCN"},
      {"T*", 0, [](C& c, O) { c.nextLine(); }},
      {"TD", 2, [](C& c, O o) { c.moveLineAndLead(numberAt(o, 0), numberAt(o, 1)); }},
      {"TJ", kAnyOperands, [](C& c, O o) { c.showTexts(o); }},
      {"TL", 1, [](C& c, O o) { c.mState.text.leading = numberAt(o, 0); }},
      {"Tc", 1, [](C& c, O o) { c.mState.text.charSpacing = numberAt(o, 0); }},
      {"Td", 2, [](C& c, O o) { c.mCursor.moveLine(numberAt(o, 0), numberAt(o, 1)); }},
      {"Tf", kAnyOperands, [](C& c, O o) { c.setFont(o); }},
      {"Tj", kAnyOperands, [](C& c, O o) { c.showText(o, 0); }},
      {"Tm", 6, [](C& c, O o) { c.mCursor.set(matrixOf(o)); }},
      {"Tr", 1, [](C& c, O o) { c.mState.text.mode = static_cast<int>(numberAt(o, 0)); }},
      {"Ts", 1, [](C& c, O o) { c.mState.text.rise = numberAt(o, 0); }},
      {"Tw", 1, [](C& c, O o) { c.mState.text.wordSpacing = numberAt(o, 0); }},
      {"Tz", 1, [](C& c, O o) { c.mState.text.scale = numberAt(o, 0) / kPercent; }},
      {"W", 0, [](C& c, O) { c.mClipsNext = true; }},
      {"W*", 0, [](C& c, O) { c.mClipsNext = true; }},
      {"b", 0, [](C& c, O) { c.paintPath(true, true); }},
      {"b*", 0, [](C& c, O) { c.paintPath(true, true); }},
      {"c", 6, [](C& c, O o) { c.addPoints(o); }},
      {"cm", 6, [](C& c, O o) { c.mState.matrix.concat(matrixOf(o)); }},
      {"cs"},
      {"d"},
      {"d0"},
      {"d1"},
      {"f", 0, [](C& c, O) { c.paintPath(true, false); }},
      {"f*", 0, [](C& c, O) { c.paintPath(true, false); }},
      {"g"},
      {"gs", kAnyOperands, [](C& c, O o) { c.setParameters(o); }},
      {"h", 0, [](C& c, O) { c.mPath.addCorner(); }},
      {"i"},
      {"j", 1, [](C& c, O o) { c.mState.stroke.isMitered = numberAt(o, 0) == 0; }},
      {"k"},
      {"l", 2, [](C& c, O o) { c.addPoints(o); }},
      {"m", 2, [](C& c, O o) { c.mPath.moveTo(c.mState.matrix, numberAt(o, 0), numberAt(o, 1)); }},
      {"n", 0, [](C& c, O) { c.endPath(); }},
      {"q", 0, [](C& c, O) { c.mSaved.push_back(c.mState); }},
      {"re", 4, [](C& c, O o) { c.mPath.addRectangle(c.mState.matrix, numberAt(o, 0), numberAt(o, 1), numberAt(o, 2), numberAt(o, 3)); }},
      {"rg"},
      {"ri"},
      {"s", 0, [](C& c, O) { c.paintPath(false, true); }},
      {"sc"},
      {"scn"},
      {"sh", kAnyOperands, [](C& c, O) { c.mInk.add(c.mState.clip); }},
      {"v", 4, [](C& c, O o) { c.addPoints(o); }},
      {"w", 1, [](C& c, O o) { c.mState.stroke.width = numberAt(o, 0); }},
      {"y", 4, [](C& c, O o) { c.addPoints(o); }},
  });
  static_assert(std::ranges::is_sorted(kActions, {}, &Action::name));
  const auto* found = std::ranges::lower_bound(kActions, name, {}, &Action::name);
  return found != kActions.end() && found->name == name ? found : nullptr;
}

void ContentInk::act(const Operation& operation) {
  mWork.countOperation();
  const Action* action = actionOf(operation.name);
  if (action == nullptr) throw std::runtime_error("an unknown operator");
  if (action->numbers != kAnyOperands && !hasNumbers(operation, action->numbers))
    throw std::runtime_error("an operator without its numbers");
  if (action->run != nullptr) action->run(*this, operation);
}

}  // namespace cutline
