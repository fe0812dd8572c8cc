#include "usb/dialogcopy.h"

#include "data/recordfiles.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "platform/systemroot.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "usb/utilityusb.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstdio>

const char* const DialogCopy::strDirDB[5] = {"/datapanel", "/datacompany", "/datainstallation",
                                             "/datameapanel", "/datameastring"};

DialogCopy::DialogCopy(QWidget* parent) : QDialog(parent)
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _caption = new QLabel;
    _caption->setObjectName("caption");
    // where the operator stands, seen from the stick's top
    _folder = new QLabel;
    _folder->setObjectName("folder");
    _listDir = new QListWidget;
    _listDir->setObjectName("folders");
    _buttonOpen = new QPushButton(QIcon(":/icon/next.png"), QString());
    _buttonOpen->setObjectName("Apri");
    _buttonBack = new QPushButton(QIcon(":/icon/left.png"), QString());
    _buttonBack->setObjectName("Indietro");
    _buttonConfirm = new QPushButton(QIcon(":/icon/confirm.png"), QString());
    _buttonConfirm->setObjectName("Conferma");
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), QString());
    _buttonExit->setObjectName("Exit");
    for (QPushButton* b : {_buttonOpen, _buttonBack, _buttonConfirm, _buttonExit})
        b->setIconSize(QSize(32, 32));
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonOpen);
    buttons->addWidget(_buttonBack);
    buttons->addWidget(_buttonConfirm);
    buttons->addWidget(_buttonExit);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(_caption);
    box->addWidget(_folder);
    box->addWidget(_listDir, 1);
    box->addLayout(buttons);

    _dir.setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    _dir.setSorting(QDir::Name | QDir::IgnoreCase);
    _buttonOpen->setEnabled(false);
    _buttonBack->setEnabled(false);
    _buttonConfirm->setEnabled(false);

    connect(_listDir, &QListWidget::currentRowChanged, this, &DialogCopy::selectDir);
    connect(_buttonOpen, &QPushButton::clicked, this, &DialogCopy::upDir);
    connect(_buttonBack, &QPushButton::clicked, this, &DialogCopy::backDir);
    connect(_buttonConfirm, &QPushButton::clicked, this, &DialogCopy::copyDataBaseTo);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    Clock::singleShot(0, this, &DialogCopy::initializeDir);
    setModal(true);
    showMaximized();
}

void DialogCopy::setTexts(const Texts& texts)
{
    _texts = texts;
    setWindowTitle(texts.title);
    _infoBar->setTitle(texts.title);
    _caption->setText(texts.caption);
    _buttonOpen->setText(texts.open);
    _buttonBack->setText(texts.back);
    _buttonConfirm->setText(texts.confirm);
    _buttonExit->setText(texts.exit);
}

void DialogCopy::initializeDir()
{
    QProgressDialog progress(QString(), QString(), 0, 0, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setStyleSheet(READ_PROGRESS_STYLE);
    progress.show();
    QCoreApplication::processEvents();
    setBaseDir();
    readDir();
    selectDir();
}

void DialogCopy::setBaseDir()
{
    const std::string mountPoint = usbMountPoint();
    _baseDir.clear();
    if (!mountPoint.empty())
        _baseDir = QDir::cleanPath(QString::fromStdString(SystemRoot::path(mountPoint)));
    _dir.setPath(_baseDir);
}

void DialogCopy::readDir()
{
    _listDir->clear();
    if (_baseDir.isEmpty())
        return;
    const QString inside = QDir(_baseDir).relativeFilePath(_dir.absolutePath());
    _folder->setText("/" + (inside == "." ? QString() : inside));
    _dir.refresh();
    _listDir->addItems(_dir.entryList());
    if (_listDir->count() > 0)
        _listDir->setCurrentRow(0);
}

QString DialogCopy::selectedName() const
{
    QListWidgetItem* item = _listDir->currentItem();
    return item == nullptr ? QString() : item->text();
}

bool DialogCopy::atBase() const
{
    return QDir::cleanPath(_dir.absolutePath()) == _baseDir;
}

void DialogCopy::selectDir()
{
    _buttonOpen->setEnabled(_listDir->count() > 0);
    _buttonBack->setEnabled(!_baseDir.isEmpty() && !atBase());
    _buttonConfirm->setEnabled(!_baseDir.isEmpty() && mayConfirm());
}

bool DialogCopy::mayEnter(const QString&) const
{
    return true;
}

// A folder is entered only when it really lies under the stick's mount
// point: a link on the stick that leads elsewhere is not followed.
void DialogCopy::upDir()
{
    const QString name = selectedName();
    if (name.isEmpty() || !mayEnter(name))
        return;
    const QString base = QFileInfo(_baseDir).canonicalFilePath();
    const QString target = QFileInfo(_dir.absoluteFilePath(name)).canonicalFilePath();
    if (base.isEmpty() || !target.startsWith(base + "/"))
        return;
    if (!_dir.cd(name))
        return;
    readDir();
    selectDir();
}

void DialogCopy::backDir()
{
    if (!atBase())
        _dir.cdUp();
    printf("basedir = %s\n", _baseDir.toLocal8Bit().constData());
    fflush(stdout);
    readDir();
    selectDir();
}

bool DialogCopy::rmDir(QString const& path)
{
    QDir dir(path);
    const QFileInfoList entries =
        dir.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    for (const QFileInfo& entry : entries) {
        if (entry.isDir() && !entry.isSymLink()) {
            if (!rmDir(entry.absoluteFilePath()))
                return false;
        } else if (!dir.remove(entry.fileName())) {
            return false;
        }
    }
    return dir.rmdir(dir.absolutePath());
}

void DialogCopy::copyDirectories(const std::function<std::string(const char* dir)>& commandLine)
{
    QProgressDialog progress(_texts.title, _texts.cancel, 0, 6, this);
    progress.setMinimumDuration(0);
    progress.setWindowModality(Qt::WindowModal);
    progress.setStyleSheet(READ_PROGRESS_STYLE);
    progress.show();
    progress.setValue(1);
    for (int i = 0; i < 5; i++) {
        if (progress.wasCanceled())
            break;
        progress.setValue(i + 2);
        QCoreApplication::processEvents();
        Command::system(commandLine(strDirDB[i]).c_str());
        Clock::sleep(1);
    }
    progress.setAutoClose(true);
    progress.close();
    showMessageBox(this, QMessageBox::Information, _texts.boxTitle, _texts.finished);
    showMessageBox(this, QMessageBox::Information, _texts.boxTitle, _texts.unplug);
}

void DialogCopy::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        QWidget* focus = focusWidget();
        if (QPushButton* button = qobject_cast<QPushButton*>(focus)) {
            if (button->isEnabled())
                button->click();
        } else if (focus == _listDir && _buttonOpen->isEnabled()) {
            upDir();
        }
        return;
    }
    QDialog::keyPressEvent(event);
}
