#ifndef KRM_DEBUGBRASK_DIALOGZKILLBRASK_H
#define KRM_DEBUGBRASK_DIALOGZKILLBRASK_H

#include "debugbrask/dialoggatebrask.h"

// The Z kill test of the load stage at an imposed gate voltage; the board's
// four columns can be looked at and saved.
class DialogZKillBrask : public DialogGateBrask
{
    Q_OBJECT
public:
    explicit DialogZKillBrask(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

protected:
    _pdError acquire(PowerDevice* device, int list, QProgressDialog* progress) override;
    QDialog* newView() override;
};

#endif
