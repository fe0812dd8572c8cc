#include "toolkit/look.h"

#include "toolkit/focusmark.h"
#include "toolkit/instrumentstyle.h"
#include "toolkit/titlestrip.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QStyle>

namespace
{

// Watches every widget of the program: gives each dialog its title strip
// and keeps the focus frame on the widget that has the keys. Screens built
// later get both without a line of their own.
class LookWatcher : public QObject
{
public:
    explicit LookWatcher(QApplication* app) : QObject(app)
    {
        setObjectName("instrumentLook");
        connect(app, &QApplication::focusChanged, this,
                [this](QWidget*, QWidget* now) { markFocus(now); });
        app->installEventFilter(this);
        markFocus(QApplication::focusWidget());
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Polish:
        case QEvent::WindowTitleChange:
            if (QDialog* dialog = qobject_cast<QDialog*>(watched); dialog && dialog->isWindow())
                TitleStrip::follow(dialog);
            break;
        case QEvent::Resize:
            if (QDialog* dialog = qobject_cast<QDialog*>(watched); dialog && dialog->isWindow()) {
                if (TitleStrip* strip = TitleStrip::of(dialog))
                    strip->setGeometry(0, 0, dialog->width(), TitleStrip::Height);
            }
            break;
        default:
            break;
        }
        return false;
    }

private:
    void markFocus(QWidget* now)
    {
        if (!now || now == mark) {
            if (mark)
                mark->mark(nullptr);
            return;
        }
        if (mark)
            mark->mark(now);
        else
            mark = new FocusMark(now);
    }

    QPointer<FocusMark> mark;
};

} // namespace

QFont instrumentFont()
{
    return QFont("helvetica", 38, QFont::Bold, false);
}

void setInstrumentLook()
{
    QApplication* app = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!app || app->findChild<QObject*>("instrumentLook", Qt::FindDirectChildrenOnly))
        return;
    QApplication::setStyle(new InstrumentStyle);
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(instrumentFont());
    // the touch screen shows no pointer
    QApplication::setOverrideCursor(QCursor(Qt::BlankCursor));
    new LookWatcher(app);
}
