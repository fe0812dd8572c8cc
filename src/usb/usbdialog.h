#ifndef KRM_USB_USBDIALOG_H
#define KRM_USB_USBDIALOG_H

#include <QDialog>

class InfoBar;
class QPushButton;

// The stick screen: connect and disconnect the stick, copy the database to
// and from it, upgrade the instrument from a file on it. Mounting, copying
// and installing are done by the instrument's scripts; this screen decides
// when they run and with what.
class UsbDialog : public QDialog
{
    Q_OBJECT
public:
    explicit UsbDialog(QWidget* parent);

    void msgUsb();

    bool connected;

public slots:
    void goToMountUsb();
    void goToUnMountUsb();
    void goToCopyTo();
    void goToCopyFrom();
    void goToUpgrade();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    InfoBar* _infoBar;
    QPushButton* _buttonMount;
    QPushButton* _buttonUnMount;
    QPushButton* _buttonCopyTo;
    QPushButton* _buttonCopyFrom;
    QPushButton* _buttonUpgrade;
    QPushButton* _buttonExit;
};

#endif
