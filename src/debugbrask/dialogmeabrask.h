#ifndef KRM_DEBUGBRASK_DIALOGMEABRASK_H
#define KRM_DEBUGBRASK_DIALOGMEABRASK_H

#include "debugbrask/dialogrampbrask.h"

// One ramp of the board as the module test runs it, with the heat sink before
// and after and the board's report; the points can be looked at and saved.
class DialogMeaBrask : public DialogRampBrask
{
    Q_OBJECT
public:
    explicit DialogMeaBrask(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

    _raw_ramp_iv _rawRamp;

public slots:
    void goToExecCmdUsers();

protected:
    void clearRamp() override;
    _pdError acquireRamp(PowerDevice* device, QProgressDialog* progress) override;
    QDialog* newView() override;
};

#endif
