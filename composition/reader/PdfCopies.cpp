#include "composition/reader/PdfCopies.h"

namespace cutline {

// The library copies only what has a number, and numbering an object of a PDF that was read has all
// of that PDF read: so what has none is copied piece by piece.
QPDFObjectHandle copiedInto(QPDF& into, QPDFObjectHandle object) {
  if (object.isIndirect()) return into.copyForeignObject(object);
  if (object.isArray()) {
    QPDFObjectHandle array = QPDFObjectHandle::newArray();
    for (const QPDFObjectHandle& item : object.getArrayAsVector())
      array.appendItem(copiedInto(into, item));
    return array;
  }
  if (!object.isDictionary()) return object.shallowCopy();
  QPDFObjectHandle dictionary = QPDFObjectHandle::newDictionary();
  for (const auto& [key, value] : object.getDictAsMap())
    dictionary.replaceKey(key, copiedInto(into, value));
  return dictionary;
}

}  // namespace cutline
