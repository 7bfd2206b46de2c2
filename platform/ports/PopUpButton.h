// A pop-up list of entries, of which one is selected. Implemented by each toolkit adapter.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ports/Controls.h"

namespace cutline {

// One entry as an interface file describes it.
struct PopUpItem {
  std::string title;                     // may be cleared later; tells entries apart until then
  int tag = 0;                           // tells entries apart for good
  std::optional<std::string> imagePath;  // the entry's picture, read when the list is opened
  std::string accessibilityLabel;        // the entry in words; stays when the title is cleared
};

class PopUpButton : public virtual Control {
 public:
  ~PopUpButton() override;

  // The first entry added becomes the selected one.
  virtual void addItem(PopUpItem item) noexcept = 0;
  // removeItemWithTitle:  Removes the first entry with this title; nothing when there is none.
  // Removing the selected entry selects the first one left.
  virtual void removeItemWithTitle(const std::string& title) noexcept = 0;
  virtual std::vector<PopUpItem> items() const noexcept = 0;
  virtual void setTitleOfItem(std::size_t index, const std::string& title) noexcept = 0;
  // Replaces the entry, which stays selected if it was; nothing beyond the last entry.
  virtual void setItem(std::size_t index, PopUpItem item) noexcept = 0;

  // selectItemWithTag:  False, and no change, when no entry has the tag. Runs no action.
  virtual bool selectItemWithTag(int tag) noexcept = 0;
  // Selects no entry; the closed list then shows and says the placeholder, which is empty at first.
  // Runs no action.
  virtual void deselect() noexcept = 0;
  virtual std::string placeholder() const noexcept = 0;
  virtual void setPlaceholder(const std::string& words) noexcept = 0;
  // The selected entry's tag; 0 when no entry is selected.
  virtual int selectedTag() const noexcept = 0;
  // What a user's choice in the list does: selects the entry and runs the action. False, and
  // neither, when no entry has the tag or the control is disabled.
  virtual bool performSelection(int tag) noexcept = 0;
};

}  // namespace cutline
