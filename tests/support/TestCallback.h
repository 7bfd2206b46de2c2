// A host's callback object that marks choices in the PPD and remembers what it was asked.
#pragma once

#include <cups/ppd.h>

#include <string>
#include <vector>

#include "platform/ports/PrintDialogPanel.h"
#include "tests/support/ScriptedPrinting.h"

namespace cutline::test {

struct Mark {
  std::string key;
  std::string choice;
  friend bool operator==(const Mark&, const Mark&) = default;
};
std::ostream& operator<<(std::ostream& out, const Mark& mark);

class TestCallback : public PDEPluginCallback13_v400_ {
 public:
  TestCallback() { format.paper = &paper; }

  PMPrintSession printSession() noexcept override { return asked("printSession"), &session; }
  PMPrintSettings printSettings() noexcept override {
    return asked("printSettings"), hasSettings ? &settings : nullptr;
  }
  PMPageFormat pageFormat() noexcept override {
    return asked("pageFormat"), hasFormat ? &format : nullptr;
  }
  cutline::PMPrinter PMPrinter() noexcept override {
    return asked("PMPrinter"), hasPrinter ? &printer : nullptr;
  }
  ppd_file_t* ppdFile() noexcept override { return asked("ppdFile"), ppd; }
  void willChangePPDOptionKeyValue(const std::string& key,
                                   const std::optional<std::string>& ppdChoice) noexcept override;
  bool respondsToPanelViewDidResize() const noexcept override { return listensToResizes; }
  void panelViewDidResize() noexcept override { ++resizes; }

  ScriptedSession session;
  ScriptedSettings settings;
  ScriptedPaper paper;
  ScriptedPageFormat format;
  ScriptedPrinter printer;
  bool hasSettings = true;
  bool hasFormat = true;
  bool hasPrinter = true;
  ppd_file_t* ppd = nullptr;
  bool listensToResizes = true;

  std::vector<Mark> marks;
  std::vector<std::string> asks;
  int resizes = 0;

 private:
  void asked(const char* what) { asks.emplace_back(what); }
};

}  // namespace cutline::test
