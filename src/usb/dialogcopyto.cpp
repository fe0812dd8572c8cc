#include "usb/dialogcopyto.h"

#include "platform/command.h"

DialogCopyTo::DialogCopyTo(QWidget* parent) : DialogCopy(parent)
{
    setObjectName("Copy To");
    setTexts({tr("Copia In..."), tr("Selezionare la destinazione"), tr("Apri"), tr("Indietro"),
              tr("Conferma"), tr("Exit"), tr("Cancella..."), tr("Copia DataBase"), tr("Terminato"),
              tr("Disconnettere la chiavetta USB prima di scollegarla.")});
}

bool DialogCopyTo::mayConfirm() const
{
    return true;
}

// A former copy in the chosen place goes away entirely before the new one.
void DialogCopyTo::copyDataBaseTo()
{
    const std::string target = (_dir.absolutePath() + "/krm510data").toLocal8Bit().toStdString();
    Command::system(("rm -Rf " + shellQuote(target)).c_str());
    copyDirectories([&target](const char* dir) {
        return std::string("/usr/bin/krmcopyto.sh ") + shellQuote(dir) + " " + shellQuote(target);
    });
}
