// What the user should know before printing, and the signs that say how serious it is.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <map>

class QVBoxLayout;

namespace cutline {

enum class Severity { good, info, warning, error };

// A small sign that says how serious the text beside it is, drawn at any resolution.
class StatusIcon : public QWidget {
  Q_OBJECT

 public:
  explicit StatusIcon(Severity severity, QWidget* parent = nullptr);

  Severity severity() const noexcept { return mSeverity; }
  void setSeverity(Severity severity);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Severity mSeverity;
};

// Where notices come from, in the order in which they are shown. Each has its own lines.
enum class NoticeTopic { failure, refusal, document, printer, conflicts, deviations };

// What the user should know before printing, one line each with a sign: failures, what the printer
// is short of, choices that exclude each other, choices that a rule changes.
class NoticeView : public QWidget {
  Q_OBJECT

 public:
  explicit NoticeView(QWidget* parent = nullptr);

  // Replaces the topic's lines; none removes them.
  void setNotices(NoticeTopic topic, const QStringList& lines);
  void setNotice(NoticeTopic topic, const QString& line);
  void clear(NoticeTopic topic) { setNotices(topic, {}); }

  QStringList notices(NoticeTopic topic) const;

  // What the button says that may come with conflicts.
  static QString resolveTitle();

 signals:
  // The user wants the conflicting choices sorted out.
  void resolveRequested();

 private:
  void rebuild();
  QWidget* makeRow(Severity severity, const QString& line, bool isResolvable);

  std::map<NoticeTopic, QStringList> mLines;
  QVBoxLayout* mRows;
};

}  // namespace cutline
