#include "debugbrask/dialogbraskdebug.h"

#include "debugbrask/debugdir.h"
#include "debugbrask/dialogcurrmean.h"
#include "debugbrask/dialogmeabrask.h"
#include "debugbrask/dialogmeabraskdebug.h"
#include "debugbrask/dialogsweepbrask.h"
#include "debugbrask/dialogtemphsink.h"
#include "debugbrask/dialogvoltmean.h"
#include "debugbrask/dialogzkillbrask.h"
#include "debugbrask/dialogztstbrask.h"
#include "toolkit/infobar.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

DialogBraskDebug::DialogBraskDebug(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint)
{
    setObjectName("BraskDebug");
    // the service files need their folder before any screen can save
    checkDebugDir();
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Brask Unit Debug"));

    auto button = [this](const QString& text, const char* name) {
        QPushButton* b = new QPushButton(text, this);
        b->setObjectName(name);
        b->setFlat(false);
        return b;
    };
    _buttonVoltMean = button(tr("Volt_mean"), "Volt_mean");
    _buttonCurrMean = button(tr("Curr_mean"), "Curr_mean");
    _buttonTempHSink = button(tr("Temp_hsink"), "Temp_hsink");
    _buttonMeaBraskUser = button(tr("Mea_brask User"), "Mea_brask User");
    _buttonMeaBraskDebug = button(tr("Mea_brask Debug"), "Mea_brask Debug");
    _buttonTstBrask = button(tr("Z_tst_brask"), "Z_tst_brask");
    _buttonKillBrask = button(tr("Z_kill_brask"), "Z_kill_brask");
    // "K" on the label, "Z_sweep_brask" on the line: the board's own names
    _buttonSweepBrask = button(tr("K_sweep_brask"), "K_sweep_brask");
    _buttonExit = button(tr("Exit"), "Exit");

    QGridLayout* grid = new QGridLayout;
    grid->setSpacing(20);
    grid->addWidget(_buttonVoltMean, 0, 0);
    grid->addWidget(_buttonCurrMean, 0, 1);
    grid->addWidget(_buttonTempHSink, 1, 0);
    grid->addWidget(_buttonMeaBraskUser, 1, 1);
    grid->addWidget(_buttonMeaBraskDebug, 2, 0);
    grid->addWidget(_buttonTstBrask, 2, 1);
    grid->addWidget(_buttonKillBrask, 3, 0);
    grid->addWidget(_buttonSweepBrask, 3, 1);
    grid->addWidget(_buttonExit, 4, 0);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addStretch();
    box->addLayout(grid);
    box->addStretch();

    connect(_buttonVoltMean, &QPushButton::clicked, this, &DialogBraskDebug::goToVoltMean);
    connect(_buttonCurrMean, &QPushButton::clicked, this, &DialogBraskDebug::goToCurrMean);
    connect(_buttonTempHSink, &QPushButton::clicked, this, &DialogBraskDebug::goToTempHSink);
    connect(_buttonMeaBraskUser, &QPushButton::clicked, this, &DialogBraskDebug::goToMeaBraskUser);
    connect(_buttonMeaBraskDebug, &QPushButton::clicked, this,
            &DialogBraskDebug::goToMeaBraskDebug);
    connect(_buttonTstBrask, &QPushButton::clicked, this, &DialogBraskDebug::goToTstBrask);
    connect(_buttonKillBrask, &QPushButton::clicked, this, &DialogBraskDebug::goToKillBrask);
    connect(_buttonSweepBrask, &QPushButton::clicked, this, &DialogBraskDebug::goToSweepBrask);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonVoltMean->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogBraskDebug::goToVoltMean()
{
    DialogVoltMean* screen = new DialogVoltMean(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToCurrMean()
{
    DialogCurrMean* screen = new DialogCurrMean(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToTempHSink()
{
    DialogTempHSink* screen = new DialogTempHSink(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToMeaBraskUser()
{
    DialogMeaBrask* screen = new DialogMeaBrask(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToMeaBraskDebug()
{
    DialogMeaBraskDebug* screen = new DialogMeaBraskDebug(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToTstBrask()
{
    DialogZTstBrask* screen = new DialogZTstBrask(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToKillBrask()
{
    DialogZKillBrask* screen = new DialogZKillBrask(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::goToSweepBrask()
{
    DialogSweepBrask* screen = new DialogSweepBrask(this);
    screen->exec();
    delete screen;
}

void DialogBraskDebug::keyPressEvent(QKeyEvent* event)
{
    // the grid row by row, then Exit
    const QList<QPushButton*> chain = {_buttonVoltMean,     _buttonCurrMean,      _buttonTempHSink,
                                       _buttonMeaBraskUser, _buttonMeaBraskDebug, _buttonTstBrask,
                                       _buttonKillBrask,    _buttonSweepBrask,    _buttonExit};
    int at = -1;
    for (int i = 0; i < chain.size(); i++)
        if (chain[i]->hasFocus())
            at = i;
    switch (event->key()) {
    case Qt::Key_Down:
        chain[(at + 1) % chain.size()]->setFocus();
        break;
    case Qt::Key_Up:
        chain[(at + chain.size() - 1) % chain.size()]->setFocus();
        break;
    case Qt::Key_Return:
        if (at >= 0)
            chain[at]->click();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
