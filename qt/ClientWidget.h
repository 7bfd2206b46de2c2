// The native widget of a custom view: its client draws it and says what the drawing shows.
#pragma once

#include <QString>
#include <QWidget>

#include "platform/ports/Drawing.h"

namespace cutline {

class ClientWidget : public QWidget {
 public:
  // Both are borrowed. Without a client nothing is drawn and nothing is said.
  void setClient(const View* view, CustomViewClient* client);

  // What the drawing shows, as the client says it now.
  QString words() const;
  // Lets assistive technology know, once what is going on now has ended, if the words are others
  // than they were. Many calls in a row make one announcement, or none.
  void announceNewWordsSoon();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void announceNewWords();

  const View* mView = nullptr;
  CustomViewClient* mClient = nullptr;
  QString mAnnouncedWords;
  bool mWillAnnounce = false;
};

}  // namespace cutline
