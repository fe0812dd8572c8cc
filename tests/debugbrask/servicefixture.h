#ifndef KRM_TESTS_SERVICEFIXTURE_H
#define KRM_TESTS_SERVICEFIXTURE_H

#include "data/datasetting.h"
#include "debugbrask/debugdir.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/look.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <functional>

// What the tests of the service screens share: the instrument's settings,
// the service folder, a world for the simulated board and the operator's
// touches.
namespace service
{

inline _configParam configure(const TestRoot& root,
                              const std::function<void(_configParam&)>& change = {})
{
    _configParam c;
    defaultConfig(&c);
    if (change)
        change(c);
    saveConfigFile(c);
    root.mkdir("/krm510data/datadebug");
    return c;
}

// A module at 1000 W/m2 and 25 C on the inputs, the ambient at 20 C and the
// heat sink held at the ambient, so that every run reads the same
// temperatures and the files of a run are always the same bytes.
inline bool world(const SimInstrument& sim)
{
    return sim.setAdapter(true) && sim.setIrradiance(1000) && sim.setCellTemperature(25) &&
           sim.setAmbientTemperature(20) && sim.command("fault none") &&
           sim.command("board hsink 20 hold");
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

inline QString label(QWidget* parent, const char* name)
{
    QLabel* l = child<QLabel>(parent, name);
    return l != nullptr ? l->text() : QString("<none>");
}

// Fills the save form as the operator does: each line touched and typed on
// the keyboard, then "Salva"; the box that follows is answered. A driver
// answers no window while one of its actions runs: the form, and the
// keyboards opened from it, get drivers of their own.
inline void fillSaveForm(ModalDriver& form, ModalDriver& keys, const QString& date,
                         const QString& time, const QString& comment)
{
    form.onNext([&keys, date, time, comment](QWidget* w) {
        keys.typeOnKeyboard(date);
        QTest::mouseClick(w->findChild<QLineEdit*>("Data"), Qt::LeftButton);
        keys.typeOnKeyboard(time);
        QTest::mouseClick(w->findChild<QLineEdit*>("Ora"), Qt::LeftButton);
        keys.typeOnKeyboard(comment);
        QTest::mouseClick(w->findChild<QLineEdit*>("Commento"), Qt::LeftButton);
        QTest::mouseClick(w->findChild<QPushButton*>("Salva"), Qt::LeftButton);
    });
    form.answerBox();
}

// The file of a service run, and the golden file it must equal.
inline QByteArray serviceFile(const TestRoot& root, const char* name)
{
    return root.read((QByteArray(DIR_DATA_DEBUG "/") + name).constData());
}

inline QByteArray golden(const char* name)
{
    QFile f(QString(KRM_TEST_DATA_DIR) + "/" + name);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray("<no golden file ") + name + ">";
    return f.readAll();
}

// The screen at the instrument's size, shown and legible in the sun (no text
// below 11 pixels, none wider than its widget), drawn into build/screenshots.
inline void saveScreenshotOf(QWidget* screen, const char* name)
{
    screen->resize(1024, 600);
    if (!screen->isVisible()) {
        screen->show();
        QVERIFY(QTest::qWaitForWindowExposed(screen));
    }
    const QStringList faults = legibilityFaults(screen);
    QVERIFY2(faults.isEmpty(), qPrintable(QString(name) + ":\n" + faults.join('\n')));
    QVERIFY(!saveScreenshot(screen, name).isEmpty());
}

// True when the file equals its golden file byte for byte; otherwise the
// file is left in <build>/golden-actual/<name> to look at.
inline bool matchesGolden(const QByteArray& actual, const char* name)
{
    if (actual == golden(name))
        return true;
    QDir().mkpath(QString(KRM_BINARY_DIR) + "/golden-actual");
    QFile f(QString(KRM_BINARY_DIR) + "/golden-actual/" + name);
    if (f.open(QIODevice::WriteOnly))
        f.write(actual);
    return false;
}

} // namespace service

#endif
