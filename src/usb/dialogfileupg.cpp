#include "usb/dialogfileupg.h"

#include "data/stickfiles.h"
#include "platform/systemroot.h"
#include "toolkit/infobar.h"
#include "usb/utilityusb.h"

#include <QDir>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

DialogFileUpg::DialogFileUpg(QWidget* parent) : QDialog(parent)
{
    setObjectName("Dialog File UPG");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Elenco file UPG"));
    setWindowTitle(tr("Elenco file UPG"));
    QLabel* caption = new QLabel(tr("Selezionare il file"));
    caption->setObjectName("caption");
    _listFile = new QListWidget;
    _listFile->setObjectName("files");
    _buttonConfirm = new QPushButton(QIcon(":/icon/confirm.png"), tr("Conferma"));
    _buttonConfirm->setObjectName("Conferma");
    _buttonConfirm->setEnabled(false);
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"));
    _buttonExit->setObjectName("Exit");
    _buttonConfirm->setIconSize(QSize(32, 32));
    _buttonExit->setIconSize(QSize(32, 32));
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonConfirm);
    buttons->addWidget(_buttonExit);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(caption);
    box->addWidget(_listFile, 1);
    box->addLayout(buttons);

    readFileUpg();
    connect(_listFile, &QListWidget::itemSelectionChanged, this, &DialogFileUpg::selectFile);
    connect(_buttonConfirm, &QPushButton::clicked, this, &QDialog::accept);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    setModal(true);
    showMaximized();
}

void DialogFileUpg::readFileUpg()
{
    const std::string mountPoint = usbMountPoint();
    _listFile->clear();
    _listFile->setSortingEnabled(true);
    if (mountPoint.empty())
        return;
    _dirName = QDir::cleanPath(QString::fromStdString(SystemRoot::path(mountPoint)));
    for (const std::string& name : upgradeFiles(mountPoint.c_str()))
        _listFile->addItem(QString::fromLocal8Bit(name.c_str()));
}

void DialogFileUpg::selectFile()
{
    if (_listFile->currentItem() == nullptr)
        return;
    _fileName = _listFile->currentItem()->text();
    _buttonConfirm->setEnabled(true);
}

void DialogFileUpg::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (QPushButton* button = qobject_cast<QPushButton*>(focusWidget())) {
            if (button->isEnabled())
                button->click();
        } else if (_buttonConfirm->isEnabled()) {
            accept();
        }
        return;
    }
    QDialog::keyPressEvent(event);
}
