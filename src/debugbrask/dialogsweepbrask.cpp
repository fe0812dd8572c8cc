#include "debugbrask/dialogsweepbrask.h"

#include "debugbrask/dialogviewsweepbrask.h"
#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

DialogSweepBrask::DialogSweepBrask(QWidget* parent) : DialogGateBrask(parent)
{
    setObjectName("Sweep Brask");
    build({tr("Sweep_Brask"), tr("Sweep_brask"), tr("Target:"), tr("List:"), tr("Temp Start: "),
           tr("Temp Stop: "), tr("Esegui"), tr("Visualizza Dati"), tr("exit"),
           tr("Tensione di Gate da Impostare"), tr("Tensione di Gate inserita."),
           tr("Troppo lungo."), tr("Numero non valido : "), tr("Errore"),
           tr("Esecuzione comando...")});
}

_pdError DialogSweepBrask::acquire(PowerDevice* device, int list, QProgressDialog* progress)
{
    return device->acquireSweepBrask(&_tst, target, list, progress);
}

QDialog* DialogSweepBrask::newView()
{
    return new DialogViewSweepBrask(this, &_tst, target, tempStart, tempStop);
}

int DialogSweepBrask::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
