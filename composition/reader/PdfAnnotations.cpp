#include "composition/reader/PdfAnnotations.h"

#include <string>

#include "composition/reader/PdfContents.h"
#include "composition/reader/PdfCopies.h"

namespace cutline {
namespace {

// The drawing of a page with what is above it, and what it draws with.
struct Drawing {
  std::string content;
  QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
  QPDFObjectHandle layers = QPDFObjectHandle::newDictionary();
  int count = 0;

  void add(const std::string& drawn, const std::string& name, QPDFObjectHandle form,
           QPDFObjectHandle layer) {
    ++count;
    forms.replaceKey(name, form);
    if (!layer.isDictionary()) {
      content += drawn;
      return;
    }
    layers.replaceKey(name, layer);
    content.append("/OC ").append(name).append(" BDC\n").append(drawn).append("EMC\n");
  }

  QPDFObjectHandle resources() const {
    QPDFObjectHandle all = QPDFObjectHandle::newDictionary();
    all.replaceKey("/XObject", forms);
    all.replaceKey("/Properties", layers);
    return all;
  }
};

}  // namespace

PdfAnnotations::PdfAnnotations(QPDF& pdf, QPDF& labels) : mLabels(labels) {
  if (!pdf.getRoot().getKey("/AcroForm").isDictionary()) return;
  mFields.emplace(pdf);
  mFields->generateAppearancesIfNeeded();
}

QPDFObjectHandle PdfAnnotations::appearance(QPDFAnnotationObjectHelper& annotation) {
  QPDFObjectHandle stream = annotation.getAppearanceStream("/N");
  if (!stream.isStream() || annotation.getSubtype() == "/Popup") return QPDFObjectHandle::newNull();
  stream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  if (mFields && annotation.getSubtype() == "/Widget") completeField(annotation, stream);
  return stream;
}

void PdfAnnotations::completeField(QPDFAnnotationObjectHelper& annotation,
                                   QPDFObjectHandle appearance) {
  // What was generated exists as a filter only, which does not go along into another PDF.
  if (appearance.isDataModified())
    appearance.replaceStreamData(appearance.getStreamData(qpdf_dl_specialized),
                                 QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
  QPDFObjectHandle resources = appearance.getDict().getKey("/Resources");
  resources =
      resources.isDictionary() ? resources.shallowCopy() : QPDFObjectHandle::newDictionary();
  resources.mergeResources(mFields->getFieldForAnnotation(annotation).getDefaultResources());
  appearance.getDict().replaceKey("/Resources", resources);
}

QPDFObjectHandle PdfAnnotations::above(QPDFObjectHandle content, QPDFPageObjectHelper page,
                                       const PdfFrame& frame) {
  Drawing drawing;
  drawing.add("/Page Do\n", "/Page", content, QPDFObjectHandle::newNull());
  for (QPDFAnnotationObjectHelper& annotation : page.getAnnotations()) {
    QPDFObjectHandle stream = appearance(annotation);
    if (!stream.isStream()) continue;
    const std::string name = "/A" + std::to_string(drawing.count);
    const std::string drawn =
        annotation.getPageContentForAppearance(name, frame.rotation, an_print, an_hidden);
    if (drawn.empty()) continue;
    drawing.add(drawn, name, copiedInto(mLabels, stream),
                copiedInto(mLabels, annotation.getObjectHandle().getKey("/OC")));
  }
  if (drawing.count == 1) return content;
  QPDFObjectHandle form = mLabels.newStream(drawing.content);
  describeForm(form, frame, drawing.resources());
  return form;
}

}  // namespace cutline
