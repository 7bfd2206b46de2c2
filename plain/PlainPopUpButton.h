// A pop-up button in memory.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "plain/PlainControls.h"
#include "platform/ports/PopUpButton.h"

namespace cutline {

class PlainPopUpButton final : public virtual PopUpButton, public PlainControl {
 public:
  using PlainControl::PlainControl;

  void addItem(PopUpItem item) noexcept override;
  void removeItemWithTitle(const std::string& title) noexcept override;
  std::vector<PopUpItem> items() const noexcept override { return mItems; }
  void setTitleOfItem(std::size_t index, const std::string& title) noexcept override;
  void setItem(std::size_t index, PopUpItem item) noexcept override;
  void deselect() noexcept override { mSelected.reset(); }
  std::string placeholder() const noexcept override { return mPlaceholder; }
  void setPlaceholder(const std::string& words) noexcept override { mPlaceholder = words; }
  bool selectItemWithTag(int tag) noexcept override;
  int selectedTag() const noexcept override;
  bool performSelection(int tag) noexcept override;

 private:
  std::vector<PopUpItem> mItems;
  std::optional<std::size_t> mSelected;
  std::string mPlaceholder;
};

}  // namespace cutline
