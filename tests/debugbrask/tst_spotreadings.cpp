// The spot readings of the service menu on the simulated board: current and
// voltage on either range, the heat sink, and every failure box.
#include "debugbrask/dialogcurrmean.h"
#include "debugbrask/dialogtemphsink.h"
#include "debugbrask/dialogvoltmean.h"
#include "measure/panelfixture.h"
#include "platform/clock.h"
#include "servicefixture.h"
#include "shell/language.h"
#include "support/screenshot.h"

#include <QComboBox>
#include <QTranslator>
#include <cmath>

using service::child;
using service::label;
using service::touch;

class TestSpotReadings : public QObject
{
    Q_OBJECT

    static void chooseRange(QWidget* screen, int index)
    {
        child<QComboBox>(screen, "Range")->setCurrentIndex(index);
    }

    static double number(const QString& text, const char* unit)
    {
        QString t = text;
        return t.remove(QString(" ") + unit).toDouble();
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void currentScreenOpensWithoutAReading()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(sim.command("board log clear"));
        DialogCurrMean screen(nullptr);
        QCOMPARE(screen.objectName(), QString("Curr Mean"));
        QCOMPARE(label(&screen, "Hex"), QString("---- (hex)"));
        QCOMPARE(label(&screen, "Dec"), QString("---- (dec)"));
        QCOMPARE(label(&screen, "Value"), QString("---- (A)"));
        QComboBox* range = child<QComboBox>(&screen, "Range");
        QCOMPARE(range->count(), 2);
        QCOMPARE(range->itemText(0), QString("0 = 10A"));
        QCOMPARE(range->itemText(1), QString("1 = 20A"));
        QVERIFY(sim.boardCommands().isEmpty());
    }

