#ifndef KRM_USB_DIALOGCOPYTO_H
#define KRM_USB_DIALOGCOPYTO_H

#include "usb/dialogcopy.h"

// Copies the five data directories of the instrument into a new
// "krm510data" folder where the operator stands on the stick; a former copy
// in that place goes away first.
class DialogCopyTo : public DialogCopy
{
    Q_OBJECT
public:
    explicit DialogCopyTo(QWidget* parent);

public slots:
    void copyDataBaseTo() override;

protected:
    bool mayConfirm() const override;
};

#endif
