#ifndef KRM_DEBUGBRASK_DIALOGBRASKDEBUG_H
#define KRM_DEBUGBRASK_DIALOGBRASKDEBUG_H

#include <QDialog>

class InfoBar;
class QPushButton;

// The service menu of the measuring board: one entry per command of the
// second-generation board. Reached only through Orvia::goToBraskDebug.
class DialogBraskDebug : public QDialog
{
    Q_OBJECT
public:
    explicit DialogBraskDebug(QWidget* parent);

public slots:
    void goToVoltMean();
    void goToCurrMean();
    void goToTempHSink();
    void goToMeaBraskUser();
    void goToMeaBraskDebug();
    void goToTstBrask();
    void goToKillBrask();
    void goToSweepBrask();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    InfoBar* _infoBar;
    QPushButton* _buttonVoltMean;
    QPushButton* _buttonCurrMean;
    QPushButton* _buttonTempHSink;
    QPushButton* _buttonMeaBraskUser;
    QPushButton* _buttonMeaBraskDebug;
    QPushButton* _buttonTstBrask;
    QPushButton* _buttonKillBrask;
    QPushButton* _buttonSweepBrask;
    QPushButton* _buttonExit;
};

#endif
