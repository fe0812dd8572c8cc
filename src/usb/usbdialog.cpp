#include "usb/usbdialog.h"

#include "data/direntry.h"
#include "data/recordfiles.h"
#include "device/gpiopd.h"
#include "device/uploader.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "platform/systemroot.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "usb/dialogcopyfrom.h"
#include "usb/dialogcopyto.h"
#include "usb/dialogfileupg.h"
#include "usb/utilityusb.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstdio>

namespace
{

const char* const firmwareImage = "/home/ORVIAp.hex";

// Runs a stick script and reads its output to the end, in lines of at most
// 128 bytes; the caller closes the stream.
FILE* runToEnd(const char* commandLine)
{
    FILE* out = Command::popen(commandLine, "r");
    char line[128];
    while (out != nullptr && fgets(line, sizeof line, out) != nullptr) {
    }
    return out;
}

void styleProgress(QProgressDialog& progress)
{
    progress.setWindowModality(Qt::WindowModal);
    progress.setStyleSheet(READ_PROGRESS_STYLE);
}

QPushButton* usbButton(const char* icon, const QString& text, const char* name)
{
    QPushButton* button = new QPushButton(QIcon(icon), text);
    button->setObjectName(name);
    button->setIconSize(QSize(48, 48));
    return button;
}

} // namespace

UsbDialog::UsbDialog(QWidget* parent) : QDialog(parent), connected(usbMounted())
{
    setObjectName("UsbDialog");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Usb"));
    _buttonMount = usbButton(":/icon/usb-port.png", tr("Connetti"), "Connetti");
    _buttonUnMount = usbButton(":/icon/remove.png", tr("Disconnetti"), "Disconnetti");
    _buttonCopyTo = usbButton(":/icon/right.png", tr("Copia In..."), "Copia In");
    _buttonCopyFrom = usbButton(":/icon/left.png", tr("Copia Da..."), "Copia Da");
    _buttonUpgrade = usbButton(":/icon/view-refresh.png", tr("Aggiornamento"), "Aggiornamento");
    _buttonExit = usbButton(":/icon/exit.png", tr("Exit"), "Exit");
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(_buttonMount, 0, 0);
    grid->addWidget(_buttonUnMount, 0, 1);
    grid->addWidget(_buttonCopyTo, 1, 0);
    grid->addWidget(_buttonCopyFrom, 1, 1);
    grid->addWidget(_buttonUpgrade, 2, 0);
    grid->addWidget(_buttonExit, 2, 1);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addStretch();
    box->addLayout(grid);
    box->addStretch();

    connect(_buttonMount, &QPushButton::clicked, this, &UsbDialog::goToMountUsb);
    connect(_buttonUnMount, &QPushButton::clicked, this, &UsbDialog::goToUnMountUsb);
    connect(_buttonCopyTo, &QPushButton::clicked, this, &UsbDialog::goToCopyTo);
    connect(_buttonCopyFrom, &QPushButton::clicked, this, &UsbDialog::goToCopyFrom);
    connect(_buttonUpgrade, &QPushButton::clicked, this, &UsbDialog::goToUpgrade);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonMount->setFocus();
    setModal(true);
    showMaximized();
}

void UsbDialog::msgUsb()
{
    showMessageBox(this, QMessageBox::Information, tr("Usb Device"),
                   connected ? tr("E' connesso") : tr("E' disconnesso"));
}

void UsbDialog::goToMountUsb()
{
    if (connected) {
        msgUsb();
        return;
    }
    QMessageBox* box =
        newMessageBox(this, QMessageBox::Question, tr("Usb Device"), tr("Inserisci Usb Device."));
    box->setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
    box->setDefaultButton(QMessageBox::Ok);
    const bool ok = box->exec() == QMessageBox::Ok;
    delete box;
    if (!ok)
        return;

    QProgressDialog progress(tr("Connessione..."), QString(), 0, 8, this);
    styleProgress(progress);
    progress.setMinimumDuration(1);
    progress.show();
    progress.setValue(0);
    QCoreApplication::processEvents();
    Clock::sleep(1);
    if (usbCheckSD() == 0) {
        progress.close();
        msgUsb();
        return;
    }
    FILE* out = runToEnd("/usr/bin/mountusb.sh");
    for (int value = 0; value <= 8; value++) {
        progress.setValue(value);
        Clock::usleep(500000);
    }
    progress.setAutoClose(true);
    Command::pclose(out);
    connected = usbMounted();
    _infoBar->setUsb(connected);
}

