// A pop-up button on QComboBox: a choice by picture.
#pragma once

#include <QComboBox>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/PopUpButton.h"
#include "qt/QtView.h"

namespace cutline {

class QtPopUpButton : public QtControlOf<PopUpButton, QComboBox> {
 public:
  QtPopUpButton(const Rect& frame, std::shared_ptr<QtActions> actions);

  void addItem(PopUpItem item) noexcept override;
  void removeItemWithTitle(const std::string& title) noexcept override;
  std::vector<PopUpItem> items() const noexcept override { return mItems; }
  void setTitleOfItem(std::size_t index, const std::string& title) noexcept override;
  void setItem(std::size_t index, PopUpItem item) noexcept override;
  void deselect() noexcept override { select(std::nullopt); }
  std::string placeholder() const noexcept override { return mPlaceholder; }
  void setPlaceholder(const std::string& words) noexcept override;
  bool selectItemWithTag(int tag) noexcept override;
  int selectedTag() const noexcept override;
  bool performSelection(int tag) noexcept override;
  // The button is announced as this label and the current entry's words.
  void setAccessibilityLabel(const std::string& label) noexcept override;

 private:
  void userDidChoose(int index) noexcept;
  void select(std::optional<std::size_t> index) noexcept;
  std::optional<std::size_t> indexOfTag(int tag) const noexcept;
  void nameCurrent() noexcept;

  std::vector<PopUpItem> mItems;
  std::optional<std::size_t> mSelected;
  std::string mPlaceholder;
};

}  // namespace cutline
