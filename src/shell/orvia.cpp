#include "shell/orvia.h"

#include "archive/archivecompany.h"
#include "archive/archiveinstallation.h"
#include "archive/archivemeasures.h"
#include "archive/archivepanel.h"
#include "data/datasetting.h"
#include "debugbrask/dialogbraskdebug.h"
#include "device/ad7795.h"
#include "device/monitor.h"
#include "device/powerdevice.h"
#include "device/rfcomm.h"
#include "measure/dialogcollegamenti.h"
#include "measure/panelIV.h"
#include "measure/stringIV.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "shell/language.h"
#include "toolkit/dialogsystem.h"
#include "toolkit/infobar.h"
#include "usb/usbdialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTranslator>
#include <QVBoxLayout>
#include <cstring>

static QPushButton* menuButton(const char* icon, const char* name)
{
    QPushButton* button = new QPushButton;
    button->setObjectName(name);
    button->setIcon(QIcon(icon));
    button->setIconSize(QSize(48, 48));
    button->setFlat(true);
    return button;
}

Orvia::Orvia()
    : QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), _clockMode(0),
      _pdVersionMajor(0), _pdVersionMinor(0), _pdVersionProto(0)
{
    readConfigFile(&_config);
    _clockMode = _config.tclock;
    setGforPyrano(_config.cpyar);
    setKforPyrano(_config.kpyra);
    Clock::usleep(500);
    init_ad7795();
    Clock::usleep(500);
    // again, now that the converter runs
    setGforPyrano(_config.cpyar);
    Clock::usleep(500);
    monitor_pwm_set_default();
    Clock::usleep(500);
    monitor_set_value(_config.bright);

    _infoBar = new InfoBar(this);
    _infoBar->setTitle("KRM 510");

    // The service button is made and never placed, connected or shown: the
    // service screens are not reached from the menu.
    _buttonService = menuButton(":/icon/belrix.png", "Brask");
    _buttonService->setText(tr("Brask"));
    _buttonSystem = menuButton(":/icon/control-center2.png", "Sistema");
    _buttonPanel = menuButton(":/icon/pannello.png", "Modulo");
    _buttonString = menuButton(":/icon/stringa.png", "Stringa");
    _buttonArchivePanel = menuButton(":/icon/archivePanel.png", "ArchivioModuli");
    _buttonArchiveMeasures = menuButton(":/icon/archiveMeasure.png", "ArchivioMisure");
    _buttonArchiveCompany = menuButton(":/icon/archiveImpianti.png", "ArchivioAziende");
    _buttonArchiveInstallation = menuButton(":/icon/archiveImpianti.png", "ArchivioInstallazioni");
    _buttonUsb = menuButton(":/icon/usb-port.png", "USB");
    translateUi();

    QHBoxLayout* bar = new QHBoxLayout;
    bar->addWidget(_infoBar);
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(_buttonSystem, 0, 0);
    grid->addWidget(_buttonPanel, 0, 1);
    grid->addWidget(_buttonString, 0, 2);
    grid->addWidget(_buttonArchivePanel, 1, 0);
    grid->addWidget(_buttonArchiveMeasures, 1, 1);
    grid->addWidget(_buttonArchiveInstallation, 1, 2);
    grid->addWidget(_buttonArchiveCompany, 2, 0);
    grid->addWidget(_buttonUsb, 2, 2);
    QVBoxLayout* box = new QVBoxLayout;
    box->addLayout(bar);
    box->addStretch();
    box->addLayout(grid);
    box->addStretch();
    setLayout(box);

    Command::system("/home/myspi");

    connect(_buttonSystem, &QPushButton::clicked, this, &Orvia::goToSystemDialog);
    connect(_buttonPanel, &QPushButton::clicked, this, &Orvia::goToPanelIV);
    connect(_buttonString, &QPushButton::clicked, this, &Orvia::goToStringIV);
    connect(_buttonArchivePanel, &QPushButton::clicked, this, &Orvia::goToArchivePanel);
    connect(_buttonArchiveCompany, &QPushButton::clicked, this, &Orvia::goToArchiveCompany);
    connect(_buttonArchiveInstallation, &QPushButton::clicked, this,
            &Orvia::goToArchiveInstallation);
    connect(_buttonArchiveMeasures, &QPushButton::clicked, this, &Orvia::goToArchiveMeasures);
    connect(_buttonUsb, &QPushButton::clicked, this, &Orvia::goToUsbDialog);
    showMaximized();
}

Orvia::~Orvia()
{
    delete _buttonService;
}

void Orvia::translateUi()
{
    _buttonSystem->setText(tr("Sistema"));
    _buttonPanel->setText(tr("Modulo"));
    _buttonString->setText(tr("Stringa"));
    _buttonArchivePanel->setText(tr("Archivio\nModuli"));
    _buttonArchiveMeasures->setText(tr("Archivio\nMisure"));
    _buttonArchiveCompany->setText(tr("Archivio\nAziende"));
    _buttonArchiveInstallation->setText(tr("Archivio\nInstallazioni"));
    _buttonUsb->setText(tr("USB"));
}

void Orvia::readPowerDeviceVersion()
{
    PowerDevice* device = new PowerDevice();
    device->getVersion();
    _pdVersionMajor = device->versionMajor;
    _pdVersionMinor = device->versionMinor;
    _pdVersionProto = device->versionProto;
    if (_pdVersionMajor == 0 && _pdVersionMinor == 0) {
        device->getVersion();
        _pdVersionMajor = device->versionMajor;
        _pdVersionMinor = device->versionMinor;
        _pdVersionProto = device->versionProto;
    }
    delete device;
}

