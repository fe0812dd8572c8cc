#include "measure/dialogdatielettrici.h"

#include "device/keyboard.h"
#include "toolkit/numbertext.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

DialogDatiElettrici::DialogDatiElettrici(QWidget* parent, bool stc, _meaType type, float pmax,
                                         float vmpp, float impp, float voc, float isc,
                                         float pmaxStc, float vmppStc, float imppStc,
                                         float vocStc, float iscStc, float deltaPmax)
    : QDialog(parent), _stc(stc), _type(type), okButton(nullptr)
{
    setObjectName("ElectrictDataMeasures");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Dati Elettrici Misurati"));

    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(30);
    grid->addWidget(new QLabel("OPC", this), 0, 2);
    if (_stc)
        grid->addWidget(new QLabel("STC", this), 0, 3);
    createLabel("Pmax", pmax, pmaxStc, 2, "W", grid, 1);
    createLabel("Vmpp", vmpp, vmppStc, 2, "V", grid, 2);
    createLabel("Impp", impp, imppStc, 2, "A", grid, 3);
    createLabel("Voc", voc, vocStc, 2, "V", grid, 4);
    createLabel("Isc", isc, iscStc, 2, "A", grid, 5);
    createLabel("FF", pmax / (voc * isc), pmaxStc / (vocStc * iscStc), 2, QString(), grid, 6);
    createLabel("DPmax", 0, deltaPmax, 2, "%", grid, 7);

    okButton = new QPushButton(QIcon(":/icon/exit.png"), tr("OK"), this);
    okButton->setObjectName("OK");
    connect(okButton, &QPushButton::clicked, this, &QDialog::reject);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(grid);
    box->addWidget(okButton, 0, Qt::AlignHCenter);
    new GpioKeyboard(this);
}

QString DialogDatiElettrici::valueText(float value, int decimals)
{
    return storedNumberText(value, decimals);
}

QString DialogDatiElettrici::fillFactorText(float value)
{
    QString text = valueText(value, 2);
    if (text == "----")
        return text;
    return text + " (" + QString::number(static_cast<double>(value) * 100.0, 'f', 0) + " %)";
}

void DialogDatiElettrici::createLabel(QString name, float opc, float stc, int decimals,
                                      QString unit, QGridLayout* grid, int row)
{
    bool ff = name == "FF";
    grid->addWidget(new QLabel(name, this), row, 0);
    QLabel* opcLabel = new QLabel(ff ? fillFactorText(opc) : valueText(opc, decimals), this);
    opcLabel->setObjectName(name + "_OPC");
    grid->addWidget(opcLabel, row, 2);
    if (_stc) {
        QLabel* stcLabel = new QLabel(ff ? fillFactorText(stc) : valueText(stc, decimals), this);
        stcLabel->setObjectName(name + "_STC");
        grid->addWidget(stcLabel, row, 3);
    }
    grid->addWidget(new QLabel(unit, this), row, 4);
}

void DialogDatiElettrici::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return && okButton->hasFocus()) ||
        event->key() == Qt::Key_Escape)
        reject();
    QWidget::keyPressEvent(event);
}
