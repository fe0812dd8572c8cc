#ifndef KRM_TOOLKIT_QKEYPUSHBUTTON_H
#define KRM_TOOLKIT_QKEYPUSHBUTTON_H

#include <QPushButton>

// One key of the on-screen keyboard. It acts once, on the touch, before the
// finger leaves the glass; the button base never sees the touch, so no
// clicked() comes from it. The object name is the key's label at creation.
class QKeyPushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit QKeyPushButton(QWidget* parent);

signals:
    void pressedKey(bool caps);

public slots:
    void getKeyPress(bool caps);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QWidget* keyboard;
};

#endif
