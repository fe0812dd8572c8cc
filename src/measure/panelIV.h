#ifndef KRM_MEASURE_PANELIV_H
#define KRM_MEASURE_PANELIV_H

#include "data/coredata.h"

#include <QDialog>
#include <QString>

class Plotter;
class PowerDevice;
class QAction;
class QLabel;
class QMenu;
class QMessageBox;
class QPushButton;
class QTimer;

// The test of one photovoltaic module: the environment is read, the
// measuring board runs its ramp, the counts become the curve at operating
// conditions, and with a reference module and a stable irradiance the curve
// is translated to standard conditions and judged. The figures are public for
// the screens and tests that read them.
class PanelIV : public QDialog
{
    Q_OBJECT
public:
    explicit PanelIV(QWidget* parent);
    ~PanelIV() override;

    _configParam _config;
    QString _title;
    QString _comment;
    int _result;
    _raw_ramp_iv _rawRamp;
    _ramp_iv _ramp;
    _ramp_iv _rampExact;
    _ramp_iv _rampStc;
    _ramp_iv _rampSmooth;
    _ramp_iv _rampStcSmooth;
    _info_last _infoLast;
    _panelFeature _reference;
    bool _degradoEnabled;
    float _degradoYears;
    float _degradoPercent;
    float _temperature;
    float _temperatureProbe;
    float _irradiance;
    float _irradianceProbe;
    float _pmax, _vmpp, _impp;
    float _pmaxStc, _vmppStc, _imppStc;
    float _isc, _voc;
    float _iscStc, _vocStc;
    float _deltaPmax;
    char _modelFile[TEXT_COPY_SIZE];
    char _brandDir[TEXT_COPY_SIZE];
    char _modelName[TEXT_COPY_SIZE];
    char _brandName[TEXT_COPY_SIZE];
    bool _measureDone;
    bool _powerRestored;
    bool _rsDone;
    float _rs, _rsI1, _rsI2;
    bool _stcValid;
    bool _temperatureValid;
    bool _irradianceValid;
    bool _referenceChosen;
    bool _curveValid;
    bool _powerOpcShown;
    bool _powerStcShown;
    PowerDevice* _powerDevice;

    Plotter* plotter() const { return _plotter; }

public slots:
    void measurePanel();
    void goToReferencePanel();
    void goToSavePanelAcquired();
    void goToEnvMea();
    void goToPanelMea();
    void goToRsMea();
    void displayClock();
    void displayPowerSupply();
    void displayPowerCurveOPC();
    void displayPowerCurveSTC();
    void goToRsMisurato();
    void displayEnvMeaAtMeasure();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void getDegrado();
    bool getControlIrr(float before, float after);
    int getProbeVar(bool showProgress);
    void notePowerRestored();
    void checkPanelOk();
    void readProbes(int rounds, int first, bool showProgress, class QProgressDialog* progress,
                    class RemoteUnit* unit);
    void drawCurve(int id, const _ramp_iv* axes, const _ramp_iv* curve);
    void failMeasure(QMessageBox* box, _pdError error);
    bool focused(const QWidget* widget) const;

    Plotter* _plotter;
    QPushButton* _buttonStart;
    QPushButton* _buttonReference;
    QPushButton* _buttonMeasures;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
    QLabel* _labelSupply;
    QLabel* _labelClock;
    QAction* _actionRsCalc;
    QAction* _actionRsView;
    QAction* _actionEnvNow;
    QAction* _actionEnvAtMeasure;
    QAction* _actionPanelData;
    QAction* _actionPowerOpc;
    QAction* _actionPowerStc;
    QMenu* _menuPower;
    QMenu* _menuEnv;
    QMenu* _menuRs;
    QMenu* _menuMeasures;
    QTimer* _timerClock;
    QTimer* _timerSupply;
    // Low-battery dialogs already taken into account (DialogShutDown::opened)
    int _shutDownsSeen;
    // A measure is under way: a "Start" inside it is ignored
    bool _measureRunning;
};

#endif
