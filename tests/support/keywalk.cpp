#include "support/keywalk.h"

#include "support/siminstrument.h"

#include <QAbstractItemView>
#include <QWidget>

bool walkTo(const SimInstrument& sim, QWidget* window, const char* key, const QString& name)
{
    for (int i = 0; i < 40; i++) {
        QWidget* focus = window->focusWidget();
        if (focus != nullptr && focus->objectName() == name)
            return true;
        if (!sim.tapKey(key))
            break;
    }
    qWarning("no focus on %s with %s", qPrintable(name), key);
    return false;
}

bool rowTo(const SimInstrument& sim, QAbstractItemView* list, const QString& text)
{
    const int rows = list->model()->rowCount(list->rootIndex());
    for (int i = 0; i <= rows; i++) {
        if (list->currentIndex().data().toString() == text)
            return true;
        if (!sim.tapKey("down"))
            break;
    }
    qWarning("no row %s", qPrintable(text));
    return false;
}
