#include "host/dialog/CuttingForm.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <array>

namespace cutline {
namespace {

// In the order of CutMeaning.
constexpr std::array kTitles = {
    QT_TRANSLATE_NOOP("cutline::CuttingForm", "Never"),
    QT_TRANSLATE_NOOP("cutline::CuttingForm", "After each label"),
    QT_TRANSLATE_NOOP("cutline::CuttingForm", "After every %1 labels"),
    QT_TRANSLATE_NOOP("cutline::CuttingForm", "After each copy"),
    QT_TRANSLATE_NOOP("cutline::CuttingForm", "After the last label"),
    QT_TRANSLATE_NOOP("cutline::CuttingForm", "As the printer decides"),
};

QString cutTitle(const CutOffer& offer) {
  const QString title = CuttingForm::tr(kTitles[static_cast<std::size_t>(offer.meaning)]);
  return offer.meaning == CutMeaning::everyFew ? title.arg(offer.labels) : title;
}

}  // namespace

CuttingForm::CuttingForm(QWidget* parent) : QWidget(parent), mList(new QComboBox(this)) {
  mList->setAccessibleName(tr("Cutting"));
  mList->setPlaceholderText(tr("The driver's own choice"));
  auto* form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  form->addRow(tr("Cut:"), mList);
  connect(mList, &QComboBox::activated, this, [this](int index) {
    emit cuttingChosen(mMeanings.offers[static_cast<std::size_t>(index)]);
  });
}

void CuttingForm::setMeanings(const CutMeanings& meanings) {
  mMeanings = meanings;
  mList->clear();
  for (const CutOffer& offer : meanings.offers) mList->addItem(cutTitle(offer));
  mList->setCurrentIndex(meanings.inForce ? static_cast<int>(*meanings.inForce) : -1);
}

}  // namespace cutline
