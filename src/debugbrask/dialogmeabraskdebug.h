#ifndef KRM_DEBUGBRASK_DIALOGMEABRASKDEBUG_H
#define KRM_DEBUGBRASK_DIALOGMEABRASKDEBUG_H

#include "debugbrask/dialogrampbrask.h"

// One ramp of the board with the two gate voltages of the load stage, with the heat sink before
// and after and the board's report; the points can be looked at and saved.
class DialogMeaBraskDebug : public DialogRampBrask
{
    Q_OBJECT
public:
    explicit DialogMeaBraskDebug(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

    _raw_ramp_vgate _rawRamp;

public slots:
    void goToExecCmdDebug();

protected:
    void clearRamp() override;
    _pdError acquireRamp(PowerDevice* device, QProgressDialog* progress) override;
    QDialog* newView() override;
};

#endif
