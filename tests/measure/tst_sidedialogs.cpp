#include "measure/dialogcollegamenti.h"
#include "measure/dialogdatielettrici.h"
#include "measure/dialogdegrado.h"
#include "measure/dialoginfo.h"
#include "measure/dialognumber.h"
#include "support/modaldriver.h"
#include "support/testroot.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

// The side dialogs of a test, driven by touches on their fields, the
// on-screen keyboard and their buttons.
class TestSideDialogs : public QObject
{
    Q_OBJECT

    template <typename T> static T* child(QWidget* parent, const char* name)
    {
        T* w = parent->findChild<T*>(name);
        if (w == nullptr)
            qWarning("no child %s", name);
        return w;
    }
    static void touchField(QWidget* parent, const char* name)
    {
        QTest::mouseClick(child<QLineEdit>(parent, name), Qt::LeftButton);
    }

private slots:
    // ---- DialogDegrado
    void ageingStartsAtZeroYearsAndTenPercent()
    {
        TestRoot root;
        DialogDegrado d(nullptr, MEA_PANEL);
        QCOMPARE(d._years, 0.0f);
        QCOMPARE(d._percent, 10.0f);
        QCOMPARE(d.windowTitle(), QString("Degrado Modulo"));
        QCOMPARE(child<QLineEdit>(&d, "percent")->text(), QString("10.00"));
        QVERIFY(!child<QPushButton>(&d, "Applica")->isEnabled());
        DialogDegrado s(nullptr, MEA_STRING);
        QCOMPARE(s.windowTitle(), QString("Degrado Stringa"));
    }
    void ageingApplyStaysDisabledAfterAChangeOfThePercentageAlone()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        driver.typeOnKeyboard("5");
        touchField(&d, "percent");
        QCOMPARE(d._percent, 5.0f);
        QCOMPARE(child<QLineEdit>(&d, "percent")->text(), QString("5.00"));
        QVERIFY(!child<QPushButton>(&d, "Applica")->isEnabled());
        QCOMPARE(driver.keyboardTitles, QStringList() << "Degrado Modulo : Degrado %");
    }
    void ageingYearsOfZeroAreValidAndEnableApply()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        driver.typeOnKeyboard("0");
        touchField(&d, "years");
        QVERIFY(child<QPushButton>(&d, "Applica")->isEnabled());
        QCOMPARE(d._years, 0.0f);
        QCOMPARE(d._percent / 100 * d._years, 0.0f);
        QCOMPARE(driver.keyboardTitles, QStringList() << "Degrado Modulo : Anni");
    }
    void ageingYearsAreStoredAsTypedAndShownRounded()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        driver.typeOnKeyboard("2.6");
        touchField(&d, "years");
        QCOMPARE(d._years, 2.6f);
        QCOMPARE(child<QLineEdit>(&d, "years")->text(), QString("3"));
    }
    void ageingNegativeYearsAreRefused()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        driver.typeOnKeyboard("-1");
        driver.answerBox();
        touchField(&d, "years");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Degrado Anni"));
        QCOMPARE(driver.boxes[0].informative, QString("Numero non valido : -1"));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
        QVERIFY(!child<QPushButton>(&d, "Applica")->isEnabled());
        QCOMPARE(d._years, 0.0f);
    }
    void ageingPercentageOf100IsAcceptedAnd10001Refused()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        driver.typeOnKeyboard("100");
        touchField(&d, "percent");
        QCOMPARE(d._percent, 100.0f);
        driver.typeOnKeyboard("100.01");
        driver.answerBox();
        touchField(&d, "percent");
        QCOMPARE(d._percent, 100.0f);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Degrado Percentuale"));
    }
    // The old dialog took "nan" and "inf" through its bounds; a number is a number.
    void numberIsANumber_ageingRefusesNanInfAndNumbersBeyondAFloat()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        const QStringList texts{"nan", "NAN", "-nan", "inf", "+INF", "-infinity", "1e39"};
        for (const QString& t : texts) {
            driver.typeOnKeyboard(t);
            driver.answerBox();
            touchField(&d, "years");
            driver.typeOnKeyboard(t);
            driver.answerBox();
            touchField(&d, "percent");
        }
        QCOMPARE(driver.boxes.size(), 2 * texts.size());
        QCOMPARE(driver.boxes[0].informative, QString("Numero non valido : nan"));
        QCOMPARE(d._years, 0.0f);
        QCOMPARE(d._percent, 10.0f);
        QVERIFY(!child<QPushButton>(&d, "Applica")->isEnabled());
    }
    void ageingKeyboardLeftWithEscChangesNothing()
    {
        TestRoot root;
        ModalDriver driver;
        DialogDegrado d(nullptr, MEA_PANEL);
        driver.typeOnKeyboard("7", false);
        touchField(&d, "years");
        QVERIFY(!child<QPushButton>(&d, "Applica")->isEnabled());
        QCOMPARE(child<QLineEdit>(&d, "years")->text(), QString("0"));
    }

    // ---- DialogInfo
    void saveFormStartsWithTheCurrentDateAndTime()
    {
        TestRoot root;
        QString before = QDateTime::currentDateTime().toString("yyyy/MM/dd");
        DialogInfo d(nullptr, DLG_PANEL, "first");
        QString after = QDateTime::currentDateTime().toString("yyyy/MM/dd");
        QString date = QString::fromLocal8Bit(d._date);
        QVERIFY(date == before || date == after);
        QCOMPARE(QString::fromLocal8Bit(d._time).length(), 8);
        QCOMPARE(child<QLineEdit>(&d, "Commento")->text(), QString("first"));
        QCOMPARE(d.windowTitle(), QString("Salvataggio Misure Modulo"));
        QCOMPARE(d._comment[0], '\0');
    }
    void saveFormTitleForStrings()
    {
        TestRoot root;
        DialogInfo d(nullptr, DLG_STRING, QString());
        QCOMPARE(d.windowTitle(), QString("Salvataggio Misure Stringhe"));
    }
    void clearingDateOrTimeDisablesSave()
    {
        TestRoot root;
        ModalDriver driver;
        DialogInfo d(nullptr, DLG_PANEL, QString());
        driver.typeOnKeyboard("");
        touchField(&d, "Data");
        QVERIFY(!child<QPushButton>(&d, "Salva")->isEnabled());
        driver.typeOnKeyboard("2026/11/22");
        touchField(&d, "Data");
        QVERIFY(child<QPushButton>(&d, "Salva")->isEnabled());
        driver.typeOnKeyboard("");
        touchField(&d, "Ora");
        QVERIFY(!child<QPushButton>(&d, "Salva")->isEnabled());
    }
    void timeLongerThanFiveCharactersIsRefused()
    {
        TestRoot root;
        ModalDriver driver;
        DialogInfo d(nullptr, DLG_PANEL, QString());
        QString preset = child<QLineEdit>(&d, "Ora")->text();
        driver.typeOnKeyboard("10:20:30");
        driver.answerBox();
        touchField(&d, "Ora");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Testo inserito"));
        QCOMPARE(driver.boxes[0].text, QString("Troppo lungo."));
        QCOMPARE(child<QLineEdit>(&d, "Ora")->text(), preset);
        driver.typeOnKeyboard("10:20");
        touchField(&d, "Ora");
        QCOMPARE(child<QLineEdit>(&d, "Ora")->text(), QString("10:20"));
    }
    void commentOf255IsKeptAnd256Refused()
    {
        TestRoot root;
        ModalDriver driver;
        DialogInfo d(nullptr, DLG_PANEL, QString());
        QString ok(255, 'C');
        driver.typeOnKeyboard(ok);
        touchField(&d, "Commento");
        QCOMPARE(child<QLineEdit>(&d, "Commento")->text(), ok);
        driver.typeOnKeyboard(QString(256, 'D'));
        driver.answerBox();
        touchField(&d, "Commento");
        QCOMPARE(child<QLineEdit>(&d, "Commento")->text(), ok);
        QCOMPARE(driver.boxes.size(), 1);
    }
    // The old copy kept 255 bytes, fewer than 255 characters in UTF-8:
    // stored data is never lost.
    void storedDataNeverLost_commentOf255AccentedCharactersIsCopiedWhole()
    {
        TestRoot root;
        // the comment of the measure before, as read from its file
        QString comment(255, QChar(0xE8));
        DialogInfo d(nullptr, DLG_PANEL, comment);
        QTest::mouseClick(child<QPushButton>(&d, "Salva"), Qt::LeftButton);
        QCOMPARE(QByteArray(d._comment), comment.toUtf8());
    }
    void savingCopiesDateTimeAndComment()
    {
        TestRoot root;
        ModalDriver driver;
        DialogInfo d(nullptr, DLG_PANEL, QString());
        driver.typeOnKeyboard("2026/01/02");
        touchField(&d, "Data");
        driver.typeOnKeyboard("09:15");
        touchField(&d, "Ora");
        driver.typeOnKeyboard("Roof east");
        touchField(&d, "Commento");
        QTest::mouseClick(child<QPushButton>(&d, "Salva"), Qt::LeftButton);
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(QByteArray(d._date), QByteArray("2026/01/02"));
        QCOMPARE(QByteArray(d._time), QByteArray("09:15"));
        QCOMPARE(QByteArray(d._comment), QByteArray("Roof east"));
    }
    void emptyCommentSavesAsNoComment()
    {
        TestRoot root;
        DialogInfo d(nullptr, DLG_PANEL, QString());
        QTest::mouseClick(child<QPushButton>(&d, "Salva"), Qt::LeftButton);
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(d._comment[0], '\0');
    }
    void resetBringsBackTheStartValues()
    {
        TestRoot root;
        ModalDriver driver;
        DialogInfo d(nullptr, DLG_PANEL, "given");
        driver.typeOnKeyboard("other");
        touchField(&d, "Commento");
        driver.typeOnKeyboard("");
        touchField(&d, "Data");
        QTest::mouseClick(child<QPushButton>(&d, "Reset"), Qt::LeftButton);
        QCOMPARE(child<QLineEdit>(&d, "Commento")->text(), QString("given"));
        QVERIFY(!child<QLineEdit>(&d, "Data")->text().isEmpty());
        QVERIFY(child<QPushButton>(&d, "Salva")->isEnabled());
    }

    // ---- DialogNumber
    void numberOfModulesRefusesOneAndZeroAndAcceptsTwo()
    {
        TestRoot root;
        ModalDriver driver;
        DialogNumber d(nullptr, 5);
        QCOMPARE(child<QLineEdit>(&d, "number")->text(), QString("5"));
        driver.typeOnKeyboard("1");
        driver.answerBox();
        driver.typeOnKeyboard("0");
        driver.answerBox();
        driver.typeOnKeyboard("2");
        touchField(&d, "number");
        QCOMPARE(d._number, 5);
        touchField(&d, "number");
        QCOMPARE(d._number, 5);
        touchField(&d, "number");
        QCOMPARE(d._number, 2);
        QCOMPARE(child<QLineEdit>(&d, "number")->text(), QString("2"));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, QString("Numero di Moduli"));
        QCOMPARE(driver.boxes[0].informative, QString("Numero non valido : 1"));
        QCOMPARE(driver.keyboardTitles.first(), QString("Numero di Moduli"));
    }
    void numberOfModulesRefusesText()
    {
        TestRoot root;
        ModalDriver driver;
        DialogNumber d(nullptr, 3);
        driver.typeOnKeyboard("2.5");
        driver.answerBox();
        touchField(&d, "number");
        QCOMPARE(d._number, 3);
        QCOMPARE(driver.boxes.size(), 1);
    }
    void numberIsANumber_numberOfModulesRefusesNanAndInf()
    {
        TestRoot root;
        ModalDriver driver;
        DialogNumber d(nullptr, 3);
        const QStringList texts{"nan", "inf", "-Infinity", "1e39"};
        for (const QString& t : texts) {
            driver.typeOnKeyboard(t);
            driver.answerBox();
            touchField(&d, "number");
        }
        QCOMPARE(d._number, 3);
        QCOMPARE(driver.boxes.size(), texts.size());
    }
    void numberOfModulesHasNoUpperLimit()
    {
        TestRoot root;
        ModalDriver driver;
        DialogNumber d(nullptr, 3);
        driver.typeOnKeyboard("1000");
        touchField(&d, "number");
        QCOMPARE(d._number, 1000);
    }

    // ---- DialogDatiElettrici
    void electricalDataShowTwoDecimalsAndFillFactor()
    {
        TestRoot root;
        DialogDatiElettrici d(nullptr, true, MEA_PANEL, 200.0f, 30.0f, 6.6666f, 36.0f, 7.0f,
                              210.0f, 31.0f, 6.77f, 37.0f, 7.2f, -1.5f);
        QCOMPARE(child<QLabel>(&d, "Pmax_OPC")->text(), QString("200.00"));
        QCOMPARE(child<QLabel>(&d, "Impp_OPC")->text(), QString("6.67"));
        QCOMPARE(child<QLabel>(&d, "FF_OPC")->text(), QString("0.79 (79 %)"));
        QCOMPARE(child<QLabel>(&d, "DPmax_OPC")->text(), QString("0.00"));
        QCOMPARE(child<QLabel>(&d, "DPmax_STC")->text(), QString("-1.50"));
        QCOMPARE(d.windowTitle(), QString("Dati Elettrici Misurati"));
        QCOMPARE(d.objectName(), QString("ElectrictDataMeasures"));
    }
    void electricalDataWithoutValueShowDashes()
    {
        TestRoot root;
        DialogDatiElettrici d(nullptr, true, MEA_PANEL, NAN, 30, 6, 0, 0, INFINITY, 1, 1, 1, 1, 0);
        QCOMPARE(child<QLabel>(&d, "Pmax_OPC")->text(), QString("----"));
        QCOMPARE(child<QLabel>(&d, "Pmax_STC")->text(), QString("----"));
        QCOMPARE(child<QLabel>(&d, "FF_OPC")->text(), QString("----"));
    }
    void electricalDataWithoutTranslationHaveNoStcColumn()
    {
        TestRoot root;
        DialogDatiElettrici d(nullptr, false, MEA_PANEL, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 3);
        QVERIFY(d.findChild<QLabel*>("Pmax_STC") == nullptr);
        for (QLabel* l : d.findChildren<QLabel*>())
            QVERIFY(l->text() != "STC");
    }
    void electricalDataOkButtonAndEscapeReject()
    {
        TestRoot root;
        DialogDatiElettrici d(nullptr, false, MEA_PANEL, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0);
        d.show();
        QTest::keyClick(&d, Qt::Key_Escape);
        QCOMPARE(d.result(), int(QDialog::Rejected));
        QVERIFY(!d.isVisible());
    }

    // ---- DialogCollegamenti
    void wiringReturnAcceptsWithAnyFocus()
    {
        TestRoot root;
        DialogCollegamenti d(nullptr, MEA_PANEL);
        d.show();
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(d.result(), int(QDialog::Accepted));
    }
    void wiringEscapeRejects()
    {
        TestRoot root;
        DialogCollegamenti d(nullptr, MEA_STRING);
        d.show();
        QTest::keyClick(&d, Qt::Key_Escape);
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }
    void wiringContinueAccepts()
    {
        TestRoot root;
        DialogCollegamenti d(nullptr, MEA_PANEL);
        d.show();
        QTest::mouseClick(child<QPushButton>(&d, "Continua"), Qt::LeftButton);
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(d.objectName(), QString("Collegamenti"));
    }
};

QTEST_MAIN(TestSideDialogs)
#include "tst_sidedialogs.moc"
