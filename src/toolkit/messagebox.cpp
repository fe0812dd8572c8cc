#include "toolkit/messagebox.h"

const Qt::WindowFlags messageBoxFlags = Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint;

QMessageBox* newMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                           const QString& text)
{
    QMessageBox* box = new QMessageBox(parent);
    box->setWindowFlags(messageBoxFlags);
    box->setIcon(icon);
    box->setWindowTitle(title);
    box->setText(text);
    box->setStandardButtons(QMessageBox::Ok);
    box->setDefaultButton(QMessageBox::Ok);
    return box;
}

int showMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                   const QString& text, const QString& informative)
{
    QMessageBox* box = newMessageBox(parent, icon, title, text);
    if (!informative.isEmpty())
        box->setInformativeText(informative);
    int result = box->exec();
    delete box;
    return result;
}

bool askYesNo(QWidget* parent, const QString& title, const QString& text,
              const QString& informative)
{
    QMessageBox* box = newMessageBox(parent, QMessageBox::Question, title, text);
    box->setInformativeText(informative);
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::No);
    bool yes = box->exec() == QMessageBox::Yes;
    delete box;
    return yes;
}