void Orvia::goToSystemDialog()
{
    DialogSystem* dialog = new DialogSystem(&_config, this);
    if (dialog->exec() != QDialog::Accepted) {
        delete dialog;
        return;
    }
    const _configParam& edited = dialog->_config;
    _config.sn = edited.sn;
    _config.tclock = edited.tclock;
    _config.lang = edited.lang;
    _config.cpyar = edited.cpyar;
    _config.irrmin = edited.irrmin;
    _config.utemp = edited.utemp;
    _config.tprobe = edited.tprobe;
    _config.remote = edited.remote;
    _config.bright = edited.bright;
    strcpy(_config.bluemac, edited.bluemac);
    strcpy(_config.bluename, edited.bluename);

    loadTranslator(qTranslator, _config.lang);
    translateUi();
    _clockMode = _config.tclock;
    saveConfigFile(_config);
    createBlueRFCOMM(_config.bluemac, _config.bluename);
    setGforPyrano(_config.cpyar);
    _infoBar->chooseDisplayClock(_config.tclock);
    delete dialog;
}

// The wiring picture first; the module test opens only after "Continua".
void Orvia::goToPanelIV()
{
    DialogCollegamenti* wiring = new DialogCollegamenti(this, MEA_PANEL);
    const bool accepted = wiring->exec() == QDialog::Accepted;
    delete wiring;
    if (!accepted)
        return;
    PanelIV* panel = new PanelIV(this);
    panel->exec();
    delete panel;
}

// The string's wiring picture first; the string test opens only after
// "Continua".
void Orvia::goToStringIV()
{
    DialogCollegamenti* wiring = new DialogCollegamenti(this, MEA_STRING);
    const bool accepted = wiring->exec() == QDialog::Accepted;
    delete wiring;
    if (!accepted)
        return;
    StringIV* screen = new StringIV(this);
    screen->exec();
    delete screen;
}

void Orvia::goToArchivePanel()
{
    ArchivePanel* screen = new ArchivePanel(this);
    screen->exec();
    delete screen;
}

void Orvia::goToArchiveCompany()
{
    ArchiveCompany* screen = new ArchiveCompany(this);
    screen->exec();
    delete screen;
}

void Orvia::goToArchiveInstallation()
{
    ArchiveInstallation* screen = new ArchiveInstallation(this);
    screen->exec();
    delete screen;
}

void Orvia::goToArchiveMeasures()
{
    ArchiveMeasures* screen = new ArchiveMeasures(this);
    screen->exec();
    delete screen;
}

void Orvia::goToUsbDialog()
{
    UsbDialog* screen = new UsbDialog(this);
    screen->exec();
    delete screen;
}

// The service menu of the measuring board. No button and no key of this
// window leads here: the service button is never shown.
void Orvia::goToBraskDebug()
{
    DialogBraskDebug* screen = new DialogBraskDebug(this);
    screen->exec();
    delete screen;
}

void Orvia::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
        if (_buttonSystem->hasFocus())
            goToSystemDialog();
        if (_buttonPanel->hasFocus())
            goToPanelIV();
        if (_buttonString->hasFocus())
            goToStringIV();
        if (_buttonArchivePanel->hasFocus())
            goToArchivePanel();
        if (_buttonArchiveCompany->hasFocus())
            goToArchiveCompany();
        if (_buttonArchiveInstallation->hasFocus())
            goToArchiveInstallation();
        if (_buttonArchiveMeasures->hasFocus())
            goToArchiveMeasures();
        if (_buttonUsb->hasFocus())
            goToUsbDialog();
        break;
    case Qt::Key_Up:
        if (_buttonSystem->hasFocus())
            _buttonArchiveCompany->setFocus();
        else if (_buttonArchivePanel->hasFocus())
            _buttonSystem->setFocus();
        else if (_buttonArchiveCompany->hasFocus())
            _buttonArchivePanel->setFocus();
        else if (_buttonPanel->hasFocus())
            _buttonArchiveMeasures->setFocus();
        else if (_buttonArchiveMeasures->hasFocus())
            _buttonPanel->setFocus();
        else if (_buttonString->hasFocus())
            _buttonUsb->setFocus();
        else if (_buttonArchiveInstallation->hasFocus())
            _buttonString->setFocus();
        else if (_buttonUsb->hasFocus())
            _buttonArchiveInstallation->setFocus();
        break;
    case Qt::Key_Down:
        if (_buttonSystem->hasFocus())
            _buttonArchivePanel->setFocus();
        else if (_buttonArchivePanel->hasFocus())
            _buttonArchiveCompany->setFocus();
        else if (_buttonArchiveCompany->hasFocus())
            _buttonSystem->setFocus();
        else if (_buttonPanel->hasFocus())
            _buttonArchiveMeasures->setFocus();
        else if (_buttonArchiveMeasures->hasFocus())
            _buttonPanel->setFocus();
        else if (_buttonString->hasFocus())
            _buttonArchiveInstallation->setFocus();
        else if (_buttonArchiveInstallation->hasFocus())
            _buttonUsb->setFocus();
        else if (_buttonUsb->hasFocus())
            _buttonString->setFocus();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
