#include "usb/dialogcopyfrom.h"

#include "platform/command.h"

#include <QListWidget>

DialogCopyFrom::DialogCopyFrom(QWidget* parent) : DialogCopy(parent)
{
    setObjectName("Copy From");
    setTexts({tr("Copia Da..."), tr("Selezionare la sorgente"), tr("Apri"), tr("Indietro"),
              tr("Conferma"), tr("Exit"), tr("Cancella..."), tr("Copia DataBase"), tr("Terminato"),
              tr("Disconnettere la chiavetta USB prima di scollegarla.")});
}

// Only a stick's "krm510data" folder is a source; it is picked, not entered.
bool DialogCopyFrom::mayConfirm() const
{
    return selectedName().compare("krm510data", Qt::CaseInsensitive) == 0;
}

bool DialogCopyFrom::mayEnter(const QString& name) const
{
    return name.compare("krm510data", Qt::CaseInsensitive) != 0;
}

void DialogCopyFrom::copyDataBaseTo()
{
    if (!mayConfirm())
        return;
    const std::string source = _dir.absoluteFilePath(selectedName()).toLocal8Bit().toStdString();
    copyDirectories([&source](const char* dir) {
        return std::string("/usr/bin/krmcopyfrom.sh ") + shellQuote(source) + " " + shellQuote(dir);
    });
}
