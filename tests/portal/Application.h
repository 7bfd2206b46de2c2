// An application that prints with GTK's print operation through the portal.
#pragma once

#include <QProcess>
#include <QStringList>
#include <map>
#include <string>
#include <vector>

namespace cutline::test {

class Application {
 public:
  struct Report {
    std::string result;  // "apply", "cancel", "error"; empty where there is no report
    std::map<std::string, std::string> settings;
    // The pages that it drew on, in millimetres.
    std::vector<std::pair<double, double>> pages;
  };

  // Begins to print three pages; `gtk` is 3 or 4, `words` are those of print_client.py.
  explicit Application(int gtk, const QStringList& words = {});
  // It does not ask whether its printing is through.
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  // What became of it; waits for that. Fails the test where nothing does.
  Report report();
  void kill();

 private:
  QProcess mProcess;
};

}  // namespace cutline::test
