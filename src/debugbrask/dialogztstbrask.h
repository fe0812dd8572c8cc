#ifndef KRM_DEBUGBRASK_DIALOGZTSTBRASK_H
#define KRM_DEBUGBRASK_DIALOGZTSTBRASK_H

#include "debugbrask/dialoggatebrask.h"

// The Z test of the load stage at an imposed gate voltage, alone or as a
// series of thirteen gate voltages saved without a person.
class DialogZTstBrask : public DialogGateBrask
{
    Q_OBJECT
public:
    explicit DialogZTstBrask(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

public slots:
    void goToExecSweep();

protected:
    _pdError acquire(PowerDevice* device, int list, QProgressDialog* progress) override;
    QDialog* newView() override;
};

#endif
