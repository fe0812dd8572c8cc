// Every screen of the measures in each of the five languages, on the
// instrument's screen: the module and string screens as they open, the
// environment, the module screen with a measure and its verdict, the series
// resistance result, the viewer of a saved module and
// string measure with its figures and verdict, and the reference choice.
// Each is shot into build/screenshots and every text of it fits.
#include "measure/dialogambiente.h"
#include "measure/dialogrs.h"
#include "measure/dialogviewrs.h"
#include "measure/panelIV.h"
#include "measure/refpanel.h"
#include "measure/stringIV.h"
#include "measure/viewfixture.h"
#include "measure/viewmeasures.h"
#include "support/fivelanguages.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"

#include <QListWidget>
#include <memory>

using namespace panelfixture;
using namespace viewfixture;

class TestMeasureFit : public QObject
{
    Q_OBJECT

    // The viewer of a saved measure, its node freed with it.
    class Viewer : public ViewMeasures
    {
    public:
        Viewer(_listMeasures* entry, _meaType type)
            : ViewMeasures(nullptr, entry, type), entry(entry)
        {
        }
        ~Viewer() override { closeListMeasures(entry); }

    private:
        _listMeasures* entry;
    };

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void operatorSeesWhereTheyAre_measureScreensFitInFiveLanguages_data() { languageRows(); }
    void operatorSeesWhereTheyAre_measureScreensFitInFiveLanguages()
    {
        QFETCH(int, lang);
        ShownLanguage shown(lang);
        QVERIFY(shown.loaded());
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 900, 40));
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(
            addModule("Solar Power Italia", "spi", "SPI 250 Mono", "spi_250", simulatedSheet()));
        QVERIFY(
            addModule("Solar Power Italia", "spi", "SPI 300 Poly", "spi_300", simulatedSheet()));
        const QByteArray module = saveSample(MEA_PANEL);
        const QByteArray string = saveSample(MEA_STRING, [](_measure& m) {
            m.mdata = const_cast<char*>("2026/05/05");
            m.mcom = const_cast<char*>("Fila 2, capannone nord");
        });
        QVERIFY(!module.isEmpty() && !string.isEmpty());

        const QList<ScreenMaker> screens = {
            {"measure-module", [] { return std::make_unique<PanelIV>(nullptr); }},
            {"measure-module-verdict",
             [] {
                 // measured, then judged against the reference, no ageing
                 auto panel = std::make_unique<PanelIV>(nullptr);
                 panel->resize(1024, 600);
                 panel->show();
                 ModalDriver driver;
                 touch(panel.get(), "Start");
                 driver.onNext([](QWidget* w) { chooseInReferenceDialog(w, "Simul", "SIM 250"); });
                 driver.onNext([](QWidget* w) { touch(w, "Non Applicare"); });
                 touch(panel.get(), "Confronto");
                 if (driver.pending() != 0 || !driver.boxes.isEmpty())
                     return std::unique_ptr<PanelIV>();
                 return panel;
             }},
            {"measure-string", [] { return std::make_unique<StringIV>(nullptr); }},
            {"measure-environment",
             [] {
                 return std::make_unique<DialogAmbiente>(nullptr, false, PROBE_MODULE, LINK_LOCAL,
                                                         41.26f, 812.5f, 0, 0, true);
             }},
            {"measure-rs", [] { return std::make_unique<DialogRs>(nullptr); }},
            {"measure-rs-result",
             [] { return std::make_unique<DialogViewRs>(nullptr, 0.456f, 900.04f, 612.7f); }},
            {"measure-viewer-module",
             [module] { return std::make_unique<Viewer>(node(module, MEA_PANEL), MEA_PANEL); }},
            {"measure-viewer-string",
             [string] { return std::make_unique<Viewer>(node(string, MEA_STRING), MEA_STRING); }},
            {"measure-reference-choice",
             [] {
                 // shown on the whole screen before a model is touched, as
                 // the operator finds it
                 auto choice = std::make_unique<ReferencePanel>(nullptr);
                 choice->resize(1024, 600);
                 choice->show();
                 QListWidget* brands = choice->findChild<QListWidget*>("Marca");
                 QListWidget* models = choice->findChild<QListWidget*>("Modello");
                 if (!brands || !models || !QTest::qWaitForWindowExposed(choice.get()))
                     return std::unique_ptr<ReferencePanel>();
                 const QList<QListWidgetItem*> brand =
                     brands->findItems("Solar Power Italia", Qt::MatchExactly);
                 if (brand.isEmpty())
                     return std::unique_ptr<ReferencePanel>();
                 brands->setCurrentItem(brand[0]);
                 if (!QTest::qWaitFor([models] { return models->count() == 2; }, 2000))
                     return std::unique_ptr<ReferencePanel>();
                 models->setCurrentRow(1);
                 return choice;
             }},
        };
        const QStringList faults = shootAllInLanguage(screens, lang);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestMeasureFit)
#include "tst_measurefit.moc"
