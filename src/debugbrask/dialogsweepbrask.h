#ifndef KRM_DEBUGBRASK_DIALOGSWEEPBRASK_H
#define KRM_DEBUGBRASK_DIALOGSWEEPBRASK_H

#include "debugbrask/dialoggatebrask.h"

// A sweep of the gate of the load stage up to an imposed voltage; the
// board's four columns can be looked at and saved.
class DialogSweepBrask : public DialogGateBrask
{
    Q_OBJECT
public:
    explicit DialogSweepBrask(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

protected:
    _pdError acquire(PowerDevice* device, int list, QProgressDialog* progress) override;
    QDialog* newView() override;
};

#endif
