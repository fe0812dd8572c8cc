#include "debugbrask/dialogviewdatameabraskdebug.h"

#include "data/datasetting.h"
#include "debugbrask/datasave.h"
#include "debugbrask/dialoginfosave.h"
#include "toolkit/infobar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

DialogViewDataMeaBraskDebug::DialogViewDataMeaBraskDebug(QWidget* parent, _raw_ramp_vgate* ramp,
                                                         _info_last* info, float tempStart,
                                                         float tempStop)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), _ramp(ramp),
      _info(info), _tempStart(tempStart), _tempStop(tempStop)
{
    setObjectName("Mea Brask");
    readConfigFile(&_config);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("View Data Mea Brask Unit Debug"));
    _list = new QListWidget(this);
    _list->setObjectName("Data");
    QFont font = _list->font();
    font.setPointSize(22);
    _list->setFont(font);
    _list->addItem(QStringList{tr("Num."), tr("I (dec)"), tr("V (dec)"), tr("Vgate1(dec)"),
                               tr("Vgate2(dec)"), tr("I (A)"), tr("V (V)")}
                       .join("\t "));
    addValueOnList();
    _buttonSave = new QPushButton(tr("Save"), this);
    _buttonSave->setObjectName("Save");
    _buttonExit = new QPushButton(tr("Exit"), this);
    _buttonExit->setObjectName("Exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonSave);
    buttons->addWidget(_buttonExit);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(_list);
    box->addLayout(buttons);
    connect(_buttonSave, &QPushButton::clicked, this, &DialogViewDataMeaBraskDebug::goToSave);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonSave->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogViewDataMeaBraskDebug::addValueOnList()
{
    // the high range calibration whatever range the board reported
    for (int k = 0; k < RAMP_POINTS; k++) {
        float current =
            static_cast<float>(_ramp->corrente[k] - _config.adci1offset) * _config.adci1;
        float voltage =
            (static_cast<float>(_ramp->tensione[k]) - _config.adcv1offset) * _config.adcv1;
        _list->addItem(QString("%1\t%2\t%3\t%4\t%5\t%6\t%7")
                           .arg(k, 0, 10)
                           .arg(_ramp->corrente[k], 0, 10)
                           .arg(_ramp->tensione[k], 0, 10)
                           .arg(_ramp->vgate1[k], 0, 10)
                           .arg(_ramp->vgate2[k], 0, 10)
                           .arg(static_cast<double>(current), 0, 'g', 6)
                           .arg(static_cast<double>(voltage), 0, 'g', 6));
    }
}

void DialogViewDataMeaBraskDebug::goToSave()
{
    DialogInfoSave::saveServiceFile(this, [this](char* data, char* time, char* comment) {
        return saveMeasureMeaBraskDebug(data, time, comment, _ramp, _info, _tempStart, _tempStop);
    });
}

void DialogViewDataMeaBraskDebug::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        if (_list->hasFocus())
            _buttonSave->setFocus();
        else if (_buttonSave->hasFocus())
            _buttonExit->setFocus();
        else
            _list->setFocus();
        break;
    case Qt::Key_Up:
        if (_buttonExit->hasFocus())
            _buttonSave->setFocus();
        else if (_buttonSave->hasFocus())
            _list->setFocus();
        else
            _buttonExit->setFocus();
        break;
    case Qt::Key_Return:
        if (_buttonSave->hasFocus())
            goToSave();
        else if (_buttonExit->hasFocus())
            reject();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
