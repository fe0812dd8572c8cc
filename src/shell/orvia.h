#ifndef KRM_SHELL_ORVIA_H
#define KRM_SHELL_ORVIA_H

#include "data/coredata.h"

#include <QWidget>

class InfoBar;
class QPushButton;

// The main menu, the instrument's one permanent window: a grid of buttons
// under the status bar, each opening a modal screen. The menu's copy of the
// configuration is the only one from which the file is ever written.
class Orvia : public QWidget
{
    Q_OBJECT
public:
    Orvia();
    ~Orvia() override;

    void translateUi();
    void readPowerDeviceVersion();

    _configParam _config;
    int _clockMode;
    int _pdVersionMajor;
    int _pdVersionMinor;
    int _pdVersionProto;

public slots:
    void goToSystemDialog();
    void goToPanelIV();
    void goToStringIV();
    void goToArchivePanel();
    void goToArchiveCompany();
    void goToArchiveInstallation();
    void goToArchiveMeasures();
    void goToUsbDialog();
    void goToBraskDebug();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    InfoBar* _infoBar;
    QPushButton* _buttonService;
    QPushButton* _buttonSystem;
    QPushButton* _buttonPanel;
    QPushButton* _buttonString;
    QPushButton* _buttonArchivePanel;
    QPushButton* _buttonArchiveMeasures;
    QPushButton* _buttonArchiveCompany;
    QPushButton* _buttonArchiveInstallation;
    QPushButton* _buttonUsb;
};

#endif
