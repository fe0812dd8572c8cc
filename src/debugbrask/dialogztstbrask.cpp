#include "debugbrask/dialogztstbrask.h"

#include "debugbrask/datasave.h"
#include "debugbrask/dialogviewztstdatabrask.h"
#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <cstring>
#include <memory>

DialogZTstBrask::DialogZTstBrask(QWidget* parent) : DialogGateBrask(parent)
{
    setObjectName("Tst Brask");
    build({tr("Tst_Brask"), tr("tst_brask"), tr("Target:"), tr("List:"), tr("Temp Start: "),
           tr("Temp Stop: "), tr("Esegui"), tr("Visualizza Dati"), tr("exit"),
           tr("Tensione di Gate da Impostare"), tr("Tensione di Gate inserita."),
           tr("Troppo lungo."), tr("Numero non valido : "), tr("Errore"),
           tr("Esecuzione comando...")},
          tr("Esegui Sweep"), "Esegui Sweep");
    connect(_buttonExtra, &QPushButton::clicked, this, &DialogZTstBrask::goToExecSweep);
}

_pdError DialogZTstBrask::acquire(PowerDevice* device, int list, QProgressDialog* progress)
{
    return device->acquireZTstBrask(&_tst, target, list, progress);
}

void DialogZTstBrask::goToExecSweep()
{
    std::unique_ptr<QProgressDialog> progress(newProgress());
    int list = getListCombo();
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _powerDevice = new PowerDevice();
    // thirteen gate voltages, 2000 to 3200; each run is saved whatever its
    // result, with the temperatures of the last single run
    for (int gate = 2000; gate < 3300; gate += 100) {
        target = gate;
        _lineTarget->setText(QString::number(target));
        std::memset(&_tst, 0, sizeof _tst);
        QCoreApplication::processEvents();
        reportErrorSerialPort(acquire(_powerDevice, list, progress.get()));
        QDateTime now = QDateTime::currentDateTime();
        QByteArray data = now.toString("yyyy/MM/dd").toLocal8Bit();
        QByteArray time = now.toString("HH:mm:ss").toLocal8Bit();
        saveMeasureZTstDatBrask(data.data(), time.data(), nullptr, &_tst, target, tempStart,
                                tempStop);
    }
    _buttonView->setEnabled(true);
    delete _powerDevice;
    _powerDevice = nullptr;
    _buttonExec->setEnabled(true);
    _buttonExit->setEnabled(true);
    _buttonExtra->setFocus();
}

QDialog* DialogZTstBrask::newView()
{
    return new DialogViewZTstDataBrask(this, &_tst, target, tempStart, tempStop);
}

int DialogZTstBrask::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}
