#include "composition/reader/InkBounds.h"

#include <exception>

#include "composition/Layout.h"
#include "composition/reader/ContentInk.h"

namespace cutline {

const std::optional<InkArea>& InkBounds::of(QPDFObjectHandle form) {
  const auto [known, isNew] = mKnown.try_emplace(form.getObjGen());
  if (!isNew) return known->second;
  try {
    known->second = ContentInk(mWork, QPDFObjectHandle::newNull(), {}).ofForm(form);
  } catch (const std::exception&) {
    // Whatever it is that cannot be told: who wants to know looks at the drawn page.
    known->second.reset();
  }
  return known->second;
}

bool InkBounds::arePrintable(QPDFObjectHandle form, const QPDFMatrix& matrix,
                             const LabelPage& label) {
  const std::optional<InkArea>& ink = of(std::move(form));
  if (!ink) return false;
  return ink->isEmpty() || isPrintable(moved(matrix, ink->area()), label);
}

}  // namespace cutline
