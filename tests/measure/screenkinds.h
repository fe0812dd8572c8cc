#ifndef KRM_TESTS_SCREENKINDS_H
#define KRM_TESTS_SCREENKINDS_H

#include "measure/panelIV.h"
#include "measure/panelfixture.h"
#include "measure/stringIV.h"
#include "support/modaldriver.h"

#include <QLineEdit>
#include <QtTest>

// What tells the module screen and the string screen apart for a test that
// runs one body on both: the label of the ramp's progress dialog, the entry of
// the measures menu, and the count of modules that the string screen asks at
// every start, before the first reading.
template <class S> struct Kind;

template <> struct Kind<PanelIV> {
    static constexpr const char* name = "panel";
    static constexpr const char* progress = "Misura Modulo...";
    static constexpr const char* dataEntry = "Modulo";
    // the measures menu of a screen without a curve
    static QStringList menu() { return {"Rs", "-", "Ambiente"}; }
    static void count(ModalDriver&) {}
};

template <> struct Kind<StringIV> {
    static constexpr const char* name = "string";
    static constexpr const char* progress = "Misura Stringa...";
    static constexpr const char* dataEntry = "Stringa";
    static QStringList menu() { return {"Ambiente"}; }
    // the count dialog as it stands, confirmed with "Applica"
    static void count(ModalDriver& driver)
    {
        driver.onNext([](QWidget* w) { panelfixture::touch(w, "Applica"); });
    }
};

namespace screenkinds
{

// The count dialog: the number typed on the key pad, then "Applica".
inline void enterCount(ModalDriver& driver, int number)
{
    driver.onNext([number](QWidget* w) {
        ModalDriver pad;
        pad.typeOnKeyboard(QString::number(number));
        QTest::mouseClick(panelfixture::child<QLineEdit>(w, "number"), Qt::LeftButton);
        panelfixture::touch(w, "Applica");
    });
}

// The count dialog left with "Annulla".
inline void rejectCount(ModalDriver& driver)
{
    driver.onNext([](QWidget* w) { panelfixture::touch(w, "Annulla"); });
}

// Between two ramps on one simulator: the heat sink back to the ambient, so
// that the next ramp starts as cool as the first.
inline bool coolHeatSink(const SimInstrument& sim)
{
    const QByteArray ambient = sim.field("get", "tambient");
    return !ambient.isEmpty() && sim.command("board hsink " + ambient);
}

inline void screens()
{
    QTest::addColumn<QString>("screen");
    QTest::newRow("PanelIV") << QString("PanelIV");
    QTest::newRow("StringIV") << QString("StringIV");
}

// One string of 4 measured and saved on the string screen as the operator
// does it: the count on the pad, "Start", the reference module chosen once
// with "Confronto" (no ageing allowance, then or after), "Salva" with the
// time and the comment typed on the keyboard. True when "Misura Salvata." was
// the one box and every window was met.
inline bool measureOnTheStringScreen(StringIV& screen, const SimInstrument& sim, bool first,
                                     const QString& time, const QString& comment)
{
    ModalDriver driver;
    coolHeatSink(sim);
    enterCount(driver, 4);
    if (!first)
        driver.onNext([](QWidget* w) { panelfixture::touch(w, "Non Applicare"); });
    panelfixture::touch(&screen, "Start");
    if (first) {
        driver.onNext(
            [](QWidget* r) { panelfixture::chooseInReferenceDialog(r, "Simul", "SIM 250"); });
        driver.onNext([](QWidget* w) { panelfixture::touch(w, "Non Applicare"); });
        panelfixture::touch(&screen, "Confronto");
    }
    driver.onNext([time, comment](QWidget* w) {
        ModalDriver keys;
        keys.typeOnKeyboard(time);
        QTest::mouseClick(panelfixture::child<QLineEdit>(w, "Ora"), Qt::LeftButton);
        keys.typeOnKeyboard(comment);
        QTest::mouseClick(panelfixture::child<QLineEdit>(w, "Commento"), Qt::LeftButton);
        panelfixture::touch(w, "Salva");
    });
    driver.answerBox();
    panelfixture::touch(&screen, "Salva");
    return driver.pending() == 0 && driver.boxes.size() == 1 &&
           driver.boxes[0].text == "Misura Salvata.";
}

} // namespace screenkinds

// Runs the body template f<PanelIV> or f<StringIV> by the row's "screen".
#define ON_THE_SCREEN(f)                                                                           \
    do {                                                                                           \
        QFETCH(QString, screen);                                                                   \
        if (screen == "StringIV")                                                                  \
            f<StringIV>();                                                                         \
        else                                                                                       \
            f<PanelIV>();                                                                          \
    } while (0)

#endif
