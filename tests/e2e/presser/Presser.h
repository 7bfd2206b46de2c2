// A plug-in of Qt's that presses Print once in the program that it is loaded into, as soon as the
// labels are there, or with "presser:close" closes the window, as soon as that is there.
// QT_QPA_GENERIC_PLUGINS names it.
#pragma once

#include <QGenericPlugin>

namespace cutline::test {

class Presser : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "presser.json")

 public:
  QObject* create(const QString& key, const QString& words) override;
};

}  // namespace cutline::test
