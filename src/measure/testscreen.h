#ifndef KRM_MEASURE_TESTSCREEN_H
#define KRM_MEASURE_TESTSCREEN_H

#include <QString>

class QKeyEvent;
class QPushButton;
class QWidget;

// What the module and the string screens share beside their texts: the
// progress bar's look, the supply pictures, the bar's buttons and the walk of
// the focus along the bar. Each screen keeps its own texts and its own steps.

// The style sheet of the measuring progress bars: the chunk runs from the
// colour ("blue", "green") to white.
QString progressStyle(const char* colour);

// The picture of the supply: the adapter, or the battery by its level 0 to 6;
// null for any other level (the battery is exhausted).
const char* supplyPicture(bool adapter, int level);

// A button of the screen's bottom bar.
QPushButton* barButton(const QString& text, const char* name, bool flat);

// A 256-byte name field, zeroed, then filled from source (null leaves it empty).
void copyName(char* target, const char* source);

// A progress callback of the ramp conversion: context is a QProgressDialog.
void showConversion(void* context, int k);

// Up and Down walk the bar's five buttons as a ring; "Salva" is passed over
// while it is disabled. focus is the screen's focus widget.
void walkBar(int key, QWidget* focus, QPushButton* start, QPushButton* reference,
             QPushButton* measures, QPushButton* save, QPushButton* exit);

#endif
