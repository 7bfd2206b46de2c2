#include "composition/reader/PdfLayers.h"

#include <map>

namespace cutline {
namespace {

using Hidden = std::map<QPDFObjGen, bool>;

std::vector<QPDFObjectHandle> items(QPDFObjectHandle array) {
  return array.isArray() ? array.getArrayAsVector() : std::vector<QPDFObjectHandle>{};
}

void set(QPDFObjectHandle layers, bool isHidden, Hidden& hidden) {
  for (const QPDFObjectHandle& layer : items(layers)) hidden[layer.getObjGen()] = isHidden;
}

bool isNamed(QPDFObjectHandle object, const char* name) { return object.isNameAndEquals(name); }

// Layers that are shown or hidden where a document is printed, whatever a screen shows.
void setForPrinting(QPDFObjectHandle usage, Hidden& hidden) {
  if (!usage.isDictionary() || !isNamed(usage.getKey("/Event"), "/Print")) return;
  for (QPDFObjectHandle& layer : items(usage.getKey("/OCGs"))) {
    if (!layer.isDictionary()) continue;
    QPDFObjectHandle print = layer.getKeyIfDict("/Usage").getKeyIfDict("/Print");
    if (!print.isDictionary()) continue;
    QPDFObjectHandle state = print.getKey("/PrintState");
    if (state.isName()) hidden[layer.getObjGen()] = isNamed(state, "/OFF");
  }
}

Hidden hiddenLayers(QPDFObjectHandle properties) {
  Hidden hidden;
  QPDFObjectHandle settings = properties.getKey("/D");
  if (!settings.isDictionary()) return hidden;
  set(properties.getKey("/OCGs"), isNamed(settings.getKey("/BaseState"), "/OFF"), hidden);
  set(settings.getKey("/ON"), false, hidden);
  set(settings.getKey("/OFF"), true, hidden);
  for (const QPDFObjectHandle& usage : items(settings.getKey("/AS"))) setForPrinting(usage, hidden);
  return hidden;
}

}  // namespace

void copyLayers(QPDF& pdf, LabelWriter& labels) {
  QPDFObjectHandle properties = pdf.getRoot().getKey("/OCProperties");
  if (!properties.isDictionary()) return;
  Hidden hidden = hiddenLayers(properties);
  for (QPDFObjectHandle& layer : items(properties.getKey("/OCGs"))) {
    if (!layer.isIndirect() || !layer.isDictionary()) continue;
    labels.addLayer(labels.pdf().copyForeignObject(layer), hidden[layer.getObjGen()]);
  }
}

}  // namespace cutline
