#ifndef KRM_DEBUGBRASK_SERVICEERROR_H
#define KRM_DEBUGBRASK_SERVICEERROR_H

#include "data/coredata.h"

#include <QStringList>

class QWidget;

// The box of a failed call to the measuring board on a service screen: no
// box for success (0), else a warning (critical for no reply) titled title
// with the screen's own text of the error; texts holds, in the screen's
// words, the texts of -1 and then of 3 to 10. Other values show an empty
// text. Returns 0 without a box, 1 after the Ok.
int showServiceError(QWidget* parent, _pdError error, const QString& title,
                     const QStringList& texts);

#endif
