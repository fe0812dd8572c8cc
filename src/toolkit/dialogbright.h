#ifndef KRM_TOOLKIT_DIALOGBRIGHT_H
#define KRM_TOOLKIT_DIALOGBRIGHT_H

#include <QDialog>

class QLabel;
class QPushButton;
class QSlider;

// The backlight slider: every step reaches the backlight at once, so the
// operator sees it; the value is read by the caller whatever way the dialog
// is left.
class DialogBrightness : public QDialog
{
    Q_OBJECT
public:
    DialogBrightness(QWidget* parent, int value);

    int value() const;

public slots:
    void setValue(int value);
    void viewValue();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSlider* slider;
    QLabel* valueLabel;
    QPushButton* okButton;
};

#endif
