#ifndef KRM_MEASURE_VIEWMEASURES_H
#define KRM_MEASURE_VIEWMEASURES_H

#include "data/coredata.h"

#include <QDialog>
#include <QString>

class InfoBar;
class Plotter;
class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QTimer;

// A saved measure shown as the measuring screen showed it: the curve at
// operating conditions rebuilt from the stored ramp and, with a reference
// module, the translated curve drawn through the stored standard figures and
// the stored verdict. It reads one file and writes nothing; the only hardware
// it touches is the supply display.
class ViewMeasures : public QDialog
{
    Q_OBJECT
public:
    ViewMeasures(QWidget* parent, _listMeasures* entry, _meaType type);
    ~ViewMeasures() override;

    QWidget* _bar;
    bool _powerOpcShown;
    bool _powerStcShown;
    _meaType _type;
    _listMeasures* _entry; // not owned
    ::_measure _measure;
    _ramp_iv _ramp;
    _ramp_iv _rampStc;
    _ramp_iv _rampSmooth;
    _ramp_iv _rampStcSmooth;
    float _pmaxStc, _vmppStc, _imppStc, _vocStc, _iscStc;
    Plotter* _plotter;
    QMenu* _menuPower;
    QAction* _actionPowerOpc;
    QAction* _actionPowerStc;
    QString _title;
    QPushButton* _buttonPower;
    QPushButton* _buttonEnv;
    QPushButton* _buttonData;
    QPushButton* _buttonExit;
    QPushButton* _buttonRs; // modules only
    QLabel* _labelClock;
    QLabel* _labelSupply;
    QTimer* _timerClock;
    QTimer* _timerSupply;

    void prepareGraph();

public slots:
    void displayRs();
    void displayAmbiente();
    void displayDatiElettrici();
    void displayPowerSTC();
    void displayPowerOPC();
    void displayPowerSupply();
    void displayClock();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void drawCurve(int id, const _ramp_iv* source, _ramp_iv* smooth, float isc, float voc);

    // Not placed: the clock's mode is read from it, and its key poller
    // brings the hardware keys to this screen.
    InfoBar* _infoBar;
};

#endif
