#include "debugbrask/dialogzkillbrask.h"

#include "debugbrask/dialogviewzkilldatabrask.h"
#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

DialogZKillBrask::DialogZKillBrask(QWidget* parent) : DialogGateBrask(parent)
{
    setObjectName("Kill Brask");
    build({tr("Kill_Brask"), tr("Kill_brask"), tr("Target:"), tr("List:"), tr("Temp Start: "),
           tr("Temp Stop: "), tr("Esegui"), tr("Visualizza Dati"), tr("exit"),
           tr("Tensione di Gate da Impostare"), tr("Tensione di Gate inserita."),
           tr("Troppo lungo."), tr("Numero non valido : "), tr("Errore"),
           tr("Esecuzione comando...")});
}

_pdError DialogZKillBrask::acquire(PowerDevice* device, int list, QProgressDialog* progress)
{
    return device->acquireZKillBrask(&_tst, target, list, progress);
}

QDialog* DialogZKillBrask::newView()
{
    return new DialogViewZKillDataBrask(this, &_tst, target, tempStart, tempStop);
}

int DialogZKillBrask::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
