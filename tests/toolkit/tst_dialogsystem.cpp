#include "data/datasetting.h"
#include "support/modaldriver.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/dialogbright.h"
#include "toolkit/dialogsystem.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QtTest>

class TestDialogSystem : public QObject
{
    Q_OBJECT

    static _configParam defaults()
    {
        _configParam c;
        defaultConfig(&c);
        return c;
    }
    template <typename T> static T* child(QWidget* parent, const char* name)
    {
        T* w = parent->findChild<T*>(name);
        if (w == nullptr)
            qWarning("no child %s", name);
        return w;
    }
    static QComboBox* combo(DialogSystem& d, int index)
    {
        // the combos in the order of the rows: clock, probe, remote, language
        QList<QComboBox*> all = d.findChildren<QComboBox*>();
        return all.value(index);
    }
    static void touch(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }

private slots:
    void pyranometerSensitivityOf1And1000IsAcceptedAndBeyondRefused()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QLineEdit* edit = child<QLineEdit>(&d, "pyrano");
        driver.typeOnKeyboard("1");
        touch(edit);
        QCOMPARE(d._config.cpyar, 1.0f);
        QCOMPARE(edit->text(), QString("1.00"));
        driver.typeOnKeyboard("1000");
        touch(edit);
        QCOMPARE(d._config.cpyar, 1000.0f);
        driver.typeOnKeyboard("1000.01");
        driver.answerBox();
        touch(edit);
        driver.typeOnKeyboard("0.99");
        driver.answerBox();
        touch(edit);
        QCOMPARE(d._config.cpyar, 1000.0f);
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, QString("Sens. Piranometro"));
        QCOMPARE(driver.boxes[0].text, QString("Numero non valido."));
        QCOMPARE(driver.keyboardTitles[0], QString::fromUtf8("Sens. Piranometro mV/(kW/m²)"));
    }
    void minimumIrradianceOf0IsAcceptedAndNegativeRefused()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QLineEdit* edit = child<QLineEdit>(&d, "irrmin");
        driver.typeOnKeyboard("0");
        touch(edit);
        QCOMPARE(d._config.irrmin, 0.0f);
        QCOMPARE(edit->text(), QString("0.00"));
        driver.typeOnKeyboard("-1");
        driver.answerBox();
        touch(edit);
        QCOMPARE(d._config.irrmin, 0.0f);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Irraggiamento Minimo"));
        // a stored 0 hands the keyboard an empty line
        QCOMPARE(driver.keyboardInitial[1], QString());
        QCOMPARE(driver.keyboardInitial[0], QString("600.00"));
    }
    void emptyOrTextIsRefusedAndTheFieldKeepsItsValue()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        driver.typeOnKeyboard("");
        driver.answerBox();
        driver.typeOnKeyboard("ABC");
        driver.answerBox();
        touch(child<QLineEdit>(&d, "pyrano"));
        touch(child<QLineEdit>(&d, "pyrano"));
        QCOMPARE(d._config.cpyar, 10.54f);
        QCOMPARE(driver.boxes.size(), 2);
    }
    // The old screen took "nan" and "inf" from the toolkit's conversion and
    // let them through its bounds; a number is a number.
    void numberIsANumber_settingsRefuseNanInfAndNumbersBeyondAFloat()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.tprobe = PROBE_MANUAL;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QLineEdit* pyrano = child<QLineEdit>(&d, "pyrano");
        QLineEdit* irrmin = child<QLineEdit>(&d, "irrmin");
        QPushButton* temperature = child<QPushButton>(&d, "temperature");
        const QStringList texts{"nan", "-NaN", "inf", "-Inf", "INFINITY", "1e39", "-1e39"};
        for (const QString& t : texts) {
            for (QWidget* w : QList<QWidget*>{pyrano, irrmin, temperature}) {
                driver.typeOnKeyboard(t);
                driver.answerBox();
                touch(w);
            }
        }
        QCOMPARE(driver.boxes.size(), 3 * texts.size());
        QCOMPARE(d._config.cpyar, 10.54f);
        QCOMPARE(d._config.irrmin, 600.0f);
        QCOMPARE(d._config.utemp, 45.0f);
        QCOMPARE(pyrano->text(), QString("10.54"));
        QCOMPARE(irrmin->text(), QString("600.00"));
        QCOMPARE(temperature->text(), QString::fromUtf8("45.00 °C"));
    }
    // The old refusal wrote the largest minimum irradiance as "1e+06".
    void numberIsANumber_refusalsWriteTheirRangesInPlainDigits()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        driver.typeOnKeyboard("-1");
        driver.answerBox();
        touch(child<QLineEdit>(&d, "irrmin"));
        driver.typeOnKeyboard("nan");
        driver.answerBox();
        touch(child<QLineEdit>(&d, "pyrano"));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].informative, QString("Irraggiamento Minimo : 0 - 1000000"));
        QCOMPARE(driver.boxes[1].informative, QString("Sens. Piranometro : 1 - 1000"));
    }
    void numberIsANumber_storedNanOrInfShowsDashes()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.cpyar = NAN;
        c.irrmin = INFINITY;
        c.utemp = NAN;
        c.tprobe = PROBE_MANUAL;
        DialogSystem d(&c, nullptr);
        QCOMPARE(child<QLineEdit>(&d, "pyrano")->text(), QString("----"));
        QCOMPARE(child<QLineEdit>(&d, "irrmin")->text(), QString("----"));
        QCOMPARE(child<QPushButton>(&d, "temperature")->text(), QString::fromUtf8("---- °C"));
        // the key pad opens empty on a field without a value
        ModalDriver driver;
        driver.typeOnKeyboard("5");
        touch(child<QLineEdit>(&d, "pyrano"));
        QCOMPARE(driver.keyboardInitial.value(0), QString());
        QCOMPARE(d._config.cpyar, 5.0f);
    }
    // The old screen handed the stored bytes to the toolkit in the process's
    // encoding: a name written by an older instrument in Latin-1 came back
    // broken. Texts speak UTF-8, and Latin-1 when they are not UTF-8.
    void storedDataNeverLost_bluetoothNameInLatin1OrUtf8IsShownWhole()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        strcpy(c.bluename, "K\xe4rm 510");
        DialogSystem latin1(&c, nullptr);
        QCOMPARE(child<QPushButton>(&latin1, "bluename")->text(), QString::fromUtf8("Kärm 510"));
        strcpy(c.bluename, "K\xc3\xa4rm 510");
        DialogSystem utf8(&c, nullptr);
        QCOMPARE(child<QPushButton>(&utf8, "bluename")->text(), QString::fromUtf8("Kärm 510"));
    }
    void manualTemperatureOfMinus20And100IsAccepted()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.tprobe = PROBE_MANUAL;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QPushButton* button = child<QPushButton>(&d, "temperature");
        QVERIFY(button->isEnabled());
        QCOMPARE(button->text(), QString::fromUtf8("45.00 °C"));
        driver.typeOnKeyboard("-20");
        touch(button);
        QCOMPARE(d._config.utemp, -20.0f);
        driver.typeOnKeyboard("100");
        touch(button);
        QCOMPARE(d._config.utemp, 100.0f);
        QCOMPARE(button->text(), QString::fromUtf8("100.00 °C"));
        driver.typeOnKeyboard("100.5");
        driver.answerBox();
        touch(button);
        QCOMPARE(d._config.utemp, 100.0f);
        QCOMPARE(driver.boxes.value(0).title, QString("Temperatura manuale"));
        QCOMPARE(driver.keyboardTitles[0], QString::fromUtf8("Temperatura Manuale (°C)"));
    }
    void choosingManualOpensTheKeyboardAtOnceAndCancellingKeepsTheFormerValue()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.tprobe = PROBE_MODULE;
        c.utemp = 33.5f;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QPushButton* button = child<QPushButton>(&d, "temperature");
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->text(), QString::fromUtf8("--.-- °C"));
        driver.typeOnKeyboard("12", false);
        combo(d, 1)->setCurrentIndex(PROBE_MANUAL);
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(d._config.tprobe, PROBE_MANUAL);
        QCOMPARE(d._config.utemp, 33.5f);
        QCOMPARE(button->text(), QString::fromUtf8("33.50 °C"));
        QVERIFY(button->isEnabled());
        combo(d, 1)->setCurrentIndex(PROBE_AMBIENT);
        QCOMPARE(button->text(), QString::fromUtf8("--.-- °C"));
        QVERIFY(!button->isEnabled());
    }
    void bluetoothNameOfExactly60IsAcceptedAnd61Refused()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QPushButton* button = child<QPushButton>(&d, "bluename");
        QVERIFY(button->isEnabled());
        QString sixty(60, 'N');
        driver.typeOnKeyboard(sixty);
        touch(button);
        QCOMPARE(QString(d._config.bluename), sixty);
        QCOMPARE(button->text(), sixty);
        driver.typeOnKeyboard(QString(61, 'M'));
        driver.answerBox();
        touch(button);
        QCOMPARE(QString(d._config.bluename), sixty);
        QCOMPARE(driver.boxes.value(0).text, QString("Nome troppo lungo."));
        QCOMPARE(driver.boxes.value(0).title, QString("Bluetooth Nome Dispositivo Remoto"));
    }
    void emptyBluetoothNameIsRefused()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        driver.typeOnKeyboard("   ");
        driver.answerBox();
        touch(child<QPushButton>(&d, "bluename"));
        QCOMPARE(QString(d._config.bluename), QString("KRM510"));
        QCOMPARE(driver.boxes.value(0).text, QString::fromUtf8("Il nome non può essere nullo."));
    }
    void macOf17LettersIsAcceptedAndOtherLengthsRefused()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QPushButton* button = child<QPushButton>(&d, "bluemac");
        driver.typeOnKeyboard("ABCDEFGHIJKLMNOPQ");
        touch(button);
        QCOMPARE(QString(d._config.bluemac), QString("ABCDEFGHIJKLMNOPQ"));
        driver.typeOnKeyboard("00:11:22:33:44:5");
        driver.answerBox();
        touch(button);
        QCOMPARE(QString(d._config.bluemac), QString("ABCDEFGHIJKLMNOPQ"));
        QCOMPARE(driver.boxes.value(0).text, QString("MAC deve essere formato da 48 bit."));
        QCOMPARE(driver.boxes.value(0).title, QString("Bluetooth MAC"));
        QCOMPARE(driver.keyboardTitles[0], QString("Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)"));
    }
    // The name goes between double quotes into "/etc/bluetooth/rfcomm.conf":
    // the old settings screen took any text, so a quote or a semicolon could
    // add statements of its own to that file.
    void onlyWhatIsMeantRuns_bluetoothNameWithAQuoteOrASemicolonIsRefused()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        QPushButton* button = child<QPushButton>(&d, "bluename");
        const QStringList bad = {"KRM\"; BIND YES", "KRM;X", "\""};
        for (const QString& name : bad) {
            driver.typeOnKeyboard(name);
            driver.answerBox();
            touch(button);
        }
        QCOMPARE(driver.boxes.size(), bad.size());
        for (const ModalDriver::Box& box : driver.boxes) {
            QCOMPARE(box.text, QString("Nome non valido."));
            QCOMPARE(box.title, QString("Bluetooth Nome Dispositivo Remoto"));
            QCOMPARE(box.icon, QMessageBox::Information);
        }
        QCOMPARE(QString(d._config.bluename), QString("KRM510"));
        QCOMPARE(button->text(), QString("KRM510"));
        // quotes of the other kind, blanks and the rest stay names
        driver.typeOnKeyboard("UNIT 'B' (2)");
        touch(button);
        QCOMPARE(QString(d._config.bluename), QString("UNIT 'B' (2)"));
    }

    // Any 17 characters are still an address for the screen: it is the link
    // script's call that keeps them one argument.
    void onlyWhatIsMeantRuns_macWithShellCharactersIsStillTakenAsTyped()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        driver.typeOnKeyboard("1;REBOOT ;3:44:55");
        touch(child<QPushButton>(&d, "bluemac"));
        QCOMPARE(QString(d._config.bluemac), QString("1;REBOOT ;3:44:55"));
        QVERIFY(driver.boxes.isEmpty());
    }

    void bluetoothButtonsAreEnabledOnlyForTheBluetoothLink()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QVERIFY(!child<QPushButton>(&d, "bluemac")->isEnabled());
        combo(d, 2)->setCurrentIndex(LINK_BLUETOOTH);
        QVERIFY(child<QPushButton>(&d, "bluemac")->isEnabled());
        QVERIFY(child<QPushButton>(&d, "bluename")->isEnabled());
        combo(d, 2)->setCurrentIndex(LINK_USB);
        QVERIFY(!child<QPushButton>(&d, "bluename")->isEnabled());
        QCOMPARE(d._config.remote, LINK_USB);
    }
    void clockModeChangesTheScreensOwnBarAtOnce()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        InfoBar* bar = d.findChild<InfoBar*>();
        QVERIFY(bar->clockText().contains(' '));
        combo(d, 0)->setCurrentIndex(CLOCK_TIME);
        QCOMPARE(d._config.tclock, CLOCK_TIME);
        QVERIFY(!bar->clockText().contains(' '));
        QCOMPARE(c.tclock, CLOCK_DATE_TIME); // the caller's record is untouched
    }
    void languageComboStoresTheLanguage()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        combo(d, 3)->setCurrentIndex(LANG_DE);
        QCOMPARE(d._config.lang, LANG_DE);
        QCOMPARE(combo(d, 3)->itemText(0), QString("Italiano"));
        QVERIFY(!combo(d, 3)->itemIcon(4).isNull());
    }
    void showsSerialNumberSoftwareVersionAndStorage()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.sn = 42;
        DialogSystem d(&c, nullptr);
        QStringList texts;
        for (QLabel* l : d.findChildren<QLabel*>())
            texts << l->text();
        QVERIFY(texts.contains("000042"));
        QVERIFY(texts.contains("IV 2.0.2"));
        QRegularExpression percent("^\\d{1,3}%$");
        QVERIFY(std::any_of(texts.begin(), texts.end(),
                            [&](const QString& t) { return percent.match(t).hasMatch(); }));
        QCOMPARE(d.objectName(), QString("Setting KRM510"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Impostazione KRM510"));
    }
    void boardVersionIsReadAfterTheScreenIsUp()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QLabel* version = child<QLabel>(&d, "versionPower");
        QVERIFY(version->text().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(version->text(), QString("FP 2.1"), 10000);
        QCOMPARE(sim.boardCommands(), QStringList() << "ver");
    }
    void prototypeBoardVersionEndsWithPR()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.command("board version KRM510PD 3.4 PROTO"));
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QTRY_COMPARE_WITH_TIMEOUT(child<QLabel>(&d, "versionPower")->text(), QString("3.4 PR"),
                                  10000);
    }
    void deadBoardShowsZeroWithFP()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QTRY_COMPARE_WITH_TIMEOUT(child<QLabel>(&d, "versionPower")->text(), QString("FP 0.0"),
                                  10000);
    }
    void confirmDateAndTimeRunsDateAndHwclock()
    {
        TestRoot root(0.001);
        SimInstrument sim(root);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QDateTimeEdit* edit = d.findChild<QDateTimeEdit*>();
        edit->setDateTime(QDateTime(QDate(2027, 3, 4), QTime(5, 6)));
        touch(child<QPushButton>(&d, "Conferma data e ora"));
        QByteArray log = root.read("/var/lib/krm510-sim/commands.log");
        // the date reaches the command as one argument
        QVERIFY2(log.contains("date -s +2027-03-04 05:06\n"), log.constData());
        QVERIFY2(log.contains("hwclock -w"), log.constData());
        QCOMPARE(d.result(), 0); // the screen stays open
    }
    void dateEditStartsNowWithItsFormatAndMinimum()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QDateTimeEdit* edit = d.findChild<QDateTimeEdit*>();
        QCOMPARE(edit->displayFormat(), QString("yyyy/MM/dd HH:mm"));
        QCOMPARE(edit->minimumDate(), QDate(2011, 1, 1));
        QVERIFY(qAbs(edit->dateTime().secsTo(QDateTime::currentDateTime())) < 120);
    }
    void brightnessStepsReachTheBacklightAtOnceAndStayWhateverTheWayOut()
    {
        TestRoot root(0.001);
        SimInstrument sim(root);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        ModalDriver driver;
        driver.onNext([&](QWidget* w) {
            DialogBrightness* b = qobject_cast<DialogBrightness*>(w);
            QSlider* slider = b->findChild<QSlider*>();
            slider->setFocus();
            QTest::keyClick(slider, Qt::Key_Left);
            QCOMPARE(sim.backlightRegister("pwm0"), 2); // 99 %: (100-99)*2.55
            slider->setValue(50);
            QCOMPARE(sim.backlightRegister("pwm0"), 127);
            QTest::keyClick(w, Qt::Key_Escape);
        });
        touch(child<QPushButton>(&d, "brightness"));
        QCOMPARE(d._config.bright, 50);
        QCOMPARE(child<QPushButton>(&d, "brightness")->text(), QString("50 %"));
    }
    void applyAcceptsAndExitRejects()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem a(&c, nullptr);
        touch(child<QPushButton>(&a, "Applica"));
        QCOMPARE(a.result(), int(QDialog::Accepted));
        DialogSystem b(&c, nullptr);
        touch(child<QPushButton>(&b, "Exit"));
        QCOMPARE(b.result(), int(QDialog::Rejected));
    }
    void downKeySkipsTheBluetoothButtonsWhenDisabled()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        d.show();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        combo(d, 2)->setFocus();
        QTest::keyClick(&d, Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), combo(d, 3));
        QTest::keyClick(&d, Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget(), combo(d, 2));
    }
    void downKeyWalksTheChainRoundToTheClock()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        c.remote = LINK_BLUETOOTH;
        DialogSystem d(&c, nullptr);
        d.show();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        combo(d, 0)->setFocus();
        QStringList seen;
        for (int i = 0; i < 11; i++) {
            QTest::keyClick(&d, Qt::Key_Down);
            QWidget* f = QApplication::focusWidget();
            seen << (f->objectName().isEmpty() ? QString(f->metaObject()->className())
                                                : f->objectName());
        }
        QCOMPARE(seen, QStringList({"QDateTimeEdit", "QComboBox", "pyrano", "irrmin", "QComboBox",
                                    "bluemac", "bluename", "QComboBox", "brightness", "Exit",
                                    "QComboBox"}));
        QScrollBar* bar = d.findChild<QScrollArea*>()->verticalScrollBar();
        QCOMPARE(bar->value(), bar->minimum());
    }
    void settingsAreModalWhenRun()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QVERIFY(!d.isVisible());
        QVERIFY(d.windowState() & Qt::WindowMaximized);
        ModalDriver driver;
        bool modal = false;
        driver.onNext([&](QWidget* w) {
            modal = w == &d;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        QCOMPARE(d.exec(), int(QDialog::Rejected));
        QVERIFY(modal);
    }
    void escapeRejects()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem d(&c, nullptr);
        QTest::keyClick(&d, Qt::Key_Escape);
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(TestDialogSystem)
#include "tst_dialogsystem.moc"
