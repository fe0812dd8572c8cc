#include "measure/dialogshutdown.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "support/modaldriver.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/infobar.h"

#include <QLabel>
#include <QtTest>

// Raw counts of the battery channel for each level of the gauge.
static const int batteryCount[] = {34000, 33000, 32500, 31500, 30500, 29500, 28000, 27000};

class TestInfoBar : public QObject
{
    Q_OBJECT

    static QImage picture(InfoBar& bar)
    {
        return bar.findChild<QLabel*>("power")->pixmap().toImage();
    }
    static QImage resource(const char* name) { return QPixmap(name).toImage(); }
    static void writeClockMode(TestRoot& root, int mode)
    {
        root.write("/etc/krm510.conf", QByteArray("tclock = ") + QByteArray::number(mode) + "\n");
    }

private slots:
    void titleIsShownCentred()
    {
        TestRoot root(0.01);
        InfoBar bar(nullptr);
        bar.setTitle("Archivio Moduli");
        QCOMPARE(bar.findChild<QLabel*>("title")->text(), QString("Archivio Moduli"));
        QVERIFY(bar.findChild<QLabel*>("title")->alignment() & Qt::AlignHCenter);
        QCOMPARE(bar.objectName(), QString("InfoBar"));
    }
    void startsWithTheAdapterPicture()
    {
        TestRoot root(0.01);
        InfoBar bar(nullptr);
        QCOMPARE(picture(bar), resource(":/icon/ac-adapter.png"));
    }
    void clockShowsDateAndTimeInMode0()
    {
        TestRoot root(0.01);
        writeClockMode(root, 0);
        InfoBar bar(nullptr);
        QRegularExpression form("^\\d{1,2}/\\d\\d/\\d\\d \\d\\d:\\d\\d$");
        QVERIFY2(form.match(bar.clockText()).hasMatch(), qPrintable(bar.clockText()));
    }
    void clockMode1LeavesABlankBehindTheDate()
    {
        TestRoot root(0.01);
        writeClockMode(root, 1);
        InfoBar bar(nullptr);
        QRegularExpression form("^\\d{1,2}/\\d\\d/\\d\\d $");
        QVERIFY2(form.match(bar.clockText()).hasMatch(), qPrintable(bar.clockText()));
    }
    void clockMode2ShowsTheTimeOnly()
    {
        TestRoot root(0.01);
        writeClockMode(root, 2);
        InfoBar bar(nullptr);
        QRegularExpression form("^\\d\\d:\\d\\d$");
        QVERIFY2(form.match(bar.clockText()).hasMatch(), qPrintable(bar.clockText()));
    }
    void unknownClockModeBlanksTheClock()
    {
        TestRoot root(0.01);
        writeClockMode(root, -3);
        InfoBar bar(nullptr);
        QVERIFY(bar.clockText().isEmpty());
        bar.chooseDisplayClock(CLOCK_TIME);
        QVERIFY(!bar.clockText().isEmpty());
        bar.chooseDisplayClock(static_cast<_displayClock>(9));
        QVERIFY(bar.clockText().isEmpty());
    }
    void clockTicksEverySecondAndPowerWaitsTwoSeconds()
    {
        TestRoot root(0.01);
        InfoBar bar(nullptr);
        std::vector<Clock::Wait> waits = Clock::waits();
        QVERIFY(std::find(waits.begin(), waits.end(), Clock::Wait{Clock::Timer, 1000000, 1}) !=
                waits.end());
        QVERIFY(std::find(waits.begin(), waits.end(),
                          Clock::Wait{Clock::SingleShot, 2000000, 1}) != waits.end());
    }
    void onMainsPowerTheBatteryIsNeverRead()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(true));
        InfoBar bar(nullptr);
        bar.show();
        QTest::qWait(200);
        QVERIFY(Clock::requested(Clock::Timer) >= 1600000); // the power poll ran
        QCOMPARE(sim.field("adc registers", "transfers"), QByteArray("0"));
    }
    void onBatteryTheConverterIsRead()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(false));
        InfoBar bar(nullptr);
        bar.show();
        QTRY_VERIFY(sim.field("adc registers", "transfers").toInt() > 0);
    }
    void onMainsPowerTheShutdownDialogNeverOpens()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(true));
        QVERIFY(sim.forceAdc("battery", batteryCount[7]));
        ModalDriver driver;
        driver.onNext([](QWidget* w) { qWarning("unexpected %s", w->metaObject()->className()); });
        InfoBar bar(nullptr);
        bar.show();
        // 2 s of delay and many 600 ms polls, on the scaled clock
        QTest::qWait(200);
        QCOMPARE(driver.pending(), 1);
        QCOMPARE(picture(bar), resource(":/icon/ac-adapter.png"));
        QVERIFY(Clock::requested(Clock::Timer) >= 1600000);
    }
    void batteryLevelPicksThePicture_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("name");
        const char* names[] = {":/icon/battery-full.png", ":/icon/battery-75.png",
                               ":/icon/battery-50.png",   ":/icon/battery-25.png",
                               ":/icon/battery-15.png",   ":/icon/battery-alert.png",
                               ":/icon/battery-empty.png"};
        for (int level = 0; level < 7; level++)
            QTest::newRow(names[level]) << level << QString(names[level]);
    }
    void batteryLevelPicksThePicture()
    {
        QFETCH(int, level);
        QFETCH(QString, name);
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(false));
        QVERIFY(sim.forceAdc("battery", batteryCount[level]));
        InfoBar bar(nullptr);
        bar.show();
        QImage expected = resource(name.toLatin1().constData());
        QTRY_COMPARE(picture(bar), expected);
    }
    void level7OnBatteryOpensTheShutdownDialogAtTheFirstPoll()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(false));
        QVERIFY(sim.forceAdc("battery", batteryCount[7]));
        ModalDriver driver;
        QString seen;
        QImage shownMeanwhile;
        InfoBar bar(nullptr);
        driver.onNext([&](QWidget* w) {
            seen = w->metaObject()->className();
            shownMeanwhile = picture(bar);
            sim.setAdapter(true); // the charger comes
        });
        bar.show();
        QTRY_COMPARE(seen, QString("DialogShutDown"));
        QCOMPARE(shownMeanwhile, resource(":/icon/ac-adapter.png"));
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }
    void usbMarkIsShownWhenAStickIsMountedAtConstruction()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.stickIn());
        QVERIFY(Command::system("/usr/bin/mountusb.sh") == 0);
        InfoBar bar(nullptr);
        QVERIFY(bar.usb());
        QCOMPARE(bar.findChild<QLabel*>("usb")->pixmap().toImage(), resource(":/icon/usb-info.png"));
    }
    void noStickNoUsbMarkAndNoWatchAfterwards()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        InfoBar bar(nullptr);
        QVERIFY(!bar.usb());
        QVERIFY(bar.findChild<QLabel*>("usb")->pixmap().isNull());
        QVERIFY(sim.stickIn());
        QVERIFY(Command::system("/usr/bin/mountusb.sh") == 0);
        QTest::qWait(50);
        QVERIFY(!bar.usb());
        bar.setUsb(true);
        QVERIFY(bar.usb());
    }
};

QTEST_MAIN(TestInfoBar)
#include "tst_infobar.moc"
