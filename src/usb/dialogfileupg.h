#ifndef KRM_USB_DIALOGFILEUPG_H
#define KRM_USB_DIALOGFILEUPG_H

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The upgrade files found at the top of the stick, sorted; "Conferma" takes
// the selected one. The chosen file and its folder (a path of this machine)
// are left in _fileName and _dirName for the caller.
class DialogFileUpg : public QDialog
{
    Q_OBJECT
public:
    explicit DialogFileUpg(QWidget* parent);

    QString _fileName;
    QString _dirName;

public slots:
    void selectFile();

protected:
    void readFileUpg();
    void keyPressEvent(QKeyEvent* event) override;

private:
    InfoBar* _infoBar;
    QListWidget* _listFile;
    QPushButton* _buttonConfirm;
    QPushButton* _buttonExit;
};

#endif
