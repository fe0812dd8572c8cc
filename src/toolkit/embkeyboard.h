#ifndef KRM_TOOLKIT_EMBKEYBOARD_H
#define KRM_TOOLKIT_EMBKEYBOARD_H

#include <QDialog>

class GpioKeyboard;
class QKeyPushButton;
class QLineEdit;

// The on-screen keyboard: a line edit and a grid of touch keys, with a
// letter layer (upper or lower case) and a key pad layer of digits and
// symbols. The last touched character stays selected, which is how the
// cursor shows on this screen.
class EmbKeyboard : public QDialog
{
    Q_OBJECT
public:
    EmbKeyboard(QWidget* parent, QString title, QString initial);

    void setInitString(QString text);
    void toKeyPad();
    void toUpperCase();
    void toLowerCase();
    QString stringEntered() const;
    void receiptChildKey(QKeyEvent* event, bool flag);

    bool isCapsOn() const { return capsOn; }
    bool isKeyPadOn() const { return keyPadOn; }
    QLineEdit* editor() const { return lineEdit; }

    static QChar alphaToNumber(QChar letter);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void createKeyboard();
    QKeyPushButton* createNewKey(QString text);
    void setLetterLabels(bool upper);

    bool capsOn;
    bool keyPadOn;
    QKeyPushButton* escKey;
    GpioKeyboard* gpioKeyboard;
    QLineEdit* lineEdit;
};

#endif
