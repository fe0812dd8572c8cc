#include "toolkit/focusmark.h"

#include <QEvent>
#include <QPainter>

FocusMark::FocusMark(QWidget* marked) : QWidget(marked)
{
    setObjectName("focusMark");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    mark(marked);
}

void FocusMark::mark(QWidget* widget)
{
    if (parentWidget())
        parentWidget()->removeEventFilter(this);
    if (!widget) {
        hide();
        return;
    }
    if (widget != parentWidget())
        setParent(widget);
    widget->installEventFilter(this);
    setGeometry(widget->rect());
    raise();
    show();
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() &&
        (event->type() == QEvent::Resize || event->type() == QEvent::ChildAdded)) {
        setGeometry(parentWidget()->rect());
        raise();
    }
    return false;
}

void FocusMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect frame = rect();
    // black on the light faces, with a white line inside it so that the frame
    // also stands out on a dark or highlighted face
    painter.fillRect(QRect(frame.topLeft(), QSize(frame.width(), Thickness)), Qt::black);
    painter.fillRect(QRect(frame.left(), frame.bottom() - Thickness + 1, frame.width(), Thickness),
                     Qt::black);
    painter.fillRect(QRect(frame.topLeft(), QSize(Thickness, frame.height())), Qt::black);
    painter.fillRect(QRect(frame.right() - Thickness + 1, frame.top(), Thickness, frame.height()),
                     Qt::black);
    painter.setPen(Qt::white);
    painter.drawRect(frame.adjusted(Thickness, Thickness, -Thickness - 1, -Thickness - 1));
}
