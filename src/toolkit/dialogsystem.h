#ifndef KRM_TOOLKIT_DIALOGSYSTEM_H
#define KRM_TOOLKIT_DIALOGSYSTEM_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

// The instrument's settings. It edits a private copy of the configuration;
// the caller takes the copy back only when the operator leaves with "Applica".
// The date and time set with "Conferma data e ora" and the backlight level
// take effect at once, whatever way the screen is left.
class DialogSystem : public QDialog
{
    Q_OBJECT
public:
    DialogSystem(_configParam* config, QWidget* parent);

    _configParam _config;

public slots:
    void setLanguage(int index);
    void setProbeTemp(int index);
    void setDisplayClock(int index);
    void setRemoteUnitLink(int index);
    void applyDateTime();
    void setBrightness();
    void insertBlueMac();
    void insertBlueName();
    void insertUserTemperature();
    void readPWVersion();
    void positionScrollBarForIrrMinEdit();
    void positionScrollBarForPyranoEdit();
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showUserTemperature();
    void setScroll(int value);
    int scrollMaximum() const;

    InfoBar* infoBar;
    QScrollArea* scrollArea;
    QLabel* versionPowerLabel;
    QComboBox* clockCombo;
    QDateTimeEdit* dateTimeEdit;
    QComboBox* probeCombo;
    QPushButton* temperatureButton;
    QLineEdit* pyranoEdit;
    QLineEdit* irrMinEdit;
    QComboBox* remoteCombo;
    QPushButton* blueMacButton;
    QPushButton* blueNameButton;
    QComboBox* languageCombo;
    QPushButton* brightnessButton;
    QPushButton* applyButton;
    QPushButton* dateTimeButton;
    QPushButton* exitButton;
};

#endif
