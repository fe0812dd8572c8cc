#include "data/datasetting.h"
#include "data/freespace.h"
#include "measure/dialogcollegamenti.h"
#include "measure/dialogdatielettrici.h"
#include "measure/dialogdegrado.h"
#include "measure/dialoginfo.h"
#include "measure/dialognumber.h"
#include "measure/dialogshutdown.h"
#include "shell/orvia.h"
#include "support/fivelanguages.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/dialogbright.h"
#include "toolkit/dialogsystem.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "toolkit/plotter.h"

#include <QtTest>
#include <cmath>
#include <memory>

// Renders the menu, the toolkit, the free-space gauge and the side dialogs of
// a test in each of the five languages into <build>/screenshots, at the
// instrument's 1024 x 600 and 72 dots per inch, with its application font,
// and finds every text of them legible (textfit.h).
class TestScreenshots : public QObject
{
    Q_OBJECT

    QStringList faults;
    void shoot(QWidget* w, const QString& name, int lang)
    {
        faults += shootInLanguage(w, name, lang);
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void operatorSeesWhereTheyAre_menuToolkitAndSideDialogsFitInFiveLanguages_data()
    {
        languageRows();
    }
    void operatorSeesWhereTheyAre_menuToolkitAndSideDialogsFitInFiveLanguages()
    {
        QFETCH(int, lang);
        TestRoot root(0.001);
        SimInstrument sim(root);
        ShownLanguage shown(lang);
        QVERIFY(shown.loaded());
        faults.clear();

        {
            Orvia menu;
            menu.resize(1024, 600);
            shoot(&menu, "menu", lang);
        }
        {
            QWidget screen;
            screen.resize(1024, 60);
            InfoBar* bar = new InfoBar(&screen);
            bar->setTitle("KRM 510");
            bar->setUsb(true);
            bar->resize(1024, 60);
            shoot(&screen, "statusbar", lang);
        }
        {
            QWidget screen;
            screen.resize(1024, 600);
            Plotter& plot = *new Plotter(&screen, "Panel IV", &screen);
            plot.setGeometry(0, 0, 1024, 536);
            PlotSettings settings;
            settings.minX = 0;
            settings.maxX = 40;
            settings.minY = 0;
            settings.maxY = 10;
            plot.setPlotSettings(settings);
            QVector<QPointF> measured, translated;
            for (int i = 0; i <= 100; i++) {
                double v = 37.0 * i / 100;
                measured << QPointF(v, 8.0 * (1 - std::exp((v - 37.0) / 2.2)));
                double vs = 38.5 * i / 100;
                translated << QPointF(vs, 8.6 * (1 - std::exp((vs - 38.5) / 2.2)));
            }
            plot.setCurveData(0, measured);
            plot.setCurveData(1, translated);
            QVector<QPointF> power;
            for (const QPointF& p : measured)
                power << QPointF(p.x(), p.x() * p.y() / 25.0);
            plot.setCurveData(2, power);
            plot.setTitle("ABC 250");
            plot.pmaxLabel = 245.6f;
            plot.testResult = 1;
            plot.setViewPassTest(true);
            shoot(&screen, "plotter", lang);
        }
        {
            EmbKeyboard keyboard(nullptr, "Commento", "Tetto est");
            shoot(&keyboard, "keyboard", lang);
            keyboard.toKeyPad();
            shoot(&keyboard, "keypad", lang);
        }
        {
            DialogCollegamenti wiring(nullptr, MEA_PANEL);
            shoot(&wiring, "wiring-module", lang);
            DialogCollegamenti strings(nullptr, MEA_STRING);
            shoot(&strings, "wiring-string", lang);
        }
        {
            DialogDatiElettrici data(nullptr, true, MEA_PANEL, 212.4f, 30.1f, 7.06f, 37.2f, 7.61f,
                                     248.9f, 30.9f, 8.05f, 38.1f, 8.71f, -0.44f);
            shoot(&data, "electrical-data", lang);
        }
        {
            DialogDegrado ageing(nullptr, MEA_PANEL);
            shoot(&ageing, "ageing", lang);
        }
        {
            DialogInfo info(nullptr, DLG_PANEL, "Tetto est, fila 2");
            shoot(&info, "save", lang);
        }
        {
            DialogNumber number(nullptr, 12);
            shoot(&number, "modules", lang);
        }
        {
            QVERIFY(sim.setAdapter(true));
            DialogShutDown battery(nullptr);
            shoot(&battery, "shutdown", lang);
        }
        {
            _configParam config;
            defaultConfig(&config);
            config.remote = LINK_BLUETOOTH;
            DialogSystem settings(&config, nullptr);
            shoot(&settings, "settings", lang);
        }
        // the longest boxes of the module screen, as its failures show them
        const char* const boxes[][3] = {
            {"box-power-device", "Power Device", "Problema di connessione al Power Device."},
            {"box-overheated", "Power Device",
             "Attendere raffreddamento...\nStrumento surriscaldato.\nAttendere prima di "
             "riprendere i test."},
            {"box-stc", "Delta Irraggiamento Elevato", "Valori STC non disponibili.\nRipetere."},
        };
        for (const auto& box : boxes) {
            std::unique_ptr<QMessageBox> shown(newMessageBox(
                nullptr, QMessageBox::Warning, QCoreApplication::translate("PanelIV", box[1]),
                QCoreApplication::translate("PanelIV", box[2])));
            shoot(shown.get(), box[0], lang);
        }
        {
            DialogBrightness brightness(nullptr, 5);
            shoot(&brightness, "brightness", lang);
        }
        {
            DialogFreeSpace space(nullptr, 87);
            shoot(&space, "free-space", lang);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestScreenshots)
#include "tst_screenshots.moc"
