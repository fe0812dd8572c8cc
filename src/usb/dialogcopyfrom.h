#ifndef KRM_USB_DIALOGCOPYFROM_H
#define KRM_USB_DIALOGCOPYFROM_H

#include "usb/dialogcopy.h"

// Copies the five data directories from a "krm510data" folder of the stick
// into the instrument's data directory. Only such a folder can be confirmed,
// and the walk does not enter it.
class DialogCopyFrom : public DialogCopy
{
    Q_OBJECT
public:
    explicit DialogCopyFrom(QWidget* parent);

public slots:
    void copyDataBaseTo() override;

protected:
    bool mayEnter(const QString& name) const override;
    bool mayConfirm() const override;
};

#endif
