#include "debugbrask/dialogvoltmean.h"

#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

DialogVoltMean::DialogVoltMean(QWidget* parent) : DialogMeanBrask(parent)
{
    setObjectName("Volt Mean");
    build({tr("Volt Mean"), tr("Volt_mean"), tr("---- (hex)"), tr("---- (dec)"), tr("---- (V)"),
           tr("Esegui"), tr("exit"), tr("Range:"), tr("Lettura:"), tr("Esecuzione comando...."),
           tr("Err.")},
          {"0 = 500V", "1 = 1000V"}, "V");
}

_pdError DialogVoltMean::acquire(PowerDevice* device, unsigned char range, int* count)
{
    return device->acquireVoc(range, count);
}

float DialogVoltMean::toUnits(int range, int count)
{
    // the offsets of the voltage ranges are fractions of a count
    float offset = range == 1 ? _config.adcv1offset : _config.adcv0offset;
    float gain = range == 1 ? _config.adcv1 : _config.adcv0;
    return (static_cast<float>(count) - offset) * gain;
}

int DialogVoltMean::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
