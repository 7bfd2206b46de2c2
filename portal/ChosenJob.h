// What a person chose in the dialog for a document that an application is about to draw, and what
// the application and a later dialog are told of it.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>

namespace cutline::portal {

struct ChosenJob {
  // In millimetres, as it is read.
  struct Page {
    QString name;
    double width = 0, length = 0;
    double top = 0, right = 0, bottom = 0, left = 0;
  };

  QString printer;                 // PRINTER[/PRESET]
  QMap<QString, QString> options;  // of the printer's driver
  QMap<QString, QString> others;   // of the print system
  int copies = 1;
  QString pages;  // "1-4,7"; empty for all
  Page page;

  // What the dialog says of it (host/dialog/ChosenSettings.h); nothing where it says no such thing.
  static std::optional<ChosenJob> parse(const QByteArray& json);

  // The settings that the application asked for with the chosen ones in their place. Copies, pages
  // and their order are ours to apply: to the application it is one copy of all pages.
  QVariantMap settings(const QVariantMap& asked) const;
  // By its measures, and upright: what programs make of the other way differs.
  QVariantMap pageSetup() const;

  // The same as words of a command line.
  QStringList words() const;
};

// "NAME=VALUE", with whatever sign is in the value, as -o takes it.
QString optionWord(const QString& name, const QString& value);

}  // namespace cutline::portal
