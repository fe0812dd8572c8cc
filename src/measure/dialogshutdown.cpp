#include "measure/dialogshutdown.h"

#include "device/gpiopd.h"
#include "platform/clock.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

int openNow = 0;
int openedSoFar = 0;

} // namespace

bool DialogShutDown::isOpen()
{
    return openNow > 0;
}

int DialogShutDown::opened()
{
    return openedSoFar;
}

DialogShutDown::DialogShutDown(QWidget* parent) : QDialog(parent)
{
    openNow++;
    openedSoFar++;
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Batteria"));
    powerDeviceStart(1);

    QLabel* picture = new QLabel(this);
    picture->setPixmap(QPixmap(":/icon/alert-big.png"));
    QLabel* first = new QLabel(tr("Batteria Insufficiente."), this);
    QLabel* second = new QLabel(tr("Ricaricare la batteria."), this);
    QVBoxLayout* texts = new QVBoxLayout;
    texts->addWidget(first);
    texts->addWidget(second);
    QHBoxLayout* box = new QHBoxLayout(this);
    box->addWidget(picture);
    box->addLayout(texts);

    QTimer* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &DialogShutDown::powerSupplyChecked);
    Clock::start(timer, 600);
}

DialogShutDown::~DialogShutDown()
{
    openNow--;
    powerDeviceStart(0);
}

void DialogShutDown::powerSupplyChecked()
{
    if (isPowerSupply())
        close();
}

void DialogShutDown::keyPressEvent(QKeyEvent* event)
{
    // No key leads out, Escape included: only the charger does. The plain
    // widget handler takes the place of the dialog's, which would reject.
    QWidget::keyPressEvent(event);
}
