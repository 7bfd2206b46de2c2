// The labels that documents become: composed and drawn in the background, and kept for the preview.
#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <QTimer>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

#include "base/Result.h"
#include "composition/LabelInk.h"
#include "host/dialog/Background.h"
#include "host/dialog/Composing.h"
#include "host/dialog/LabelPicture.h"

namespace cutline {

struct PageRequest {
  int page;
  double scale;  // pixels a point
};

// Composes the documents on other threads, the first label before the rest of many, and draws
// labels, one call at a time.
class DocumentLoader : public QObject {
  Q_OBJECT

 public:
  explicit DocumentLoader(QObject* parent = nullptr);
  // Stops what runs.
  ~DocumentLoader() override;

  // What is composed from now on; nothing is shown before `compose`.
  void setDocuments(std::vector<std::string> paths, DocumentTools tools);
  // Composes all pages for this, whatever the request selects; composed, twice where there are
  // many labels, or failed follows. A newer request stops an older one; the same one again
  // changes nothing.
  void compose(CompositionRequest request);
  // Draws these labels next, in this order; earlier requests that were not begun are dropped. Those
  // that are not composed yet wait.
  void request(std::deque<PageRequest> requests);
  // How pictures look from now on; composed follows where there are some.
  void setLook(const PrinterLook& look);

  // Something is composed: the first label, at least.
  bool isOpen() const noexcept { return mDocument != nullptr; }
  // One of the documents is a text.
  bool hasText() const noexcept { return mHasText; }
  // The latest request is not answered yet, or not completely.
  bool isComposing() const noexcept { return mIsComposing; }
  // The answer to the latest request is complete.
  bool isComplete() const noexcept { return mIsComplete; }
  bool hasFailed() const noexcept { return mHasFailed; }
  // Nothing is being composed or drawn.
  bool isIdle() const noexcept;
  // What the composer said last; of the first label alone before it is complete.
  const CompositionReport& report() const noexcept { return mReport; }
  // Of the labels that had to be looked at, and were so far, by their numbers from 0; nothing for
  // an empty one.
  const std::map<int, std::optional<Ink>>& inks() const noexcept { return mInks; }

 signals:
  // There are labels, or others than before: all pictures are old.
  void composed();
  // Composing takes long (true), or is over.
  void waiting(bool isWaiting);
  void failed(const QString& reason);
  void pageDrawn(int page, double scale, const QImage& image);
  void pageFailed(int page, const QString& reason);
  // Every label whose ink is looked for has been looked at.
  void inksKnown();
  void becameIdle();

 private:
  struct Answer;
  struct Drawn;
  void ask(bool isFirst);
  void take(int asked, bool isFirst, const Result<Answer>& answer);
  void fail(const QString& reason);
  void drawNext();
  void draw(const PageRequest& request, bool isForInk);
  void deliver(int composition, const PageRequest& request, bool isForInk,
               const Result<Drawn>& drawn);
  void forgetInks();
  void drawForInk();
  void takeInk(int label, const std::optional<Ink>& ink);
  void stop();

  std::vector<std::string> mPaths;
  DocumentTools mTools;
  PrinterLook mLook;
  std::optional<CompositionRequest> mWanted;
  std::stop_source mStop;
  int mAsked = 0;        // numbers the questions to the composer; older answers are dropped
  int mComposition = 0;  // numbers what is open; pictures of older ones are dropped
  std::shared_ptr<Document> mDocument;
  CompositionReport mReport;
  std::map<int, std::optional<Ink>> mInks;
  std::deque<int> mUnknownInks;  // labels that are still to be looked at
  std::deque<PageRequest> mRequests;
  QTimer mPatience;
  bool mHasText = false;
  bool mHasFailed = false;
  bool mIsComposing = false;
  bool mIsComplete = false;
  bool mIsDrawing = false;
  bool mIsInkTold = true;
  Background mBackground;
};

// The drawn labels that the preview holds. Forgets those that were not looked at for longest.
class PageCache {
 public:
  // The label at whatever scale it was last drawn, and though it be old; a null image when there is
  // none.
  QImage image(int page);
  // Keeps so many labels, and never fewer than forty.
  void setRoom(std::size_t labels);
  // True when the label is there at this scale (pixels a point) and not old.
  bool has(int page, double scale) const;
  void insert(int page, double scale, QImage image);
  // Every picture is of labels as they were.
  void setOld();
  void clear();

 private:
  struct Entry {
    QImage image;
    double scale = 0;
    std::uint64_t lastUse = 0;
  };
  void forgetOldest();

  std::map<int, Entry> mEntries;
  std::size_t mRoom = 40;
  std::uint64_t mUses = 0;
};

}  // namespace cutline
