// A print model on plain controls with the real cut panel, and what the tests say of it.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "host/core/HostPlatform.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "plain/PlainTextField.h"
#include "plain/PlainToolkit.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PopUpButton.h"
#include "tests/host/Wishes.h"

namespace cutline {

// The bundles of the build tree; loaded once a process.
PluginLoader& testPlugIns();

class Dialog {
 public:
  explicit Dialog(const AskedSettings& asked = {});

  PrintModel& model() { return mModel; }
  PlainToolkit& toolkit() { return mToolkit; }
  void open(const std::shared_ptr<PpdFile>& ppd, const OptionList& saved = {});

  // Boxes that are not hidden, by the option that they stand for, in the order of the view tree.
  std::vector<CheckBox*> boxes();
  std::vector<CheckBox*> boxes(const std::string& keyword);
  PopUpButton* presets();
  // A user's click on the first box of the option.
  void click(const std::string& keyword);

  std::string marked(const std::string& keyword);
  Choices sent();
  // Keywords of the boxes that are there, whether or not they can be used.
  std::set<std::string> boxKeywords();
  // The number of labels between two cuts.
  PlainTextField* countField();
  // The name of the picture that the panel draws.
  std::string picture();
  // Keywords of the panel's own options among those that the dialog shows by itself.
  std::set<std::string> generatedCutKeywords();
  // Fails the running test unless boxes, picture, summary, marks and job are what must come of the
  // wishes, and exactly what a user must hear of is named.
  void expectHeldTogether(const Wishes& wishes);
  // The same of a printer that was just opened with these.
  void expectHeldTogether(const Choices& wanted);
  // Fails the running test when another pass of the sequence would change something.
  void expectSettled();

 private:
  void expectShown(const Wishes& wishes);
  void expectSent(const Wishes& wishes);
  void expectSummary(const Wishes& wishes);
  void expectNamed(const Wishes& wishes);

  PlainToolkit mToolkit;
  HostPlatform mPlatform;
  PrintModel mModel;
};

}  // namespace cutline
