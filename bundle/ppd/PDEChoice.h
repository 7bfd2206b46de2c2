// One choice of a PPD option, with the title that users read and the one that the PPD knows.
#pragma once

#include <cups/ppd.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bundle/format/Describable.h"

namespace cutline {

inline constexpr std::size_t kComparedBytes = 41;  // libcups's limit of a choice keyword, with NUL

class PDEChoice final : public Describable {
 public:
  PDEChoice() noexcept = default;
  PDEChoice(const PDEChoice&) = delete;
  PDEChoice& operator=(const PDEChoice&) = delete;

  // choiceWithChoice:  A new object made with initWithChoice:.
  static std::unique_ptr<PDEChoice> choiceWithChoice(ppd_choice_t* choice) noexcept;

  // initWithChoice:  Borrows the record: the PPD file must outlive the object.
  PDEChoice* initWithChoice(ppd_choice_t* choice) noexcept;

  // The choice's text; nothing when it is no valid UTF-8, and then the next call tries again.
  const std::optional<std::string>& userTitle() const noexcept;
  // The choice's keyword; nothing when it is not ASCII.
  const std::optional<std::string>& ppdTitle() const noexcept;
  ppd_choice_t* choice() const noexcept { return mChoice; }

  // Whether the PPD names this choice as its option's default.
  bool isDefaultChoice() const noexcept;

  // One line for logs.
  std::string description() const noexcept override;

 private:
  // Made when they are first asked for.
  mutable std::optional<std::string> mUserTitle;
  mutable std::optional<std::string> mPPDTitle;
  ppd_choice_t* mChoice = nullptr;
};

// The choices of one option in the PPD's order: element i wraps choice i. An option that the PPD
// lacks has no list, which is not the same as an empty one.
using ChoiceList = std::vector<std::unique_ptr<PDEChoice>>;

// The position of the object itself, not of its name; nothing when it isn't in the list.
std::optional<int> positionOf(const PDEChoice* choice, const ChoiceList& choices) noexcept;

}  // namespace cutline
