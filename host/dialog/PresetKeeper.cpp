#include "host/dialog/PresetKeeper.h"

#include <algorithm>
#include <utility>

#include "host/core/PrintModel.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PrintServer.h"
#include "qt/QtText.h"

namespace cutline {

PresetKeeper::PresetKeeper(PrintModel& model, ServerClient& server, PresetBar& bar,
                           NoticeView& notices, QObject* parent)
    : QObject(parent), mModel(model), mServer(server), mBar(bar), mNotices(notices) {
  connect(&bar, &PresetBar::presetChosen, this, &PresetKeeper::choose);
  connect(&bar, &PresetBar::saveRequested, this, &PresetKeeper::save);
  connect(&bar, &PresetBar::removalRequested, this,
          [this](const QString& preset) { mServer.removePreset(nameOf(preset)); });
  connect(&server, &ServerClient::presetSaved, this, &PresetKeeper::didSave);
  connect(&server, &ServerClient::presetRemoved, this, &PresetKeeper::didRemove);
  connect(&server, &ServerClient::presetFailed, this,
          [this](const QString& reason) { mNotices.setNotice(NoticeTopic::failure, reason); });
}

void PresetKeeper::setDestinations(std::vector<Destination> destinations) {
  mDestinations = std::move(destinations);
  for (const DestinationName& name : mRemoved) forget(name);
  for (const Destination& saved : mSaved) {
    forget(saved.name);
    mDestinations.push_back(saved);
  }
  if (mModel.isOpen()) show(mCurrent);
}

void PresetKeeper::forget(const DestinationName& name) {
  std::erase_if(mDestinations, [&](const Destination& each) { return each.name == name; });
}

const Destination* PresetKeeper::find(const DestinationName& name) const {
  const auto found = std::find_if(mDestinations.begin(), mDestinations.end(),
                                  [&](const Destination& each) { return each.name == name; });
  return found == mDestinations.end() ? nullptr : &*found;
}

DestinationName PresetKeeper::nameOf(const QString& preset) const {
  DestinationName name{mModel.destination().name.printer, std::nullopt};
  if (!preset.isEmpty()) name.instance = toUtf8(preset);
  return name;
}

void PresetKeeper::showPrinter() {
  mBar.setEnabled(mModel.hasQueue());
  show(toQString(mModel.destination().name.instance.value_or("")));
  takeAsChosen();
}

void PresetKeeper::takeAsChosen() {
  mAsChosen = mModel.settings().options;
  mBar.setChanged(false);
}

void PresetKeeper::modelDidChange() { mBar.setChanged(mModel.settings().options != mAsChosen); }

void PresetKeeper::show(const QString& current) {
  mCurrent = current;
  QStringList names;
  for (const Destination& each : mDestinations) {
    if (each.name.printer != mModel.destination().name.printer || !each.name.instance) continue;
    names.append(toQString(*each.name.instance));
  }
  if (!current.isEmpty() && !names.contains(current)) names.append(current);
  mBar.setPresets(names, current);
}

void PresetKeeper::choose(const QString& preset) {
  mCurrent = preset;
  if (const Destination* found = find(nameOf(preset))) mModel.applyPreset(found->savedOptions);
  takeAsChosen();
}

void PresetKeeper::save(const QString& preset) {
  const Result<OptionList> options = mModel.savePreset();
  mNotices.setNotice(NoticeTopic::failure, options ? QString() : asLine(options.error().sentence));
  if (!options) return;
  mBeingSaved = *options;
  mServer.savePreset(nameOf(preset), *options);
}

void PresetKeeper::didSave(const QString& preset) {
  Destination saved = mModel.destination();
  saved.name = nameOf(preset);
  saved.savedOptions = mBeingSaved;
  std::erase(mRemoved, saved.name);
  std::erase_if(mSaved, [&](const Destination& each) { return each.name == saved.name; });
  mSaved.push_back(saved);
  forget(saved.name);
  mDestinations.push_back(saved);
  show(preset);
  takeAsChosen();
}

void PresetKeeper::didRemove(const QString& preset) {
  const DestinationName removed = nameOf(preset);
  mRemoved.push_back(removed);
  std::erase_if(mSaved, [&](const Destination& each) { return each.name == removed; });
  forget(removed);
  show({});
}

}  // namespace cutline
