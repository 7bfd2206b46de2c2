// The steps of somebody's settings, for undo and redo.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/OptionList.h"

namespace cutline {

// Everything that can be set for a job, as PrintModel gives and takes it.
struct Settings {
  OptionList options;  // as a preset keeps them
  OptionList shown;    // where the controls of the panels' options stand
  std::string pageRanges;
  friend bool operator==(const Settings&, const Settings&) = default;
};

class SettingsHistory {
 public:
  // Forgets all steps.
  void start(Settings now);
  // A step, where these are others than the present ones; what was undone is gone then.
  void note(Settings now);
  // The present ones have changed without anybody's doing.
  void amend(Settings now);

  bool canUndo() const noexcept { return mNow > 0; }
  bool canRedo() const noexcept { return mNow + 1 < mSteps.size(); }
  // The settings to go to; only where it can.
  const Settings& undo() { return mSteps[--mNow]; }
  const Settings& redo() { return mSteps[++mNow]; }

 private:
  std::vector<Settings> mSteps;
  std::size_t mNow = 0;
};

}  // namespace cutline
