#ifndef KRM_MEASURE_TESTSCREEN_H
#define KRM_MEASURE_TESTSCREEN_H

#include "data/coredata.h"

#include <QPointF>
#include <QString>
#include <QVector>

class DialogAmbiente;
class Plotter;
class QLabel;
class QProgressDialog;
class QPushButton;
class QWidget;
class RemoteUnit;

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

// The screen's layout: the plot over the bar; on the bar from the left the
// buttons (null ones left out), a stretch, the supply and the clock, with no
// margins and one pixel between them.
void layOutScreen(QWidget* screen, Plotter* plotter, QWidget* bar,
                  const QList<QPushButton*>& buttons, QLabel* supply, QLabel* clock);

// A name field of TEXT_COPY_SIZE bytes, zeroed, then filled from source (null leaves it empty).
void copyName(char* target, const char* source);

// A progress callback of the ramp conversion: context is a QProgressDialog.
void showConversion(void* context, int k);

// Rounds of the environment reading, counted from first: the temperature by
// the probe mode (-20.0 in the automatic mode and the typed value in the
// manual one, without a sensor) and the irradiance, from the local sensors
// (with a pause of 500 us after each round) or from the connected remote
// unit. There is no averaging: the last good value of each stands, and one
// good round is enough. The progress dialog, when given, takes each round's
// number.
void readProbeRounds(const _configParam* config, int rounds, int first, QProgressDialog* progress,
                     RemoteUnit* unit, float* temperature, bool* temperatureValid,
                     float* irradiance, bool* irradianceValid);

// The live environment screen of the "Misure" button and of "Ambiente" /
// "Attuale": the configured probe and link; the ambient probe's slope and
// offset for the ambient mode, the module probe's for every other; the typed
// temperature in the manual mode, else 0.
DialogAmbiente* liveEnvironment(QWidget* parent, const _configParam& config);
// The still environment screen of "Ambiente" / "Misurato": the readings of the
// measure. The automatic and module modes hand over the measure's
// temperature; the manual mode hands over the measure's temperature and then
// sets it to the typed one (so a measure made before a change of the typed
// value shows the old value once); the ambient mode, and any unknown one,
// shows with a reference module the ambient temperature computed back from
// the module's, else the measure's own. Unknown modes are shown as ambient.
DialogAmbiente* measuredEnvironment(QWidget* parent, const _configParam& config, float* temperature,
                                    float irradiance, bool referenceChosen,
                                    const _panelFeature* reference);

// The 512 points of a curve for the plot: x the voltage, y the current.
QVector<QPointF> curvePoints(const _ramp_iv* curve);
// The power curve of a curve, its top at 9.5 on the current axis.
QVector<QPointF> powerPoints(const _ramp_iv* curve);

// The power curve of "Potenza OPC" (stc false) or "Potenza STC" as a toggle:
// when it is shown it goes, and then neither counts as shown; else it is
// drawn from curve as curve 2 with pmax printed beside it, the other no longer
// counting as shown.
void togglePowerCurve(Plotter* plotter, bool stc, bool* opcShown, bool* stcShown,
                      const _ramp_iv* curve, float pmax);

// Up and Down walk the bar's five buttons as a ring; "Salva" is passed over
// while it is disabled. focus is the screen's focus widget.
void walkBar(int key, QWidget* focus, QPushButton* start, QPushButton* reference,
             QPushButton* measures, QPushButton* save, QPushButton* exit);

#endif
