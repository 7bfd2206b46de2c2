// The desktop's own print dialog, for what is not for label printers.
#pragma once

#include <QString>
#include <QStringList>

namespace cutline::portal {

// Folders in which portal backends are made known, the first one first, by the environment.
QStringList backendFolders();
// The names of the present desktop, the nearest first ("ubuntu", "GNOME").
QStringList currentDesktops();

// The bus name of a backend that prints and is not ours: one for the first of these desktops that
// has one, else that of GTK, else the first by its file's name. Empty where there is none.
QString otherPrintBackend(const QStringList& folders, const QStringList& desktops);

}  // namespace cutline::portal
