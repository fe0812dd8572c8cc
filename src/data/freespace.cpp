#include "data/freespace.h"

#include "device/keyboard.h"
#include "platform/systemroot.h"

#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>
#include <sys/statvfs.h>

float get_use_space_percentage(const char* path)
{
    struct statvfs vfs;
    if (path == nullptr || statvfs(SystemRoot::path(path).c_str(), &vfs) != 0)
        return 0;
    float total = static_cast<float>(vfs.f_blocks);
    float free = static_cast<float>(vfs.f_bfree);
    if (total == 0.0f || free == 0.0f)
        return 0;
    return std::fabs((total - free) / total * 100.0f);
}

DialogFreeSpace::DialogFreeSpace(QWidget* parent, int percent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
{
    setObjectName("FreeSpace");
    setWindowTitle(tr("Memoria occupata"));
    setModal(true);
    new GpioKeyboard(this);

    if (percent == 0) {
        float used = get_use_space_percentage("/krm510data");
        // A file system reporting more free than total blocks is shown full.
        percent = std::isfinite(used) && used <= 100.0f ? static_cast<int>(used) : 100;
    }

    progressBar = new QProgressBar(this);
    progressBar->setOrientation(Qt::Horizontal);
    progressBar->setRange(0, 100);
    progressBar->setValue(percent);

    buttonOk = new QPushButton(tr("OK"), this);
    buttonOk->setFlat(true);
    buttonOk->setDefault(true);
    connect(buttonOk, &QPushButton::clicked, this, &QDialog::reject);

    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(progressBar);
    layout->addStretch();
    layout->addWidget(buttonOk);
    layout->addStretch();
}

void DialogFreeSpace::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        reject();
    else if (event->key() == Qt::Key_Return && buttonOk->hasFocus())
        reject();
    QWidget::keyPressEvent(event);
}
