#ifndef KRM_MEASURE_DIALOGRS_H
#define KRM_MEASURE_DIALOGRS_H

#include "data/coredata.h"

#include <QDialog>

class PowerDevice;
class QLabel;
class QPushButton;
class QTimer;
class RemoteUnit;

enum _eFaseMisura : int { FASE_1 = 0, FASE_2 = 1 };

// The series resistance of a module from two ramps at two irradiances, each
// phase started by the operator. The module screen reads _done, _rs, _irr1
// and _irr2 after exec, whatever exec returned.
class DialogRs : public QDialog
{
    Q_OBJECT
public:
    explicit DialogRs(QWidget* parent);
    ~DialogRs() override;

    _configParam _config;
    float _rs;
    float _irradiance;
    float _irr1;
    float _irr2;
    float _r1;
    float _r2;
    bool _irradianceValid;
    _eFaseMisura _fase;
    bool _done;
    _ramp_param _rampParam;
    _raw_ramp_iv _rawRamp;
    _ramp_iv _ramp;
    _info_last _infoLast;
    PowerDevice* _powerDevice;
    QTimer* _timerEnv;
    RemoteUnit* _remoteUnit;
    QLabel* _labelRs;
    QLabel* _labelIrradiance;
    QLabel* _labelStatus;
    QPushButton* _buttonExit;
    QPushButton* _buttonMeasure;
    QPushButton* _buttonReset;

public slots:
    void exitDialog();
    void activateMisuraButton();
    void acquisizioneMisura();
    void resetAll();
    void activateRemoteUnit();
    void readEnvMea();

public:
    void msgConnectionOff();
    void viewRs();
    void labelFaseMisura();
    void acquisizioneDatiPannello(_eFaseMisura fase);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void failRamp(_pdError error);
};

#endif
