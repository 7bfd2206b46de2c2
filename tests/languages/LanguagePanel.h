// The real cut panel of a printer on the real toolkit, in a shown window, for a reader of one
// language; its boxes have mnemonics as they get them in the dialog.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "host/core/HostPlatform.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "platform/ports/View.h"
#include "qt/QtToolkit.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {

class LanguagePanel {
 public:
  // Fails the test when the printer cannot be opened or has no panel; view() is null then. The
  // variables choose the language; what is not given is unset.
  LanguagePanel(const test::ScopedEnvironment::Variables& variables, const std::string& ppdPath);
  ~LanguagePanel();
  LanguagePanel(const LanguagePanel&) = delete;
  LanguagePanel& operator=(const LanguagePanel&) = delete;

  View* view() const { return mView; }
  PrintModel& model() { return *mModel; }

  // The shown controls of this kind.
  template <class Widget>
  std::vector<Widget*> shown() const {
    std::vector<Widget*> widgets;
    for (Widget* widget : mWindow->findChildren<Widget*>()) {
      if (widget->isVisible()) widgets.push_back(widget);
    }
    return widgets;
  }
  // As they are read out: without the mark of a mnemonic.
  std::vector<std::string> boxTitles() const;

 private:
  QtToolkit mToolkit;
  HostPlatform mPlatform;
  PluginLoader mPlugIns;
  std::unique_ptr<QWidget> mWindow = std::make_unique<QWidget>();
  std::unique_ptr<PrintModel> mModel;
  View* mView = nullptr;
};

}  // namespace cutline
