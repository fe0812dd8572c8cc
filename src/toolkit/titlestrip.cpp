#include "toolkit/titlestrip.h"

#include <QPalette>

TitleStrip::TitleStrip(QWidget* dialog) : QLabel(dialog)
{
    setObjectName("titleStrip");
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(0x1c, 0x3a, 0x70));
    colours.setColor(QPalette::WindowText, Qt::white);
    setPalette(colours);
    setIndent(8);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    // a title too long for the strip is drawn smaller by the instrument's
    // style, as every text that does not fit its box
    QFont font = this->font();
    font.setPixelSize(FontPixels);
    setFont(font);
}

TitleStrip* TitleStrip::of(const QWidget* dialog)
{
    return dialog ? dialog->findChild<TitleStrip*>("titleStrip", Qt::FindDirectChildrenOnly)
                  : nullptr;
}

void TitleStrip::follow(QWidget* dialog)
{
    TitleStrip* strip = of(dialog);
    const QString title = dialog->windowTitle();
    QMargins margins = dialog->contentsMargins();
    if (title.isEmpty()) {
        if (strip) {
            margins.setTop(qMax(0, margins.top() - Height));
            dialog->setContentsMargins(margins);
            delete strip;
        }
        return;
    }
    if (!strip) {
        strip = new TitleStrip(dialog);
        margins.setTop(margins.top() + Height);
        dialog->setContentsMargins(margins);
    }
    strip->setText(title);
    strip->setGeometry(0, 0, dialog->width(), Height);
    strip->raise();
    strip->show();
}
