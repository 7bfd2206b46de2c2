#include "composition/reader/PdfContents.h"

#include <qpdf/Pl_Concatenate.hh>
#include <qpdf/Pl_Flate.hh>
#include <utility>
#include <vector>

#include "composition/reader/PdfCopies.h"
#include "composition/reader/PdfNumbers.h"

namespace cutline {
namespace {

// Streams one behind the other, with a blank between: an operator may end with one of them.
class JoinedStreams : public QPDFObjectHandle::StreamDataProvider {
 public:
  explicit JoinedStreams(std::vector<QPDFObjectHandle> streams) : mStreams(std::move(streams)) {}

  void provideStreamData(QPDFObjGen const&, Pipeline* out) override {
    Pl_Flate packed("packed contents", out, Pl_Flate::a_deflate);
    Pl_Concatenate joined("contents", &packed);
    for (QPDFObjectHandle& stream : mStreams) {
      stream.pipeStreamData(&joined, 0, qpdf_dl_specialized, /*suppress_warnings=*/true);
      joined.writeCStr("\n");
    }
    joined.manualFinish();
  }

 private:
  std::vector<QPDFObjectHandle> mStreams;
};

// A stream as it is stored.
class StoredStream : public QPDFObjectHandle::StreamDataProvider {
 public:
  explicit StoredStream(QPDFObjectHandle stream) : mStream(std::move(stream)) {}

  void provideStreamData(QPDFObjGen const&, Pipeline* out) override {
    mStream.pipeStreamData(out, 0, qpdf_dl_none, /*suppress_warnings=*/true);
  }

 private:
  QPDFObjectHandle mStream;
};

// What is no stream is left out, as every reader does.
std::vector<QPDFObjectHandle> contentStreams(QPDFPageObjectHelper& page) {
  QPDFObjectHandle contents = page.getObjectHandle().getKey("/Contents");
  std::vector<QPDFObjectHandle> streams;
  if (contents.isStream()) streams.push_back(contents);
  const int count = contents.isArray() ? contents.getArrayNItems() : 0;
  for (int at = 0; at < count; ++at) {
    QPDFObjectHandle stream = contents.getArrayItem(at);
    if (stream.isStream()) streams.push_back(stream);
  }
  return streams;
}

QPDFObjectHandle contentStream(QPDF& labels, std::vector<QPDFObjectHandle> streams) {
  QPDFObjectHandle stream = labels.newStream();
  if (streams.size() != 1) {
    stream.replaceStreamData(std::make_shared<JoinedStreams>(std::move(streams)),
                             QPDFObjectHandle::newName("/FlateDecode"),
                             QPDFObjectHandle::newNull());
    return stream;
  }
  QPDFObjectHandle stored = streams.front().getDict();
  stream.replaceStreamData(std::make_shared<StoredStream>(streams.front()),
                           copiedInto(labels, stored.getKey("/Filter")),
                           copiedInto(labels, stored.getKey("/DecodeParms")));
  return stream;
}

}  // namespace

void describeForm(QPDFObjectHandle form, const PdfFrame& frame, QPDFObjectHandle resources) {
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", pdfBox(frame.box));
  dictionary.replaceKey("/Resources", resources);
}

QPDFObjectHandle contentForm(QPDF& labels, QPDFPageObjectHelper page, const PdfFrame& frame) {
  QPDFObjectHandle form = contentStream(labels, contentStreams(page));
  QPDFObjectHandle resources = page.getAttribute("/Resources", false);
  describeForm(
      form, frame,
      resources.isDictionary() ? copiedInto(labels, resources) : QPDFObjectHandle::newDictionary());
  QPDFObjectHandle group = page.getObjectHandle().getKey("/Group");
  if (group.isDictionary()) form.getDict().replaceKey("/Group", copiedInto(labels, group));
  return form;
}

std::string contentKey(QPDFPageObjectHelper page, const PdfFrame& frame) {
  return page.getObjectHandle().getKey("/Contents").unparse() + ' ' +
         page.getAttribute("/Resources", false).unparse() + ' ' +
         page.getObjectHandle().getKey("/Group").unparse() + ' ' + pdfBox(frame.box).unparse();
}

}  // namespace cutline
