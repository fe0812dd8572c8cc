#include "toolkit/dialogbright.h"

#include "device/keyboard.h"
#include "device/monitor.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

DialogBrightness::DialogBrightness(QWidget* parent, int value) : QDialog(parent)
{
    setObjectName("Brightness");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Luminosità"));
    slider = new QSlider(Qt::Horizontal, this);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setTickPosition(QSlider::TicksBothSides);
    slider->setRange(0, 100);
    slider->setTickInterval(10);
    slider->setSingleStep(1);
    slider->setValue(value);
    valueLabel = new QLabel(this);
    okButton = new QPushButton(QIcon(":/icon/exit.png"), tr("OK"), this);
    okButton->setObjectName("OK");
    okButton->setFlat(true);
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(slider, &QSlider::valueChanged, this, &DialogBrightness::setValue);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(slider);
    box->addWidget(valueLabel, 0, Qt::AlignHCenter);
    box->addWidget(okButton, 0, Qt::AlignHCenter);
    viewValue();
    new GpioKeyboard(this);
}

int DialogBrightness::value() const
{
    return slider->value();
}

void DialogBrightness::setValue(int value)
{
    slider->setValue(value);
    viewValue();
    monitor_set_value(value);
}

void DialogBrightness::viewValue()
{
    valueLabel->setText(QString::number(slider->value()) + " %");
}

void DialogBrightness::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return && okButton->hasFocus()) ||
        event->key() == Qt::Key_Escape)
        reject();
    QWidget::keyPressEvent(event);
}
