#include "measure/testscreen.h"

#include <QProgressDialog>
#include <QPushButton>
#include <cstring>

QString progressStyle(const char* colour)
{
    return QString("QProgressBar:horizontal {border: 1px solid gray;border-radius: "
                   "3px;background: white;padding: 1px;text-align: center;}"
                   "QProgressBar::chunk:horizontal {background: qlineargradient(x1: 0, y1: "
                   "0.5, x2: 1, y2: 0.5, stop: 0 %1, stop: 1 white);}")
        .arg(QString::fromLatin1(colour));
}

const char* supplyPicture(bool adapter, int level)
{
    static const char* const battery[] = {":/icon/vbattery-full.png", ":/icon/vbattery-75.png",
                                          ":/icon/vbattery-50.png",   ":/icon/vbattery-25.png",
                                          ":/icon/vbattery-15.png",   ":/icon/vbattery-alert.png",
                                          ":/icon/vbattery-empty.png"};
    if (adapter)
        return ":/icon/vac-adapter.png";
    if (level < 0 || level > 6)
        return nullptr;
    return battery[level];
}

QPushButton* barButton(const QString& text, const char* name, bool flat)
{
    QPushButton* button = new QPushButton(text);
    button->setObjectName(name);
    button->setFlat(flat);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    return button;
}

void copyName(char* target, const char* source)
{
    std::memset(target, 0, 256);
    if (source != nullptr)
        std::strncpy(target, source, 255);
}

void showConversion(void* context, int k)
{
    static_cast<QProgressDialog*>(context)->setValue(k);
}

void walkBar(int key, QWidget* focus, QPushButton* start, QPushButton* reference,
             QPushButton* measures, QPushButton* save, QPushButton* exit)
{
    if (key == Qt::Key_Down) {
        if (focus == start)
            reference->setFocus();
        else if (focus == reference)
            measures->setFocus();
        else if (focus == measures)
            (save->isEnabled() ? save : exit)->setFocus();
        else if (focus == save)
            exit->setFocus();
        else if (focus == exit)
            start->setFocus();
    } else if (key == Qt::Key_Up) {
        if (focus == start)
            exit->setFocus();
        else if (focus == exit)
            (save->isEnabled() ? save : measures)->setFocus();
        else if (focus == save)
            measures->setFocus();
        else if (focus == measures)
            reference->setFocus();
        else if (focus == reference)
            start->setFocus();
    }
}
