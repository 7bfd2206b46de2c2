// What the confined composer does with the files that it is given.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "base/FileDescriptor.h"
#include "composition/Composition.h"
#include "composition/helper/Confinement.h"
#include "composition/reader/DocumentComposer.h"
#include "composition/reader/DocumentKind.h"
#include "composition/reader/ReaderModules.h"

namespace cutline {

class ComposingTask {
 public:
  // The PDF to write, and then the documents; not empty. The limits are those of the process, but
  // for its descriptors.
  ComposingTask(std::vector<FileDescriptor> files, const ProcessLimits& limits, ModuleLoader load);

  std::size_t documents() const { return mDocuments.size(); }

  // What can be done before there is a request: loads what reads the documents and confines the
  // process; while nobody asks, reads ahead, too, and gives way to all others from then on.
  // PostScript waits for the request: it needs another program, which a confined one cannot start.
  void prepare(const std::function<bool()>& isAsked);
  // Once only. What a document does wrong is a failure in the report.
  CompositionReport compose(const CompositionRequest& request);

 private:
  void takeKind(DocumentKind kind);
  bool confineNow() const;
  // Of PostScript; what went wrong, or nothing.
  std::optional<CompositionReport> convert(const CompositionRequest& request);

  std::vector<FileDescriptor> mFiles;
  ProcessLimits mLimits;
  std::vector<int> mDocuments;
  ModuleLoader mLoad;
  ReaderModules mModules;
  bool mHasPostScript = false;
  bool mIsConfined = false;
  DocumentComposer mComposer;
};

// By the document's first bytes.
DocumentKind kindOf(int document);

// A report of nothing but that; `document` is -1 where it may be any.
CompositionReport failedReport(DocumentProblem problem, int document, std::string detail = {});

}  // namespace cutline
