// Where to cut, for printers without the cut panel: what their drivers have a word for.
#pragma once

#include <QWidget>

#include "host/core/CutMeanings.h"

class QComboBox;

namespace cutline {

class CuttingForm : public QWidget {
  Q_OBJECT

 public:
  explicit CuttingForm(QWidget* parent = nullptr);

  // Reports nothing. Without offers there is nothing to choose, and it should be hidden.
  void setMeanings(const CutMeanings& meanings);

 signals:
  void cuttingChosen(const cutline::CutOffer& offer);

 private:
  CutMeanings mMeanings;
  QComboBox* mList;
};

}  // namespace cutline
