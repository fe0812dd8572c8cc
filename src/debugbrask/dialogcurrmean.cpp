#include "debugbrask/dialogcurrmean.h"

#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

DialogCurrMean::DialogCurrMean(QWidget* parent) : DialogMeanBrask(parent)
{
    setObjectName("Curr Mean");
    build({tr("Curr Mean"), tr("Curr_mean"), tr("---- (hex)"), tr("---- (dec)"), tr("---- (A)"),
           tr("Esegui"), tr("exit"), tr("Range:"), tr("Lettura:"), tr("Esecuzione comando...."),
           tr("Err.")},
          {"0 = 10A", "1 = 20A"}, "A");
}

_pdError DialogCurrMean::acquire(PowerDevice* device, unsigned char range, int* count)
{
    return device->acquireIsc(range, count);
}

float DialogCurrMean::toUnits(int range, int count)
{
    // the subtraction in integers, then the gain of the range
    int offset = range == 1 ? _config.adci1offset : _config.adci0offset;
    float gain = range == 1 ? _config.adci1 : _config.adci0;
    return static_cast<float>(count - offset) * gain;
}

int DialogCurrMean::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
