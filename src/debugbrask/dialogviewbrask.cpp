#include "debugbrask/dialogviewbrask.h"

#include "debugbrask/dialoginfosave.h"
#include "toolkit/infobar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

DialogViewBrask::DialogViewBrask(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint)
{
}

void DialogViewBrask::build(const QString& title, const QStringList& heads, const QString& save,
                            const QString& exit)
{
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(title);
    _list = new QListWidget(this);
    _list->setObjectName("Data");
    QFont font = _list->font();
    font.setPointSize(22);
    _list->setFont(font);
    _list->addItem(heads.join("\t "));
    addValueOnList();
    _buttonSave = new QPushButton(save, this);
    _buttonSave->setObjectName("Save");
    _buttonExit = new QPushButton(exit, this);
    _buttonExit->setObjectName("Exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonSave);
    buttons->addWidget(_buttonExit);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(_list);
    box->addLayout(buttons);
    connect(_buttonSave, &QPushButton::clicked, this, &DialogViewBrask::goToSave);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonSave->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogViewBrask::goToSave()
{
    DialogInfoSave::saveServiceFile(
        this, [this](char* data, char* time, char* comment) { return write(data, time, comment); });
}

void DialogViewBrask::keyPressEvent(QKeyEvent* event)
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

void DialogViewBrask::addGateRows(const _tstBrask* tst)
{
    for (int k = 0; k < TST_BRASK_POINTS; k++)
        _list->addItem(QString("%1\t%2\t%3\t%4\t%5")
                           .arg(k, 0, 10)
                           .arg(tst->corrente[k], 0, 10)
                           .arg(tst->tensione[k], 0, 10)
                           .arg(tst->vGateImp[k], 0, 10)
                           .arg(tst->vGateEff[k], 0, 10));
}
