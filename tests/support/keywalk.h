#ifndef KRM_TESTS_KEYWALK_H
#define KRM_TESTS_KEYWALK_H

#include <QString>

class QAbstractItemView;
class QWidget;
class SimInstrument;

// Walks with the simulated hardware keys, one tap at a time, as an operator
// does: the focus of a window to a widget, the current row of an entered
// list or open combo list to a text. False (and a warning) when the key
// never gets there.
bool walkTo(const SimInstrument& sim, QWidget* window, const char* key, const QString& name);
bool rowTo(const SimInstrument& sim, QAbstractItemView* list, const QString& text);

#endif
