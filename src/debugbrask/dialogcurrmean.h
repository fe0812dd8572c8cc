#ifndef KRM_DEBUGBRASK_DIALOGCURRMEAN_H
#define KRM_DEBUGBRASK_DIALOGCURRMEAN_H

#include "debugbrask/dialogmeanbrask.h"

// One reading of the board's current channel on a chosen range, raw and in
// amperes with the calibration of that range.
class DialogCurrMean : public DialogMeanBrask
{
    Q_OBJECT
public:
    explicit DialogCurrMean(QWidget* parent);

    int reportErrorSerialPort(_pdError error) override;

protected:
    _pdError acquire(PowerDevice* device, unsigned char range, int* count) override;
    float toUnits(int range, int count) override;
};

#endif