void UsbDialog::goToUnMountUsb()
{
    if (!connected) {
        msgUsb();
        return;
    }
    QProgressDialog progress(tr("Disconnessione..."), QString(), 0, 8, this);
    styleProgress(progress);
    progress.setMinimumDuration(1);
    progress.show();
    progress.setValue(0);
    QCoreApplication::processEvents();
    FILE* out = runToEnd("/usr/bin/umountusb.sh");
    for (int value = 0; value <= 8; value++) {
        progress.setValue(value);
        Clock::sleep(1);
    }
    progress.setAutoClose(true);
    Command::pclose(out);
    connected = usbMounted();
    _infoBar->setUsb(connected);
}

void UsbDialog::goToCopyTo()
{
    DialogCopyTo* dialog = new DialogCopyTo(this);
    dialog->exec();
    delete dialog;
}

void UsbDialog::goToCopyFrom()
{
    DialogCopyFrom* dialog = new DialogCopyFrom(this);
    dialog->exec();
    delete dialog;
}

// The package script installs the program and may leave a firmware image for
// the measuring board; its presence is what starts the flashing. The board's
// supply is switched on again and the image removed whatever the loader did.
// Where the old instrument told nothing of a failed flash, a loader that gave
// up is reported before the restart box: every wait ends with an answer.
void UsbDialog::goToUpgrade()
{
    if (!connected) {
        msgUsb();
        return;
    }
    DialogFileUpg* files = new DialogFileUpg(this);
    const int result = files->exec();
    const QString dirName = files->_dirName;
    const QString fileName = files->_fileName;
    delete files;
    if (result != QDialog::Accepted || fileName.isEmpty())
        return;

    // made once the file is chosen, so that it never shows over the list
    QProgressDialog progress(tr("Aggiornamento KRM 510..."), QString(), 0, 4, this);
    styleProgress(progress);
    progress.setMinimumDuration(0);
    progress.show();
    progress.setValue(1);
    QCoreApplication::processEvents();
    const std::string commandLine =
        "/usr/bin/krmupgrade.sh " +
        shellQuote((dirName + "/" + fileName).toLocal8Bit().toStdString());
    puts(commandLine.c_str());
    fflush(stdout);
    Command::pclose(runToEnd(commandLine.c_str()));
    for (int value = progress.value(); value <= 4; value++) {
        progress.setValue(value);
        Clock::usleep(5000);
    }
    progress.setAutoClose(true);
    progress.close();

    FILE* image = fopen(SystemRoot::path(firmwareImage).c_str(), "r");
    if (image != nullptr) {
        fclose(image);
        UpLoader* loader = new UpLoader(QString(firmwareImage), this);
        const bool flashed = loader->done != 0;
        myUnlink(firmwareImage);
        powerDeviceStart(0);
        delete loader;
        if (!flashed)
            showMessageBox(this, QMessageBox::Critical, tr("KRM510 Aggiornamento"),
                           tr("Aggiornamento firmware non riuscito."));
    }
    showMessageBox(this, QMessageBox::Information, tr("KRM510 Aggiornamento"),
                   tr("Riavviare KRM510"));
}

// Up and Down walk the buttons, Return presses the one with the focus.
void UsbDialog::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (QPushButton* button = qobject_cast<QPushButton*>(focusWidget()))
            button->click();
        return;
    case Qt::Key_Down:
        focusNextChild();
        return;
    case Qt::Key_Up:
        focusPreviousChild();
        return;
    default:
        break;
    }
    QDialog::keyPressEvent(event);
}
