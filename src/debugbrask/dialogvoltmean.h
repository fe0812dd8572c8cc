#ifndef KRM_DEBUGBRASK_DIALOGVOLTMEAN_H
#define KRM_DEBUGBRASK_DIALOGVOLTMEAN_H

#include "debugbrask/dialogmeanbrask.h"

// One reading of the board's voltage channel on a chosen range, raw and in
// volts with the calibration of that range.
class DialogVoltMean : public DialogMeanBrask
{
    Q_OBJECT
public:
    explicit DialogVoltMean(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

protected:
    _pdError acquire(PowerDevice* device, unsigned char range, int* count) override;
    float toUnits(int range, int count) override;
};

#endif
