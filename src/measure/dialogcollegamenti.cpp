#include "measure/dialogcollegamenti.h"

#include "device/keyboard.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

DialogCollegamenti::DialogCollegamenti(QWidget* parent, _meaType type) : QDialog(parent)
{
    setObjectName("Collegamenti");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(QString());
    QLabel* picture = new QLabel(this);
    picture->setPixmap(QPixmap(type == MEA_PANEL ? ":/image/schema_pannello.png"
                                                 : ":/image/schema_stringhe.png"));
    QPushButton* next = new QPushButton(QIcon(":/icon/next.png"), tr("Continua"), this);
    next->setObjectName("Continua");
    connect(next, &QPushButton::clicked, this, &QDialog::accept);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(picture, 0, Qt::AlignHCenter);
    box->addWidget(next, 0, Qt::AlignHCenter);
    new GpioKeyboard(this);
}

void DialogCollegamenti::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return)
        accept();
    else if (event->key() == Qt::Key_Escape)
        reject();
    QWidget::keyPressEvent(event);
}
