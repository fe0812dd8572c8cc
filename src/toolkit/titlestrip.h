#ifndef KRM_TOOLKIT_TITLESTRIP_H
#define KRM_TOOLKIT_TITLESTRIP_H

#include <QLabel>

// The title bar the instrument's old window server drew over each dialog:
// the dialog's window title on a dark strip across its top. The screen has
// no window server now, so the program draws it; the dialog's layout moves
// down by the strip's height.
class TitleStrip : public QLabel
{
public:
    enum { Height = 32, FontPixels = 24 };

    // Gives the dialog a strip showing its window title, follows the title
    // and the dialog's width, and takes the strip away while the title is
    // empty.
    static void follow(QWidget* dialog);

    // The strip of a dialog, if it has one.
    static TitleStrip* of(const QWidget* dialog);

private:
    explicit TitleStrip(QWidget* dialog);
};

#endif
