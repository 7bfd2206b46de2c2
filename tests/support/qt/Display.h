// An X server without a screen, and hands for the windows on it.
#pragma once

#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QTemporaryDir>

namespace cutline::test {

class Display {
 public:
  // Who may put windows there.
  enum class Users { own, all };
  // Throws where the server does not start.
  explicit Display(Users users = Users::own);
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  // Starts a program of the build on this display.
  void start(QProcess& process, const QString& program, const QStringList& words) const;

  // Whether there is such a window now.
  bool hasWindow(const QString& title) const;
  // Waits for the window of this title; an empty rectangle when none comes.
  QRect waitForWindow(const QString& title) const;
  // What the screen shows now.
  QImage picture() const;

  // Events of the X server's own, as from a mouse and a keyboard.
  void movePointer(const QPoint& place) const;
  void click(const QPoint& place) const;
  void doubleClick(const QPoint& place) const;
  // The window of the title takes the keys from now on.
  void activate(const QString& title) const;
  // `key` is X's name of it. It goes to the window of the title.
  void press(const QString& title, const QString& key) const;

 private:
  QByteArray tell(const QStringList& words) const;
  QProcessEnvironment environment() const;

  QTemporaryDir mFolder;
  QProcess mServer;
  QString mName;
};

}  // namespace cutline::test
