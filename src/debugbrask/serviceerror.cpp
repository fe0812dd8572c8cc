#include "debugbrask/serviceerror.h"

#include "toolkit/messagebox.h"

int showServiceError(QWidget* parent, _pdError error, const QString& title,
                     const QStringList& texts)
{
    if (error == PD_OK)
        return 0;
    QString text;
    if (error == PD_NO_REPLY)
        text = texts.value(0);
    else if (error >= PD_OVER_VOLTAGE && error <= PD_LOW_CURRENT)
        text = texts.value(error - PD_OVER_VOLTAGE + 1);
    showMessageBox(parent, error == PD_NO_REPLY ? QMessageBox::Critical : QMessageBox::Warning,
                   title, text);
    return 1;
}
