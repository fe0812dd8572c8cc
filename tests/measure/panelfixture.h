#ifndef KRM_TESTS_PANELFIXTURE_H
#define KRM_TESTS_PANELFIXTURE_H

#include "data/datapanel.h"
#include "data/datasetting.h"
#include "device/ad7795.h"
#include "measure/panelIV.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/plotter.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <cstring>
#include <functional>

// What the module test screens' tests share: the instrument's settings, the
// converter set up as the main menu does it, a module database, and the
// operator's ways through the screens.
namespace panelfixture {

// Writes /etc/krm510.conf from the defaults with the change applied, makes the
// data directories and sets up the converter as the menu does at start-up.
inline _configParam configure(const TestRoot& root,
                              const std::function<void(_configParam&)>& change = {})
{
    _configParam c;
    defaultConfig(&c);
    if (change)
        change(c);
    saveConfigFile(c);
    root.mkdir("/krm510data/datapanel");
    root.mkdir("/krm510data/datameapanel");
    root.mkdir("/krm510data/datameastring");
    setGforPyrano(c.cpyar);
    setKforPyrano(c.kpyra);
    init_ad7795();
    setGforPyrano(c.cpyar);
    return c;
}

// The data sheet the simulated module is built from by default, as a
// reference module of the database with a tolerance of -tol/+tol percent.
inline _panelFeature simulatedSheet(float tol = 3.0f)
{
    _panelFeature f;
    std::memset(&f, 0, sizeof f);
    f.pmax = 250.0f;
    f.impp = 8.20f;
    f.vmpp = 30.50f;
    f.isc = 8.70f;
    f.voc = 37.50f;
    f.type = 1;
    f.noct = 45.0f;
    f.kisc = 0.05f;
    f.kvoc = -0.32f;
    f.kpmax = -0.42f;
    f.tollp = tol;
    f.tollm = tol;
    return f;
}

inline bool addModule(const char* brand, const char* brandDir, const char* model,
                      const char* file, const _panelFeature& f)
{
    _panel p;
    p.brandName = const_cast<char*>(brand);
    p.brandDir = const_cast<char*>(brandDir);
    p.modelName = const_cast<char*>(model);
    p.modelFile = const_cast<char*>(file);
    p.feature = f;
    return saveNewDataPanel(&p) >= 0;
}

// The simulated world of a module at irradiance g and cell temperature t, the
// module probe on its back, the charger plugged in.
inline bool world(const SimInstrument& sim, double g, double t)
{
    return sim.setAdapter(true) && sim.setIrradiance(g) && sim.setCellTemperature(t) &&
           sim.command("set tmodule cell") && sim.command("fault none");
}

template <typename T> T* child(QWidget* parent, const char* name)
{
    T* w = parent->findChild<T*>(name);
    if (w == nullptr)
        qWarning("no child %s", name);
    return w;
}

inline void touch(QWidget* parent, const char* button)
{
    QTest::mouseClick(child<QPushButton>(parent, button), Qt::LeftButton);
}

// The entries of a menu: "-" for a separator, else the text.
inline QStringList entries(QMenu* menu)
{
    QStringList list;
    for (QAction* a : menu->actions())
        list << (a->isSeparator() ? QString("-") : a->text());
    return list;
}

inline QMenu* measuresMenu(QWidget* panel)
{
    return child<QMenu>(panel, "MenuMisure");
}

// Touches an entry of the measures menu ("Modulo") or of its power menu
// ("Potenza OPC", "Potenza STC"), as a finger on the opened menu would.
inline void touchMenu(QWidget* panel, const QString& text)
{
    QMenu* menu = measuresMenu(panel);
    QList<QAction*> all = menu->actions();
    if (QMenu* power = panel->findChild<QMenu*>("Potenza"))
        all += power->actions();
    for (QAction* a : all)
        if (a->text() == text && a->isEnabled() && a->isVisible()) {
            a->trigger();
            return;
        }
    qWarning("no enabled entry %s", qPrintable(text));
}

// Runs an action once, in the first event loop turn in which a progress
// dialog with the given label is on the screen: the ramp's "Misura
// Modulo..." shows after the first reading and before the ramp.
class ProgressWatch : public QObject
{
public:
    ProgressWatch(const QString& label, std::function<void()> action)
        : label(label), action(std::move(action))
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                QProgressDialog* p = qobject_cast<QProgressDialog*>(w);
                if (p != nullptr && p->isVisible() && p->labelText() == this->label && !done) {
                    done = true;
                    timer.stop();
                    this->action();
                    return;
                }
            }
        });
        timer.start(0);
    }
    bool done = false;

private:
    QString label;
    std::function<void()> action;
    QTimer timer;
};

// A hardware key pressed and let go as soon as the screen's key poller has
// sent it to the window target: the poll sends one key press per tick while
// a key is down. Key pollers of other windows may see it too, as on the
// instrument.
class KeyRelease : public QObject
{
public:
    KeyRelease(const SimInstrument& sim, const char* key, QWidget* target)
        : sim(sim), key(key), target(target)
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* obj, QEvent* event) override
    {
        if (!seen && event->type() == QEvent::KeyPress && obj->inherits("GpioKeyboard") &&
            static_cast<QWidget*>(obj)->window() == target) {
            seen = true;
            sim.releaseKey(key);
        }
        return false;
    }
    bool seen = false;

private:
    const SimInstrument& sim;
    const char* key;
    QWidget* target;
};

inline bool hardKey(const SimInstrument& sim, const char* key, QWidget* target)
{
    KeyRelease release(sim, key, target);
    if (!sim.pressKey(key))
        return false;
    QDeadlineTimer deadline(5000);
    while (!release.seen && !deadline.hasExpired())
        QTest::qWait(5);
    return release.seen;
}

// Chooses a module in the open reference dialog by touching its rows and
// "Conferma".
inline void chooseInReferenceDialog(QWidget* w, const QString& brand, const QString& model)
{
    QListWidget* brands = child<QListWidget>(w, "Marca");
    QListWidget* models = child<QListWidget>(w, "Modello");
    QList<QListWidgetItem*> b = brands->findItems(brand, Qt::MatchExactly);
    if (b.isEmpty()) {
        qWarning("no brand %s", qPrintable(brand));
        return;
    }
    brands->setCurrentItem(b.first());
    QList<QListWidgetItem*> m = models->findItems(model, Qt::MatchExactly);
    if (m.isEmpty()) {
        qWarning("no model %s", qPrintable(model));
        return;
    }
    models->setCurrentItem(m.first());
    touch(w, "Conferma");
}

} // namespace panelfixture

#endif
