#ifndef KRM_SHELL_DESKTOPSEED_H
#define KRM_SHELL_DESKTOPSEED_H

#include <QString>

// The machine folder of the desktop instrument, made ready on first use under
// the current system root: the settings with the instrument's defaults, the
// compiled catalogues in /etc/flang (copied again each time, so a rebuild
// reaches them), a "/home/myspi" that does nothing, the five data directories
// and, in an empty module database,
// a dozen data sheets of modules of several technologies. An existing
// settings file and existing modules are left as they are.
//
// Returns the number of modules written (0 when the database already held
// some), or -1 when the folder could not be prepared.
int seedDesktopRoot(const QString& catalogueDir);

#endif
