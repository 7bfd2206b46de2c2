// What the user should know before printing, and the signs that say how serious it is.
#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

class QPushButton;
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

// The same sign for lists and messages; `side` is its width and height in points.
QIcon iconOf(Severity severity, int side);

// Where notices come from, in the order in which they are shown. Each has its own lines.
enum class NoticeTopic {
  failure,
  refusal,
  document,
  printer,
  setUp,  // that the printer is no longer as it was
  conflicts,
  edges,    // what of the labels will be cut off
  paper,    // how document and paper go together
  cutting,  // what of the tape is cut otherwise than one may expect
  deviations
};

// What can be done about it with one click.
struct Remedy {
  QString title;
  QString hint;  // a few words more
  std::function<void()> act;
};

// A line, with a button for each remedy beside it.
struct Notice {
  QString line;
  std::vector<Remedy> remedies = {};
};

// What the user should know before printing, one line each with a sign: failures, what the printer
// is short of, choices that exclude each other, what would be cut off, choices that a rule changes.
class NoticeView : public QWidget {
  Q_OBJECT

 public:
  explicit NoticeView(QWidget* parent = nullptr);

  // Replaces the topic's notices; none removes them.
  void setNotices(NoticeTopic topic, std::vector<Notice> notices);
  void setNotices(NoticeTopic topic, const QStringList& lines);
  void setNotice(NoticeTopic topic, const QString& line);
  void clear(NoticeTopic topic) { setNotices(topic, std::vector<Notice>()); }

  // What a button says and does that sorts conflicts out.
  static QString resolveTitle();
  static QString resolveHint();
  // That there are so many more of the same.
  static QString othersLine(std::size_t count);

  // The topic's lines.
  QStringList notices(NoticeTopic topic) const;

 signals:
  // Rows, and with them buttons, are new.
  void rebuilt();

 private:
  void rebuild();
  QWidget* makeRow(NoticeTopic topic, std::size_t place);
  QPushButton* makeButton(NoticeTopic topic, std::size_t place, std::size_t remedy, QWidget* row);
  void act(NoticeTopic topic, std::size_t place, std::size_t remedy);

  std::map<NoticeTopic, std::vector<Notice>> mNotices;
  QVBoxLayout* mRows;
};

}  // namespace cutline
