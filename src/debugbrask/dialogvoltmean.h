#ifndef KRM_DEBUGBRASK_DIALOGVOLTMEAN_H
#define KRM_DEBUGBRASK_DIALOGVOLTMEAN_H

#include "data/coredata.h"

#include <QDialog>
#include <QMap>

class InfoBar;
class PowerDevice;
class QComboBox;
class QLabel;
class QPushButton;

// One reading of the board's voltage channel on a chosen range, raw and in
// volts with the calibration of that range.
class DialogVoltMean : public QDialog
{
    Q_OBJECT
public:
    explicit DialogVoltMean(QWidget* parent);

    int reportErrorSerialPort(_pdError error);

public slots:
    void goToExecCmd();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void populateRange();
    int getRange();

    _configParam _config;
    QMap<QString, int> _rangeMap;
    PowerDevice* _powerDevice;
    InfoBar* _infoBar;
    QComboBox* _comboRange;
    QLabel* _labelHex;
    QLabel* _labelDec;
    QLabel* _labelValue;
    QLabel* _labelStatus;
    QPushButton* _buttonExec;
    QPushButton* _buttonExit;
};

#endif
