// What an operator in the sun sees on every service screen, in each of the
// five languages: no text below 11 pixels, none that does not fit its widget,
// and a focus mark that the keys move.
#include "debugbrask/dialogbraskdebug.h"
#include "debugbrask/dialogcurrmean.h"
#include "debugbrask/dialoginfosave.h"
#include "debugbrask/dialogmeabrask.h"
#include "debugbrask/dialogmeabraskdebug.h"
#include "debugbrask/dialogsweepbrask.h"
#include "debugbrask/dialogtemphsink.h"
#include "debugbrask/dialogviewdatameabrask.h"
#include "debugbrask/dialogviewdatameabraskdebug.h"
#include "debugbrask/dialogviewsweepbrask.h"
#include "debugbrask/dialogviewzkilldatabrask.h"
#include "debugbrask/dialogviewztstdatabrask.h"
#include "debugbrask/dialogvoltmean.h"
#include "debugbrask/dialogzkillbrask.h"
#include "debugbrask/dialogztstbrask.h"
#include "servicefixture.h"
#include "support/fivelanguages.h"

#include <memory>

using namespace service;

namespace
{

// Counts as wide as the board's converters give them, signs included, so
// that the rows of a view are as long as a real run makes them.
template <size_t N> void fillWide(int (&counts)[N], int sign)
{
    for (size_t k = 0; k < N; ++k)
        counts[k] = sign * (40950 - int(k));
}

} // namespace

class TestServiceLook : public QObject
{
    Q_OBJECT

    // The screen shown at the instrument's size in the row's language: its
    // faults, named after it; its picture service-<name>-<language>.png.
    static QStringList faultsOf(QWidget* screen, const char* name)
    {
        QFETCH(int, lang);
        QString picture = QString("service-") + name;
        picture = picture.toLower().replace(' ', '-');
        const QStringList faults = shootInLanguage(screen, picture, lang);
        screen->hide();
        return faults;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // The service screens show their Italian source text in every language,
    // and fit in each.
    void operatorReadsEveryServiceScreenInTheSun_data() { languageRows(); }
    void operatorReadsEveryServiceScreenInTheSun()
    {
        QFETCH(int, lang);
        ShownLanguage shown(lang);
        QVERIFY(shown.loaded());
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QStringList faults;
        faults << faultsOf(std::make_unique<DialogBraskDebug>(nullptr).get(), "menu");
        faults << faultsOf(std::make_unique<DialogVoltMean>(nullptr).get(), "Volt_mean");
        faults << faultsOf(std::make_unique<DialogCurrMean>(nullptr).get(), "Curr_mean");
        faults << faultsOf(std::make_unique<DialogTempHSink>(nullptr).get(), "Temp_hsink");
        faults << faultsOf(std::make_unique<DialogMeaBrask>(nullptr).get(), "Mea_brask User");
        faults << faultsOf(std::make_unique<DialogMeaBraskDebug>(nullptr).get(), "Mea_brask Debug");
        faults << faultsOf(std::make_unique<DialogZTstBrask>(nullptr).get(), "Z_tst_brask");
        faults << faultsOf(std::make_unique<DialogZKillBrask>(nullptr).get(), "Z_kill_brask");
        faults << faultsOf(std::make_unique<DialogSweepBrask>(nullptr).get(), "K_sweep_brask");
        faults << faultsOf(std::make_unique<DialogInfoSave>(nullptr, "comment").get(), "save form");

        _info_last info = {1, 2, 30, 40, 255, 40950, 40950, 255, 40950};
        auto ramp = std::make_unique<_raw_ramp_iv>();
        fillWide(ramp->corrente, -1);
        fillWide(ramp->tensione, 1);
        faults << faultsOf(
            std::make_unique<DialogViewDataMeaBrask>(nullptr, ramp.get(), &info, -12.5f, 85.25f)
                .get(),
            "view Mea_brask User");
        auto gates = std::make_unique<_raw_ramp_vgate>();
        fillWide(gates->corrente, -1);
        fillWide(gates->tensione, 1);
        fillWide(gates->vgate1, -1);
        fillWide(gates->vgate2, -1);
        faults << faultsOf(std::make_unique<DialogViewDataMeaBraskDebug>(nullptr, gates.get(),
                                                                         &info, -12.5f, 85.25f)
                               .get(),
                           "view Mea_brask Debug");
        auto tst = std::make_unique<_tstBrask>();
        fillWide(tst->corrente, -1);
        fillWide(tst->tensione, 1);
        fillWide(tst->vGateImp, -1);
        fillWide(tst->vGateEff, -1);
        faults << faultsOf(
            std::make_unique<DialogViewZTstDataBrask>(nullptr, tst.get(), 4095, -12.5f, 85.25f)
                .get(),
            "view Z_tst_brask");
        faults << faultsOf(
            std::make_unique<DialogViewZKillDataBrask>(nullptr, tst.get(), 4095, -12.5f, 85.25f)
                .get(),
            "view Z_kill_brask");
        faults << faultsOf(
            std::make_unique<DialogViewSweepBrask>(nullptr, tst.get(), 4095, -12.5f, 85.25f).get(),
            "view K_sweep_brask");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void operatorSeesWhereTheyAre_theKeysMoveAVisibleMarkOnTheMenu()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        DialogBraskDebug menu(nullptr);
        menu.resize(1024, 600);
        menu.show();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QTRY_VERIFY(showsPowerSupply(&menu));
        QWidget* first = menu.findChild<QWidget*>("Volt_mean");
        QVERIFY(first != nullptr);
        const QStringList faults = focusMarkFaultsByKey(&menu, sim, first, "down");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestServiceLook)
#include "tst_servicelook.moc"
