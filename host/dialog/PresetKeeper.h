// Presets are saved instances of the printer: offers those that the server listed, lays a chosen
// one over the printer's defaults, saves and deletes them.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "cups/Destination.h"

namespace cutline {

class NoticeView;
class PresetBar;
class PrintModel;
class ServerClient;

class PresetKeeper : public QObject {
  Q_OBJECT

 public:
  // All of them are borrowed and outlive the keeper.
  PresetKeeper(PrintModel& model, ServerClient& server, PresetBar& bar, NoticeView& notices,
               QObject* parent);

  // What the server has: printers and their instances.
  void setDestinations(std::vector<Destination> destinations);
  // Null when the server has not listed it.
  const Destination* find(const DestinationName& name) const;
  // Offers the presets of the printer that is open now.
  void showPrinter();
  // Tells whether the settings are still those of the preset in force.
  void modelDidChange();

 private:
  DestinationName nameOf(const QString& preset) const;
  void show(const QString& current);
  void takeAsChosen();
  void forget(const DestinationName& name);
  void choose(const QString& preset);
  void save(const QString& preset);
  void didSave(const QString& preset);
  void didRemove(const QString& preset);

  PrintModel& mModel;
  ServerClient& mServer;
  PresetBar& mBar;
  NoticeView& mNotices;
  std::vector<Destination> mDestinations;
  // Newer than a list that the server was asked for before.
  std::vector<Destination> mSaved;
  std::vector<DestinationName> mRemoved;
  QString mCurrent;  // the preset in force; empty for the printer's own settings
  OptionList mBeingSaved;
  OptionList mAsChosen;  // the settings when the preset in force was chosen or saved
};

}  // namespace cutline
