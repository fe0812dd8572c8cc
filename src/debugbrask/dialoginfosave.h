#ifndef KRM_DEBUGBRASK_DIALOGINFOSAVE_H
#define KRM_DEBUGBRASK_DIALOGINFOSAVE_H

#include <QDialog>
#include <functional>

class QLineEdit;
class QPushButton;

// Date, time and comment of a service file. After an accepted exec the
// caller copies the three texts.
class DialogInfoSave : public QDialog
{
    Q_OBJECT
public:
    DialogInfoSave(QWidget* parent, QString defaultComment);

    // The save of a service view: the form with an empty default comment
    // and, when accepted, the writer with its date, time and comment, then
    // the box: "Misura" with the name's text on -3, else "Misura Salvata."
    // (also on -4, as the instrument always had it).
    static void
    saveServiceFile(QWidget* view,
                    const std::function<int(char* data, char* time, char* comment)>& write);

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
