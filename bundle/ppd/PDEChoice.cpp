#include "bundle/ppd/PDEChoice.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "bundle/ppd/text_bytes.h"

namespace cutline {
namespace {

constexpr int kUTF8EncodingCode = 4;

// User titles have the encoding whose code is this flag times four; the flag is set when the class
// is first used and stays set.
int userTitleEncodingFlag() noexcept {
  static const int flag = 1;
  return flag;
}

TextEncoding userTitleEncoding() noexcept {
  return userTitleEncodingFlag() * 4 == kUTF8EncodingCode ? TextEncoding::utf8
                                                          : TextEncoding::system;
}

}  // namespace

std::unique_ptr<PDEChoice> PDEChoice::choiceWithChoice(ppd_choice_t* choice) noexcept {
  auto object = std::make_unique<PDEChoice>();
  object->initWithChoice(choice);
  return object;
}

PDEChoice* PDEChoice::initWithChoice(ppd_choice_t* choice) noexcept {
  mUserTitle.reset();
  mPPDTitle.reset();
  mChoice = choice;
  return this;
}

const std::optional<std::string>& PDEChoice::userTitle() const noexcept {
  if (!mUserTitle && mChoice) mUserTitle = decodedText(mChoice->text, userTitleEncoding());
  return mUserTitle;
}

const std::optional<std::string>& PDEChoice::ppdTitle() const noexcept {
  if (!mPPDTitle && mChoice) mPPDTitle = decodedText(mChoice->choice, TextEncoding::ascii);
  return mPPDTitle;
}

bool PDEChoice::isDefaultChoice() const noexcept {
  if (!mChoice || !mChoice->option) return false;
  return std::strncmp(mChoice->choice, mChoice->option->defchoice, kComparedBytes) == 0;
}

std::string PDEChoice::description() const noexcept {
  const ppd_option_t* option = mChoice ? mChoice->option : nullptr;
  const auto position = option ? mChoice - option->choices + 1 : 0;
  const int count = option ? option->num_choices : 0;
  const bool marked = mChoice && mChoice->marked;
  return "<" + nameOfObject("PDEChoice", this) + " userTitle:\"" + userTitle().value_or("(null)") +
         "\" ppdTitle:\"" + ppdTitle().value_or("(null)") + "\" marked:" + (marked ? "YES" : "NO") +
         " choice:" + std::to_string(position) + " of " + std::to_string(count) + ">";
}

std::optional<int> positionOf(const PDEChoice* choice, const ChoiceList& choices) noexcept {
  const auto found = std::find_if(choices.begin(), choices.end(),
                                  [&](const auto& each) { return each.get() == choice; });
  if (found == choices.end()) return std::nullopt;
  return static_cast<int>(found - choices.begin());
}

}  // namespace cutline
