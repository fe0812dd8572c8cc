#ifndef KRM_MEASURE_STRINGIV_H
#define KRM_MEASURE_STRINGIV_H

#include "data/coredata.h"

#include <QDialog>
#include <QString>

class Plotter;
class PowerDevice;
class QAction;
class QLabel;
class QMenu;
class QMessageBox;
class QProgressDialog;
class QPushButton;
class QTimer;
class RemoteUnit;

// The test of a string of equal modules in series. The sequence is the
// module test's, with the number of modules asked at every start, the string
// scales and the string verdict: the deviation of the translated power from
// the count times the reference module's power. The figures are public for
// the screens and tests that read them.
class StringIV : public QDialog
{
    Q_OBJECT
public:
    explicit StringIV(QWidget* parent);
    ~StringIV() override;

    _configParam _config;
    QString _title;
    int _numberOfPanel;
    QString _referenceModelName;
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
    bool _stcValid;
    bool _temperatureValid;
    bool _irradianceValid;
    bool _referenceChosen;
    bool _curveValid;
    bool _powerOpcShown;
    bool _powerStcShown;
    PowerDevice* _powerDevice;

    Plotter* plotter() const { return _plotter; }

    bool getNumberOfPanel();
    void titleReferencePanel();

public slots:
    void stringMeasure();
    void goToReferencePanel();
    void goToSaveStringAcquired();
    void goToEnvMea();
    void goToStringMea();
    void displayClock();
    void displayPowerSupply();
    void displayPowerCurveOPC();
    void displayPowerCurveSTC();
    void displayEnvMeaAtMeasure();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void getDegrado();
    bool getControlIrr(float before, float after);
    int getProbeVar(bool showProgress);
    void notePowerRestored();
    void checkPanelOk();
    void readProbes(int rounds, int first, bool showProgress, QProgressDialog* progress,
                    RemoteUnit* unit);
    void drawCurve(int id, const _ramp_iv* axes, const _ramp_iv* curve);
    void failMeasure(QMessageBox* box, _pdError error);
    void runMeasure();

    Plotter* _plotter;
    QPushButton* _buttonStart;
    QPushButton* _buttonReference;
    QPushButton* _buttonMeasures;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
    QLabel* _labelSupply;
    QLabel* _labelClock;
    QAction* _actionEnvNow;
    QAction* _actionEnvAtMeasure;
    QAction* _actionPanelData;
    QAction* _actionPowerOpc;
    QAction* _actionPowerStc;
    QMenu* _menuPower;
    QMenu* _menuEnv;
    QMenu* _menuMeasures;
    QTimer* _timerClock;
    QTimer* _timerSupply;
    // Low-battery dialogs already taken into account (DialogShutDown::opened)
    int _shutDownsSeen;
    // A measure is under way: a "Start" inside it is ignored
    bool _measureRunning;
};

#endif
