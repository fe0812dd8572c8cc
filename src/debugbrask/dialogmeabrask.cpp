#include "debugbrask/dialogmeabrask.h"

#include "debugbrask/dialogviewdatameabrask.h"
#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

#include <cstring>

DialogMeaBrask::DialogMeaBrask(QWidget* parent) : DialogRampBrask(parent)
{
    setObjectName("Mea Brask User ");
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    build({tr("Mea_Brask User"),
           tr("Mea_brask User"),
           tr("Last Info"),
           {tr("Range"), tr("TestMode"), tr("GateStep"), tr("TimeStep"), tr("LastP"), tr("Icc"),
            tr("Voc"), tr("GateLastPoint"), tr("NTC_DAC")},
           tr("Temp Start: "),
           tr("Temp Stop: "),
           tr("Esegui Utente"),
           tr("Visualizza Dati"),
           tr("exit"),
           tr("Esecuzione comando User..."),
           tr("Lettura temperatura iniziale..."),
           tr("Esecuzione comando User...."),
           tr("Errore"),
           tr("Errore esecuzione"),
           tr("Lettura temperatura finale...")},
          "Esegui Utente");
}

void DialogMeaBrask::goToExecCmdUsers()
{
    runRamp();
}

void DialogMeaBrask::clearRamp()
{
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
}

_pdError DialogMeaBrask::acquireRamp(PowerDevice* device, QProgressDialog* progress)
{
    return device->acquireBrask(&_rawRamp, progress);
}

QDialog* DialogMeaBrask::newView()
{
    return new DialogViewDataMeaBrask(this, &_rawRamp, &_infoLast, tempStart, tempStop);
}

int DialogMeaBrask::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
