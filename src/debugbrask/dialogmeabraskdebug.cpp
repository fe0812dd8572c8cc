#include "debugbrask/dialogmeabraskdebug.h"

#include "debugbrask/dialogviewdatameabraskdebug.h"
#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

#include <cstring>

DialogMeaBraskDebug::DialogMeaBraskDebug(QWidget* parent) : DialogRampBrask(parent)
{
    setObjectName("Mea Brask Debug ");
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    build({tr("Mea_Brask Debug"),
           tr("Mea_brask Debug"),
           tr("Last Info"),
           {tr("Range"), tr("TestMode"), tr("GateStep"), tr("TimeStep"), tr("LastP"), tr("Icc"),
            tr("Voc"), tr("GateLastPoint"), tr("NTC_DAC")},
           tr("Temp Start: "),
           tr("Temp Stop: "),
           tr("Esegui Debug"),
           tr("Visualizza Dati"),
           tr("exit"),
           tr("Esecuzione comando Debug..."),
           tr("Lettura temperatura iniziale..."),
           tr("Esecuzione comando Debug...."),
           tr("Errore"),
           tr("Errore esecuzione"),
           tr("Lettura temperatura finale...")},
          "Esegui Debug");
}

void DialogMeaBraskDebug::goToExecCmdDebug()
{
    runRamp();
}

void DialogMeaBraskDebug::clearRamp()
{
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
}

_pdError DialogMeaBraskDebug::acquireRamp(PowerDevice* device, QProgressDialog* progress)
{
    return device->acquireBraskDebug(&_rawRamp, progress);
}

QDialog* DialogMeaBraskDebug::newView()
{
    return new DialogViewDataMeaBraskDebug(this, &_rawRamp, &_infoLast, tempStart, tempStop);
}

int DialogMeaBraskDebug::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
