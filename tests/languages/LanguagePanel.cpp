#include "tests/languages/LanguagePanel.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTest>
#include <future>

#include "host/dialog/mnemonics.h"
#include "qt/QtText.h"
#include "tests/languages/StagedBundle.h"

namespace cutline {
namespace {

// Which letters are left for the panel hangs on the dialog's other controls: here the wide ones.
const QString kNarrowLetters = QStringLiteral("EFIJLPRSTVXYZ");

}  // namespace

LanguagePanel::LanguagePanel(const test::ScopedEnvironment::Variables& variables,
                             const std::string& ppdPath)
    : mPlatform(mToolkit), mPlugIns({kPlugInDirectory}) {
  const test::ScopedEnvironment environment(test::languageEnvironment(variables));
  // libcups remembers the language of a thread.
  const auto ppd = std::async(std::launch::async, [&] { return PpdFile::open(ppdPath); }).get();
  if (!ppd) {
    ADD_FAILURE() << ppd.error().message;
    return;
  }
  mModel = std::make_unique<PrintModel>(mPlugIns, AskedSettings());
  mModel->openPrinter({Destination(), *ppd});
  for (const std::string& problem : mPlugIns.takeProblems()) ADD_FAILURE() << problem;
  if (mModel->panels().empty()) {
    ADD_FAILURE() << "no panel for " << ppdPath;
    return;
  }
  mView = mModel->panels().front().view.get();
  QWidget* const panel = QtToolkit::widgetOf(*mView);
  panel->setParent(mWindow.get());
  mWindow->resize(panel->size());
  panel->show();
  mWindow->show();
  assignMnemonics(*mWindow, *mWindow, kNarrowLetters);
  EXPECT_TRUE(QTest::qWaitForWindowExposed(mWindow.get()));
}

LanguagePanel::~LanguagePanel() { mModel.reset(); }

std::vector<std::string> LanguagePanel::boxTitles() const {
  std::vector<std::string> titles;
  for (const QCheckBox* box : shown<QCheckBox>()) titles.push_back(toUtf8(box->accessibleName()));
  return titles;
}

}  // namespace cutline
