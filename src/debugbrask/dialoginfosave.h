#ifndef KRM_DEBUGBRASK_DIALOGINFOSAVE_H
#define KRM_DEBUGBRASK_DIALOGINFOSAVE_H

#include <QDialog>

class QLineEdit;
class QPushButton;

// Date, time and comment of a service file. After an accepted exec the
// caller copies the three texts.
class DialogInfoSave : public QDialog
{
    Q_OBJECT
public:
    DialogInfoSave(QWidget* parent, QString defaultComment);

    char data[256];
    char time[256];
    char comment[256];

public slots:
    void goToFinalizeParam();
    void resetParameters();
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString _defaultComment;
    QLineEdit* _lineData;
    QLineEdit* _lineTime;
    QLineEdit* _lineComment;
    QPushButton* _buttonSave;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
};

#endif
