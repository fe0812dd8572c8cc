#include "debugbrask/dialogviewzkilldatabrask.h"

#include "debugbrask/datasave.h"
#include "debugbrask/dialoginfosave.h"
#include "toolkit/infobar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

DialogViewZKillDataBrask::DialogViewZKillDataBrask(QWidget* parent, _tstBrask* tst, int target,
                                                   float tempStart, float tempStop)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), _tst(tst),
      _target(target), _tempStart(tempStart), _tempStop(tempStop)
{
    // the same object name as the Z test's view, as it always had
    setObjectName("Z tst Brask");
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("View Data Z Kill Brask Unit"));
    _list = new QListWidget(this);
    _list->setObjectName("Data");
    QFont font = _list->font();
    font.setPointSize(22);
    _list->setFont(font);
    _list->addItem(QStringList{tr("Num."), tr("ADI (dec)"), tr("ADV (dec)"), tr("vGate Imp(dec)"),
                               tr("vGate Eff(dec)")}
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
    connect(_buttonSave, &QPushButton::clicked, this, &DialogViewZKillDataBrask::goToSave);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonSave->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogViewZKillDataBrask::addValueOnList()
{
    for (int k = 0; k < TST_BRASK_POINTS; k++)
        _list->addItem(QString("%1\t%2\t%3\t%4\t%5")
                           .arg(k, 0, 10)
                           .arg(_tst->corrente[k], 0, 10)
                           .arg(_tst->tensione[k], 0, 10)
                           .arg(_tst->vGateImp[k], 0, 10)
                           .arg(_tst->vGateEff[k], 0, 10));
}

void DialogViewZKillDataBrask::goToSave()
{
    DialogInfoSave::saveServiceFile(this, [this](char* data, char* time, char* comment) {
        return saveMeasureZKillDataBrask(data, time, comment, _tst, _target, _tempStart, _tempStop);
    });
}

void DialogViewZKillDataBrask::keyPressEvent(QKeyEvent* event)
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
