#include "qt/QtViewCore.h"

#include <algorithm>
#include <cmath>

#include "qt/QtActions.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {

namespace {

int toPixel(double points) {
  if (!std::isfinite(points)) return 0;
  return static_cast<int>(
      std::lround(std::clamp<double>(points, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
}

// Edges are rounded, not sizes, so that views that touch keep touching.
QRect toPixels(const Rect& frame, double superviewHeight) {
  const double bottom = superviewHeight - frame.origin.y;
  const QPoint topLeft(toPixel(frame.origin.x), toPixel(bottom - frame.size.height));
  const QPoint bottomRight(toPixel(frame.origin.x + frame.size.width), toPixel(bottom));
  return {topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())};
}

void deleteSoon(QWidget* widget) {
  widget->hide();
  widget->setParent(nullptr);
  widget->deleteLater();
}

}  // namespace

QtBacked::~QtBacked() = default;

QtViewCore::QtViewCore(View& view, QWidget* widget, const Rect& frame,
                       std::shared_ptr<QtActions> actions)
    : mView(view),
      mWidget(widget),
      mActions(std::move(actions)),
      mConnectionContext(std::make_unique<QObject>()),
      mFrame(frame) {
  place();
}

QtViewCore::~QtViewCore() {
  mConnectionContext.reset();
  const QtActions::Silence silence(*mActions);
  releaseSubviews();
  if (!mWidget) return;
  if (mActions->areRunning()) {
    deleteSoon(mWidget);
  } else {
    delete mWidget.data();
  }
}

QtViewCore* QtViewCore::of(View* view) noexcept {
  auto* const backed = dynamic_cast<QtBacked*>(view);
  return backed ? &backed->core() : nullptr;
}

void QtViewCore::setFrame(const Rect& frame) noexcept {
  const double heightChange = frame.size.height - mFrame.size.height;
  mFrame = frame;
  place();
  if (heightChange != 0) replaceSubviews(heightChange);
}

// A root has no place of its own: the layout that it stands in finds one for its size.
void QtViewCore::place() noexcept {
  if (!mWidget) return;
  if (mSuperview) {
    mWidget->setGeometry(toPixels(frameOfWidget(), mSuperview->mFrame.size.height));
  } else {
    mWidget->setFixedSize(toPixels(mFrame, 0).size());
  }
}

Rect QtViewCore::frameOfWidget() const noexcept {
  const double missing = std::max(0.0, mMinimumHeight - mFrame.size.height);
  return {{mFrame.origin.x, mFrame.origin.y - missing / 2},
          {mFrame.size.width, mFrame.size.height + missing}};
}

void QtViewCore::setMinimumHeight(double height) noexcept {
  mMinimumHeight = height;
  place();
}

void QtViewCore::replaceSubviews(double heightChange) noexcept {
  for (const auto& subview : mSubviews) {
    QtViewCore& core = *of(subview.get());
    if (core.mAutoresizing == Autoresizing::minYMargin) core.mFrame.origin.y += heightChange;
    core.place();
  }
}

void QtViewCore::setHidden(bool hidden) noexcept {
  const QtActions::Silence silence(*mActions);
  mHidden = hidden;
  showAsFlagged();
}

void QtViewCore::showAsFlagged() noexcept {
  if (!mWidget) return;
  if (mHidden || mWidget->parentWidget()) {
    mWidget->setVisible(!mHidden);
    return;
  }
  // Showing a widget without parent would open a window: the host's window shows it later. In Qt
  // 6.4.2 one that was hidden by itself before would stay hidden there, but for this attribute.
  mWidget->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
}

void QtViewCore::setNeedsDisplay(bool needsDisplay) noexcept {
  if (needsDisplay && mWidget) mWidget->update();
}

View* QtViewCore::superview() const noexcept { return mSuperview ? &mSuperview->mView : nullptr; }

void QtViewCore::addSubview(std::shared_ptr<View> subview) noexcept {
  if (!mayTake(subview.get())) return;
  of(subview.get())->leaveTree();
  insert(std::move(subview), mSubviews.size());
}

void QtViewCore::replaceSubview(View* old, std::shared_ptr<View> with) noexcept {
  if (old == with.get() || indexOf(old) == mSubviews.size() || !mayTake(with.get())) return;
  of(with.get())->leaveTree();
  const std::size_t index = indexOf(old);
  insert(std::move(with), index);
  remove(index + 1);
}

bool QtViewCore::mayTake(View* subview) const noexcept {
  const QtViewCore* const core = of(subview);
  if (!core) return false;
  for (const QtViewCore* above = this; above; above = above->mSuperview) {
    if (above == core) return false;
  }
  return true;
}

std::size_t QtViewCore::indexOf(const View* subview) const noexcept {
  const auto found = std::find_if(mSubviews.begin(), mSubviews.end(),
                                  [&](const auto& each) { return each.get() == subview; });
  return static_cast<std::size_t>(found - mSubviews.begin());
}

void QtViewCore::insert(std::shared_ptr<View> subview, std::size_t index) noexcept {
  QtViewCore& core = *of(subview.get());
  core.mSuperview = this;
  mSubviews.insert(mSubviews.begin() + static_cast<std::ptrdiff_t>(index), std::move(subview));
  if (!mWidget || !core.mWidget) return;
  core.mWidget->setMinimumSize(0, 0);
  core.mWidget->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  core.mWidget->setParent(mWidget);
  core.place();
  core.showAsFlagged();
  if (index + 1 >= mSubviews.size()) return;
  QWidget* const above = of(mSubviews[index + 1].get())->widget();
  if (above) core.mWidget->stackUnder(above);
}

void QtViewCore::remove(std::size_t index) noexcept {
  const QtActions::Silence silence(*mActions);
  const std::shared_ptr<View> leaving = mSubviews[index];
  mSubviews.erase(mSubviews.begin() + static_cast<std::ptrdiff_t>(index));
  QtViewCore& core = *of(leaving.get());
  core.mSuperview = nullptr;
  if (!core.mWidget) return;
  core.mWidget->setParent(nullptr);
  core.place();
  core.showAsFlagged();
}

void QtViewCore::leaveTree() noexcept {
  if (mSuperview) mSuperview->remove(mSuperview->indexOf(&mView));
}

// A subview that somebody else holds outlives this view, so its widget must leave this one's.
void QtViewCore::releaseSubviews() noexcept {
  while (!mSubviews.empty()) {
    if (mSubviews.back().use_count() > 1) {
      remove(mSubviews.size() - 1);
      continue;
    }
    of(mSubviews.back().get())->mSuperview = nullptr;
    mSubviews.pop_back();
  }
}

void QtViewCore::setAccessibilityLabel(const std::string& label) noexcept {
  mAccessibilityLabel = label;
  if (mWidget) tellAccessibleName(*mWidget, toQString(label));
}

}  // namespace cutline
