#include "host/dialog/OpenBar.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

#include "host/dialog/Icons.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr int kMenuGap = 2;

std::string nameOf(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

// The file's name, and its folder where another one is called the same. An ampersand is no
// mnemonic.
QString titleIn(const std::vector<std::string>& paths, const std::string& path) {
  const auto isNamesake = [&](const std::string& each) { return nameOf(each) == nameOf(path); };
  const bool isAlone = std::ranges::count_if(paths, isNamesake) == 1;
  return toQString(isAlone ? nameOf(path) : path).replace(u'&', QLatin1String("&&"));
}

}  // namespace

OpenBar::OpenBar(QWidget* parent)
    : QWidget(parent),
      mOpen(new QPushButton(icon(Glyph::open), tr("&Open..."), this)),
      mRecent(new QToolButton(this)) {
  mRecent->setIcon(icon(Glyph::opened));
  mRecent->setAutoRaise(true);
  mRecent->setFocusPolicy(Qt::StrongFocus);
  mRecent->setPopupMode(QToolButton::InstantPopup);
  mRecent->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
  mRecent->setAccessibleName(tr("Recent documents"));
  mRecent->setToolTip(tr("Recent documents"));
  mRecent->hide();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kMenuGap);
  row->addWidget(mOpen);
  row->addWidget(mRecent);
  connect(mOpen, &QPushButton::clicked, this, &OpenBar::ask);
}

void OpenBar::setRecent(const std::vector<std::string>& paths) {
  mRecent->setVisible(!paths.empty());
  auto* menu = new QMenu(mRecent);
  menu->setToolTipsVisible(true);
  for (const std::string& path : paths) {
    QAction* const entry = menu->addAction(titleIn(paths, path));
    entry->setToolTip(toQString(path));
    connect(entry, &QAction::triggered, this, [this, path] { emit documentsChosen({path}); });
  }
  delete mRecent->menu();
  mRecent->setMenu(menu);
}

void OpenBar::ask() {
  auto* question = new QFileDialog(this, tr("Open"));
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setFileMode(QFileDialog::ExistingFiles);
  connect(question, &QFileDialog::filesSelected, this, [this](const QStringList& files) {
    std::vector<std::string> paths;
    for (const QString& file : files) paths.push_back(toUtf8(file));
    emit documentsChosen(paths);
  });
  question->open();
}

}  // namespace cutline