    // Each range with its own calibration; different offsets on the two
    // ranges, the same in the simulated board, so a wrong pair shows.
    void currentOnRange1UsesTheHighCalibrationAndRange0TheLow_data()
    {
        QTest::addColumn<int>("range");
        QTest::newRow("range 0, 10 A") << 0;
        QTest::newRow("range 1, 20 A") << 1;
    }
    void currentOnRange1UsesTheHighCalibrationAndRange0TheLow()
    {
        QFETCH(int, range);
        TestRoot root(0.1);
        SimInstrument sim(root);
        _configParam c = service::configure(root, [](_configParam& c) {
            c.adci0offset = 15;
            c.adci1offset = 40;
        });
        QVERIFY(service::world(sim));
        QVERIFY(sim.command("set cal adci0offset 15"));
        QVERIFY(sim.command("set cal adci1offset 40"));
        QVERIFY(sim.command("board log clear"));
        DialogCurrMean screen(nullptr);
        screen.show();
        chooseRange(&screen, range);
        touch(&screen, "Esegui");
        QCOMPARE(sim.boardCommands(), QStringList{QString("curr_mean %1").arg(range)});
        int count = label(&screen, "Dec").toInt();
        QCOMPARE(label(&screen, "Hex"), QString("0x%1").arg(count, 0, 16));
        float gain = range == 1 ? c.adci1 : c.adci0;
        int offset = range == 1 ? c.adci1offset : c.adci0offset;
        QCOMPARE(label(&screen, "Value"),
                 QString("%1 A").arg(double(float(count - offset) * gain), 0, 'g'));
        const double isc = sim.field("pv figures", "isc").toDouble();
        QVERIFY2(std::fabs(number(label(&screen, "Value"), "A") - isc) <= gain,
                 qPrintable(label(&screen, "Value")));
        QCOMPARE(label(&screen, "Status"), QString());
        QVERIFY(child<QPushButton>(&screen, "Esegui")->isEnabled());
        QVERIFY(child<QPushButton>(&screen, "exit")->isEnabled());
    }
    void voltageOnRange1UsesTheHighCalibrationAndRange0TheLow_data()
    {
        QTest::addColumn<int>("range");
        QTest::newRow("range 0, 500 V") << 0;
        QTest::newRow("range 1, 1000 V") << 1;
    }
    void voltageOnRange1UsesTheHighCalibrationAndRange0TheLow()
    {
        QFETCH(int, range);
        TestRoot root(0.1);
        SimInstrument sim(root);
        _configParam c = service::configure(root);
        QVERIFY(service::world(sim));
        QVERIFY(sim.command("board log clear"));
        DialogVoltMean screen(nullptr);
        screen.show();
        QCOMPARE(screen.objectName(), QString("Volt Mean"));
        QCOMPARE(child<QComboBox>(&screen, "Range")->itemText(1), QString("1 = 1000V"));
        QCOMPARE(label(&screen, "Value"), QString("---- (V)"));
        chooseRange(&screen, range);
        touch(&screen, "Esegui");
        QCOMPARE(sim.boardCommands(), QStringList{QString("volt_mean %1").arg(range)});
        int count = label(&screen, "Dec").toInt();
        float gain = range == 1 ? c.adcv1 : c.adcv0;
        float offset = range == 1 ? c.adcv1offset : c.adcv0offset;
        QCOMPARE(label(&screen, "Value"),
                 QString("%1 V").arg(double((float(count) - offset) * gain), 0, 'g'));
        const double voc = sim.field("pv figures", "voc").toDouble();
        QVERIFY2(std::fabs(number(label(&screen, "Value"), "V") - voc) <= gain,
                 qPrintable(label(&screen, "Value")));
        service::saveScreenshotOf(&screen, "service_volt_mean");
    }
    void countBelowTheOffsetShowsANegativeValue()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root, [](_configParam& c) { c.adci0offset = 100; });
        QVERIFY(sim.forceBoardReply("curr_mean 0\r5\rERROR 0\r"));
        DialogCurrMean screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QCOMPARE(label(&screen, "Hex"), QString("0x5"));
        QCOMPARE(label(&screen, "Dec"), QString("5"));
        QCOMPARE(label(&screen, "Value"), QString("%1 A").arg(double(-95 * 0.0032f), 0, 'g'));
        QVERIFY(label(&screen, "Value").startsWith("-0.304"));
    }
    void voltageCountBelowTheOffsetShowsANegativeValue()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(sim.forceBoardReply("volt_mean 1\r0\rERROR 0\r"));
        DialogVoltMean screen(nullptr);
        screen.show();
        chooseRange(&screen, 1);
        touch(&screen, "Esegui");
        QCOMPARE(label(&screen, "Dec"), QString("0"));
        QCOMPARE(label(&screen, "Value"),
                 QString("%1 V").arg(double(-0.147721f * 0.282624f), 0, 'g'));
    }
    void boardErrorGivesItsBoxAndErrOnEveryLabel()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(service::world(sim));
        QVERIFY(sim.command("board status 4"));
        ModalDriver driver;
        driver.answerBox();
        DialogCurrMean screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, QString("Eccessive Current."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
        for (const char* name : {"Hex", "Dec", "Value"})
            QCOMPARE(label(&screen, name), QString("Err."));
        // the screen stays usable
        QVERIFY(sim.command("board status auto"));
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(label(&screen, "Value").endsWith(" A"));
    }
    void everyBoardConditionHasItsServiceText_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("3") << 3 << "Excessive Voltage.";
        QTest::newRow("4") << 4 << "Eccessive Current.";
        QTest::newRow("5") << 5 << "Eccessive Power.";
        QTest::newRow("6") << 6 << "Eccessive Energy.";
        QTest::newRow("7") << 7 << "Reverse Polarity.";
        QTest::newRow("8") << 8 << "Negative is Floating.";
        QTest::newRow("9") << 9 << "Tensione Bassa.";
        QTest::newRow("10") << 10 << "Corrente Bassa.";
        QTest::newRow("11 has no text") << 11 << "";
        QTest::newRow("1 has no text") << 1 << "";
    }
    void everyBoardConditionHasItsServiceText()
    {
        QFETCH(int, status);
        QFETCH(QString, text);
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(service::world(sim));
        QVERIFY(sim.command(QByteArray("board status ") + QByteArray::number(status)));
        ModalDriver driver;
        driver.answerBox();
        DialogVoltMean screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, text);
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
        QCOMPARE(label(&screen, "Value"), QString("Err."));
    }
    void noReplyGivesTheCriticalBox()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(sim.removeNode("/dev/ttyS1"));
        ModalDriver driver;
        driver.answerBox();
        DialogCurrMean screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, QString("Problem on access Serial Port."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
        QCOMPARE(label(&screen, "Dec"), QString("Err."));
    }
    // The service screens are not translated: with language 1 a failure of
    // the board shows the service screen's source text, where the module
    // screen shows its English one.
    void withLanguage1AServiceScreenShowsItsSourceText()
    {
        TestRoot root(0.1);
        QVERIFY(root.installCatalogues());
        SimInstrument sim(root);
        panelfixture::configure(root, [](_configParam& c) { c.lang = LANG_EN; });
        QVERIFY(panelfixture::world(sim, 850, 45));
        if (qTranslator == nullptr)
            qTranslator = new QTranslator(qApp);
        QVERIFY(loadTranslator(qTranslator, LANG_EN));
        QCoreApplication::installTranslator(qTranslator);
        QVERIFY(sim.command("board status 4"));
        ModalDriver driver;
        driver.answerBox();
        DialogCurrMean screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        loadTranslator(qTranslator, LANG_IT);
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].text, QString("Eccessive Current."));
        QCOMPARE(driver.boxes[1].text, QString("Excessive current value."));
    }

    // ---- Heat sink
    void heatSinkIsReadAtOnceAndEverySecond()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(sim.command("board hsink 31.5 hold"));
        Clock::clearWaits();
        DialogTempHSink screen(nullptr);
        QCOMPARE(label(&screen, "Reading"), QString("31.5"));
        QCOMPARE(screen.windowTitle(), QString("Temp HSink"));
        screen.show();
        QVERIFY(sim.command("board hsink 42.25 hold"));
        QTRY_COMPARE(label(&screen, "Reading"), QString("42.25"));
        bool second = false;
        for (const Clock::Wait& w : Clock::waits())
            second = second || (w.kind == Clock::Timer && w.micros == 1000000);
        QVERIFY(second);
        service::saveScreenshotOf(&screen, "service_temp_hsink");
        touch(&screen, "exit");
        QCOMPARE(screen.result(), int(QDialog::Rejected));
    }
    void deadBoardUnderTheHeatSinkScreenGivesABoxAtEveryTick()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(sim.removeNode("/dev/ttyS1"));
        ModalDriver driver;
        for (int i = 0; i < 40; i++)
            driver.answerBox();
        DialogTempHSink* screen = new DialogTempHSink(nullptr);
        // the reading of the constructor
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(label(screen, "Reading"), QString("Errore"));
        screen->show();
        QTRY_VERIFY(driver.boxes.size() >= 4);
        delete screen;
        for (const ModalDriver::Box& b : driver.boxes) {
            QCOMPARE(b.text, QString("Problem on access Serial Port."));
            QCOMPARE(b.icon, QMessageBox::Critical);
        }
    }
    void keysRunTheReadingAndLeave()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        service::configure(root);
        QVERIFY(service::world(sim));
        DialogCurrMean screen(nullptr);
        screen.show();
        QVERIFY(child<QPushButton>(&screen, "Esegui")->hasFocus() ||
                screen.focusWidget() == child<QPushButton>(&screen, "Esegui"));
        QVERIFY(sim.command("key tap return"));
        QTRY_VERIFY(label(&screen, "Value").endsWith(" A"));
        QVERIFY(sim.command("key tap down"));
        QTRY_VERIFY(screen.focusWidget() == child<QPushButton>(&screen, "exit"));
        QVERIFY(sim.command("key tap return"));
        QTRY_VERIFY(!screen.isVisible());
        QCOMPARE(screen.result(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(TestSpotReadings)
#include "tst_spotreadings.moc"
