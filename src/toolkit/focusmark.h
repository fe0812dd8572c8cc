#ifndef KRM_TOOLKIT_FOCUSMARK_H
#define KRM_TOOLKIT_FOCUSMARK_H

#include <QWidget>

// A thick dark frame drawn inside the widget that has the keyboard focus, on
// top of its face, so that an operator in the sun sees where the keys act on
// every kind of widget, flat buttons included. It lives as a child of the
// marked widget and lets every touch through.
class FocusMark : public QWidget
{
public:
    enum { Thickness = 4 };

    explicit FocusMark(QWidget* marked);

    // Moves the frame onto the given widget (none: hides it).
    void mark(QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

#endif
