// A print model on plain controls with the real cut panel, and what the tests say of it.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/core/HostPlatform.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "plain/PlainToolkit.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PopUpButton.h"

namespace cutline {

using Choices = std::map<std::string, std::string>;  // by keyword

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
  // Fails the running test unless shown, marked and sent are the same, and unless each difference
  // between `wanted` and sent has one of the three rules' reasons and is reported.
  void expectHeldTogether(const Choices& wanted);
  // Fails the running test when another pass of the sequence would change something.
  void expectSettled();

 private:
  void expectShownIsMarked();
  void expectMarkedIsSent();
  void expectOnlyRulesDiffer(const Choices& wanted);

  PlainToolkit mToolkit;
  HostPlatform mPlatform;
  PrintModel mModel;
};

// Whether one of the three rules may change the option now.
bool ruleMayChange(const PpdFile& ppd, const std::string& keyword);

}  // namespace cutline
