#ifndef KRM_SHELL_LANGUAGE_H
#define KRM_SHELL_LANGUAGE_H

#include "data/coredata.h"

#include <QString>

class QTranslator;

// The one translator of the program: made once at start-up, never deleted;
// a language change loads another catalogue into this same object.
extern QTranslator* qTranslator;

// The instrument's path of the compiled catalogue of a language, without
// extension: "/etc/flang/krm510_it" and its sisters. Language 5 takes the
// Italian one; a value beyond it gives the path without suffix.
QString getFileTraslator(_language lang);

// Loads the catalogue of a language into the translator, as the start-up and
// the settings screen do: the path of getFileTraslator, no directory, no
// search delimiters and no suffix. A missing catalogue leaves the source texts.
bool loadTranslator(QTranslator* translator, _language lang);

#endif
