#include "toolkit/dialogsystem.h"

#include "data/freespace.h"
#include "data/storedtext.h"
#include "device/powerdevice.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "toolkit/dialogbright.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "toolkit/numbertext.h"

#include <QEvent>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cmath>
#include <cstring>

#define SOFTWARE_VERSION "2.0.2"

DialogSystem::DialogSystem(_configParam* config, QWidget* parent) : QDialog(parent)
{
    _config = *config;
    setObjectName("Setting KRM510");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);

    infoBar = new InfoBar(this);
    infoBar->setTitle(tr("Impostazione KRM510"));

    QWidget* page = new QWidget;
    QGridLayout* grid = new QGridLayout(page);
    int row = 0;
    auto addRow = [&](const QString& label, QWidget* widget, QWidget* extra = nullptr) {
        QLabel* name = new QLabel(label, page);
        name->setWordWrap(true); // long names take two lines, not the screen's width
        grid->addWidget(name, row, 0);
        grid->addWidget(widget, row, 1);
        if (extra != nullptr)
            grid->addWidget(extra, row, 2);
        row++;
    };

    addRow(tr("Numero Seriale"),
           new QLabel(QString("%1").arg(_config.sn, 6, 10, QLatin1Char('0')), page));
    addRow(tr("Versione SW"), new QLabel(QString("IV ") + SOFTWARE_VERSION, page));
    versionPowerLabel = new QLabel(page);
    versionPowerLabel->setObjectName("versionPower");
    addRow(tr("Versione Power"), versionPowerLabel);

    clockCombo = new QComboBox(page);
    clockCombo->addItems({tr("Data/Ora"), tr("Data"), tr("Ora")});
    clockCombo->setCurrentIndex(_config.tclock);
    addRow(tr("Visualizza"), clockCombo);

    dateTimeEdit = new QDateTimeEdit(QDateTime::currentDateTime(), page);
    dateTimeEdit->setDisplayFormat("yyyy/MM/dd HH:mm");
    dateTimeEdit->setMinimumDate(QDate(2011, 1, 1));
    addRow(tr("Imposta data e ora"), dateTimeEdit);

    probeCombo = new QComboBox(page);
    probeCombo->addItems({tr("Ambiente"), tr("Modulo"), tr("Auto (EN 60904-5)"), tr("Manuale")});
    probeCombo->setCurrentIndex(_config.tprobe);
    temperatureButton = new QPushButton(page);
    temperatureButton->setObjectName("temperature");
    showUserTemperature();
    addRow(tr("Temperatura"), probeCombo, temperatureButton);

    pyranoEdit = new QLineEdit(storedNumberText(_config.cpyar, 2), page);
    pyranoEdit->setObjectName("pyrano");
    addRow(tr("Sens. Pyra"), pyranoEdit, new QLabel(QString::fromUtf8("mV/(kW/m²)"), page));
    irrMinEdit = new QLineEdit(storedNumberText(_config.irrmin, 2), page);
    irrMinEdit->setObjectName("irrmin");
    addRow(tr("Irraggiamento Minimo"), irrMinEdit, new QLabel(QString::fromUtf8("W/m² "), page));

    remoteCombo = new QComboBox(page);
    remoteCombo->addItems({tr("Locale"), tr("Rs-232 Serial Adapter"), tr("Bluetooth Adapter")});
    remoteCombo->setCurrentIndex(_config.remote);
    addRow(tr("Unità Remota"), remoteCombo);
    blueMacButton = new QPushButton(storedText(_config.bluemac), page);
    blueMacButton->setObjectName("bluemac");
    addRow(tr("Bluetooth Address (MAC)"), blueMacButton);
    blueNameButton = new QPushButton(storedText(_config.bluename), page);
    blueNameButton->setObjectName("bluename");
    addRow(tr("Nome Dispositivo"), blueNameButton);
    blueMacButton->setEnabled(_config.remote == LINK_BLUETOOTH);
    blueNameButton->setEnabled(_config.remote == LINK_BLUETOOTH);

    languageCombo = new QComboBox(page);
    languageCombo->addItem(QIcon(":icon/flag-italy.png"), tr("Italiano"));
    languageCombo->addItem(QIcon(":icon/flag-england.png"), tr("Inglese"));
    languageCombo->addItem(QIcon(":icon/flag-france.png"), tr("Francese"));
    languageCombo->addItem(QIcon(":icon/flag-germany.png"), tr("Tedesco"));
    languageCombo->addItem(QIcon(":icon/flag-spain.png"), tr("Spagnolo"));
    languageCombo->setCurrentIndex(_config.lang);
    addRow(tr("Lingua"), languageCombo);

    brightnessButton = new QPushButton(QString::number(_config.bright) + " %", page);
    brightnessButton->setObjectName("brightness");
    addRow(tr("Luminosità"), brightnessButton);

    float used = get_use_space_percentage("/krm510data");
    int usedPercent = std::isfinite(used) ? static_cast<int>(qBound(0.0f, used, 100.0f)) : 0;
    addRow(tr("Memoria occupata"), new QLabel(QString::number(usedPercent) + "%", page));

    // the value column gives way to the screen's width rather than the
    // longest item of a combo
    for (QComboBox* combo : page->findChildren<QComboBox*>()) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(6);
    }
    scrollArea = new QScrollArea(this);
    scrollArea->setWidget(page);
    scrollArea->setWidgetResizable(true);
    scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    applyButton = new QPushButton(QIcon(":/icon/apply.png"), tr("Applica"), this);
    applyButton->setObjectName("Applica");
    dateTimeButton = new QPushButton(QIcon(":/icon/confirm.png"), tr("Conferma data e ora"), this);
    dateTimeButton->setObjectName("Conferma data e ora");
    exitButton = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"), this);
    exitButton->setObjectName("Exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(applyButton);
    buttons->addWidget(dateTimeButton);
    buttons->addWidget(exitButton);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(infoBar);
    box->addWidget(scrollArea);
    box->addLayout(buttons);

    connect(applyButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(exitButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(dateTimeButton, &QPushButton::clicked, this, &DialogSystem::applyDateTime);
    connect(languageCombo, &QComboBox::currentIndexChanged, this, &DialogSystem::setLanguage);
    connect(probeCombo, &QComboBox::currentIndexChanged, this, &DialogSystem::setProbeTemp);
    connect(clockCombo, &QComboBox::currentIndexChanged, this, &DialogSystem::setDisplayClock);
    connect(remoteCombo, &QComboBox::currentIndexChanged, this,
            &DialogSystem::setRemoteUnitLink);
    connect(brightnessButton, &QPushButton::clicked, this, &DialogSystem::setBrightness);
    connect(blueMacButton, &QPushButton::clicked, this, &DialogSystem::insertBlueMac);
    connect(blueNameButton, &QPushButton::clicked, this, &DialogSystem::insertBlueName);
    connect(temperatureButton, &QPushButton::clicked, this, &DialogSystem::insertUserTemperature);
    connect(irrMinEdit, &QLineEdit::selectionChanged, this,
            &DialogSystem::positionScrollBarForIrrMinEdit);
    connect(pyranoEdit, &QLineEdit::selectionChanged, this,
            &DialogSystem::positionScrollBarForPyranoEdit);
    pyranoEdit->installEventFilter(this);
    irrMinEdit->installEventFilter(this);

    Clock::singleShot(800, this, &DialogSystem::readPWVersion);
    // shown maximised by exec(): a dialog already visible before exec() would
    // not become modal
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogSystem::showUserTemperature()
{
    bool manual = _config.tprobe == PROBE_MANUAL;
    temperatureButton->setEnabled(manual);
    temperatureButton->setText(manual
                                   ? storedNumberText(_config.utemp, 2) + QString::fromUtf8(" °C")
                                   : QString::fromUtf8("--.-- °C"));
}

void DialogSystem::setLanguage(int index)
{
    _config.lang = static_cast<_language>(index);
}

void DialogSystem::setProbeTemp(int index)
{
    _config.tprobe = static_cast<_probeTemp>(index);
    showUserTemperature();
    if (index == PROBE_MANUAL)
        insertUserTemperature();
}

void DialogSystem::setDisplayClock(int index)
{
    _config.tclock = static_cast<_displayClock>(index);
    infoBar->chooseDisplayClock(_config.tclock);
}

void DialogSystem::setRemoteUnitLink(int index)
{
    _config.remote = static_cast<_remoteUnitLink>(index);
    blueMacButton->setEnabled(index == LINK_BLUETOOTH);
    blueNameButton->setEnabled(index == LINK_BLUETOOTH);
}

void DialogSystem::applyDateTime()
{
    QString text = dateTimeEdit->text();
    text.replace("/", "-");
    // "+" and the text as one quoted argument, as the old "date -s +\"...\"".
    std::string command =
        "date -s " + Command::quote(QString("+%1").arg(text).toLocal8Bit().toStdString()) + "\n";
    Command::system(command.c_str());
    Command::system("hwclock -w\n");
}

void DialogSystem::setBrightness()
{
    DialogBrightness* dialog = new DialogBrightness(this, _config.bright);
    dialog->exec();
    _config.bright = dialog->value();
    brightnessButton->setText(QString::number(_config.bright) + " %");
    delete dialog;
}

// Opens the keyboard over the screen and gives back the accepted text, or a
// null string when the operator left it.
static QString typeText(QWidget* parent, const QString& title, const QString& initial,
                        bool keyPad)
{
    EmbKeyboard keyboard(parent, title, initial);
    if (keyPad)
        keyboard.toKeyPad();
    if (keyboard.exec() != QDialog::Accepted)
        return QString();
    QString text = keyboard.stringEntered();
    return text.isNull() ? QString("") : text;
}

void DialogSystem::insertBlueMac()
{
    QString text = typeText(this, tr("Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)"),
                            storedText(_config.bluemac), false);
    if (text.isNull())
        return;
    if (text.length() != 17) {
        showMessageBox(this, QMessageBox::Information, tr("Bluetooth MAC"),
                       tr("MAC deve essere formato da 48 bit."));
        return;
    }
    QByteArray bytes = textToStore(text).left(BLUEMAC_SIZE - 1);
    strcpy(_config.bluemac, bytes.constData());
    blueMacButton->setText(text);
}

void DialogSystem::insertBlueName()
{
    QString text = typeText(this, tr("Nome Dispositivo Remoto"),
                            storedText(_config.bluename), false);
    if (text.isNull())
        return;
    QString title = tr("Bluetooth Nome Dispositivo Remoto");
    if (text.length() > 60) {
        showMessageBox(this, QMessageBox::Information, title, tr("Nome troppo lungo."));
        return;
    }
    if (text.isEmpty()) {
        showMessageBox(this, QMessageBox::Information, title, tr("Il nome non può essere nullo."));
        return;
    }
    // The name goes between double quotes into "/etc/bluetooth/rfcomm.conf":
    // a quote, a semicolon, a backslash or a control character there could
    // end the comment and add statements of its own.
    for (QChar c : text) {
        if (c == '"' || c == ';' || c == '\\' || c.category() == QChar::Other_Control) {
            showMessageBox(this, QMessageBox::Information, title, tr("Nome non valido."));
            return;
        }
    }
    QByteArray bytes = textToStore(text).left(BLUENAME_SIZE - 1);
    strcpy(_config.bluename, bytes.constData());
    blueNameButton->setText(text);
}

void DialogSystem::insertUserTemperature()
{
    QString text = typeText(this, tr("Temperatura Manuale (°C)"),
                            QString::number(static_cast<double>(_config.utemp), 'f', 2), true);
    if (text.isNull())
        return;
    // a typed "nan" or "inf" used to pass the bounds: a number is a number
    float value = 0;
    if (!finiteNumber(text, &value) || value < -20.0f || value > 100.0f) {
        showMessageBox(this, QMessageBox::Information, tr("Temperatura manuale"),
                       tr("Numero non valido."));
        return;
    }
    _config.utemp = value;
    showUserTemperature();
}

void DialogSystem::readPWVersion()
{
    PowerDevice* device = new PowerDevice();
    device->getVersion();
    QString text = QString("%1.%2").arg(device->versionMajor).arg(device->versionMinor);
    if (device->versionProto != 0)
        text += " PR";
    else
        text = "FP " + text;
    delete device;
    versionPowerLabel->setText(text);
}

int DialogSystem::scrollMaximum() const
{
    return scrollArea->verticalScrollBar()->maximum();
}

void DialogSystem::setScroll(int value)
{
    scrollArea->verticalScrollBar()->setValue(value);
}

void DialogSystem::positionScrollBarForIrrMinEdit()
{
    setScroll(irrMinEdit->hasFocus() ? scrollMaximum() * 2 / 3 : scrollMaximum());
}

void DialogSystem::positionScrollBarForPyranoEdit()
{
    if (pyranoEdit->hasFocus())
        setScroll(scrollArea->verticalScrollBar()->minimum());
}

bool DialogSystem::eventFilter(QObject* obj, QEvent* event)
{
    if ((obj == pyranoEdit || obj == irrMinEdit) && event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogSystem::editLineObject(QObject* obj)
{
    QMessageBox* box = newMessageBox(this, QMessageBox::Information, QString(),
                                     tr("Numero non valido."));
    EmbKeyboard* keyboard = new EmbKeyboard(this, QString(), QString());
    QLineEdit* edit = nullptr;
    float low = 0;
    float high = 0;
    float* field = nullptr;
    if (obj == pyranoEdit) {
        edit = pyranoEdit;
        keyboard->setWindowTitle(tr("Sens. Piranometro mV/(kW/m²)"));
        box->setWindowTitle(tr("Sens. Piranometro"));
        low = 1;
        high = 1000;
        field = &_config.cpyar;
    } else if (obj == irrMinEdit) {
        edit = irrMinEdit;
        keyboard->setWindowTitle(tr("Irraggiamento Minimo") + QString::fromUtf8(" W/m²"));
        box->setWindowTitle(tr("Irraggiamento Minimo"));
        low = 0;
        high = 1000000;
        field = &_config.irrmin;
    }
    if (edit != nullptr) {
        if (*field != 0 && std::isfinite(*field))
            keyboard->setInitString(QString::number(static_cast<double>(*field), 'f', 2));
        keyboard->toKeyPad();
        if (keyboard->exec() == QDialog::Accepted) {
            QString text = keyboard->stringEntered();
            // a typed "nan" or "inf" used to pass the bounds, and the range
            // was written "0 - 1e+06": a number is a number, in plain digits
            float value = 0;
            if (!finiteNumber(text, &value) || value < low || value > high) {
                box->setInformativeText(box->windowTitle() + " : " + rangeText(low, high));
                box->exec();
            } else {
                *field = value;
                edit->setText(QString::number(static_cast<double>(value), 'f', 2));
            }
        }
    }
    delete keyboard;
    delete box;
}

void DialogSystem::keyPressEvent(QKeyEvent* event)
{
    bool bluetooth = blueMacButton->isEnabled();
    switch (event->key()) {
    case Qt::Key_Down:
        if (clockCombo->hasFocus()) {
            dateTimeEdit->setFocus();
        } else if (dateTimeEdit->hasFocus()) {
            probeCombo->setFocus();
        } else if (probeCombo->hasFocus()) {
            pyranoEdit->setFocus();
        } else if (pyranoEdit->hasFocus()) {
            irrMinEdit->setFocus();
            setScroll(scrollMaximum() / 2);
        } else if (irrMinEdit->hasFocus()) {
            remoteCombo->setFocus();
            setScroll(scrollMaximum());
        } else if (remoteCombo->hasFocus()) {
            if (bluetooth)
                blueMacButton->setFocus();
            else
                languageCombo->setFocus();
        } else if (blueMacButton->hasFocus()) {
            blueNameButton->setFocus();
        } else if (blueNameButton->hasFocus()) {
            languageCombo->setFocus();
        } else if (languageCombo->hasFocus()) {
            brightnessButton->setFocus();
        } else if (brightnessButton->hasFocus()) {
            exitButton->setFocus();
        } else if (exitButton->hasFocus()) {
            clockCombo->setFocus();
            setScroll(scrollArea->verticalScrollBar()->minimum());
        }
        break;
    case Qt::Key_Up:
        if (exitButton->hasFocus()) {
            brightnessButton->setFocus();
            setScroll(scrollMaximum());
        } else if (brightnessButton->hasFocus()) {
            languageCombo->setFocus();
        } else if (languageCombo->hasFocus()) {
            if (bluetooth)
                blueNameButton->setFocus();
            else
                remoteCombo->setFocus();
        } else if (blueNameButton->hasFocus()) {
            blueMacButton->setFocus();
        } else if (blueMacButton->hasFocus()) {
            remoteCombo->setFocus();
        } else if (remoteCombo->hasFocus()) {
            irrMinEdit->setFocus();
            setScroll(scrollMaximum() / 2);
        } else if (irrMinEdit->hasFocus()) {
            pyranoEdit->setFocus();
            setScroll(scrollArea->verticalScrollBar()->minimum());
        } else if (pyranoEdit->hasFocus()) {
            probeCombo->setFocus();
        } else if (probeCombo->hasFocus()) {
            dateTimeEdit->setFocus();
        } else if (dateTimeEdit->hasFocus()) {
            clockCombo->setFocus();
        } else if (clockCombo->hasFocus()) {
            exitButton->setFocus();
        }
        break;
    case Qt::Key_Return:
        if (applyButton->hasFocus())
            accept();
        else if (exitButton->hasFocus())
            reject();
        else if (dateTimeButton->hasFocus())
            applyDateTime();
        else if (languageCombo->hasFocus())
            _config.lang = static_cast<_language>(languageCombo->currentIndex());
        else if (probeCombo->hasFocus())
            setProbeTemp(probeCombo->currentIndex());
        else if (clockCombo->hasFocus())
            setDisplayClock(clockCombo->currentIndex());
        else if (remoteCombo->hasFocus())
            setRemoteUnitLink(remoteCombo->currentIndex());
        else if (brightnessButton->hasFocus())
            setBrightness();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
