#include "toolkit/numbertext.h"

#include <QtTest>
#include <cmath>
#include <limits>

// Numbers as the screens take and show them.
class TestNumberText : public QObject
{
    Q_OBJECT
private slots:
    void numberIsANumber_finiteNumbersAreTaken_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<float>("value");
        QTest::newRow("integer") << "42" << 42.0f;
        QTest::newRow("decimals") << "-3.25" << -3.25f;
        QTest::newRow("exponent") << "1e6" << 1e6f;
        QTest::newRow("largest float") << "3.4e38" << 3.4e38f;
    }
    void numberIsANumber_finiteNumbersAreTaken()
    {
        QFETCH(QString, text);
        QFETCH(float, value);
        float got = 0;
        QVERIFY(finiteNumber(text, &got));
        QCOMPARE(got, value);
    }
    void numberIsANumber_notANumberTextsAreRefused_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* t :
             {"nan",    "NaN",   "NAN",      "-nan",      "+nan",     "inf",  "INF",
              "-inf",   "+Inf",  "infinity", "-Infinity", "INFINITY", "1e39", "-1e39",
              "3.5e38", "1e400", "",         "abc",       "1,5",      "12x"})
            QTest::newRow(t[0] == '\0' ? "empty" : t) << QString(t);
    }
    void numberIsANumber_notANumberTextsAreRefused()
    {
        QFETCH(QString, text);
        float got = 7.0f;
        QVERIFY(!finiteNumber(text, &got));
        QCOMPARE(got, 7.0f); // untouched
    }
    void numberIsANumber_storedNanOrInfShowsDashes()
    {
        QCOMPARE(storedNumberText(std::numeric_limits<float>::quiet_NaN(), 2), QString("----"));
        QCOMPARE(storedNumberText(std::numeric_limits<float>::infinity(), 1), QString("----"));
        QCOMPARE(storedNumberText(-std::numeric_limits<float>::infinity(), 0), QString("----"));
        QCOMPARE(storedNumberText(240.0f, 1), QString("240.0"));
        QCOMPARE(storedNumberText(-0.35f, 4), QString("-0.3500"));
    }
    void numberIsANumber_rangesAreWrittenInPlainDigits()
    {
        QCOMPARE(rangeText(0, 1000000), QString("0 - 1000000"));
        QCOMPARE(rangeText(1, 1000), QString("1 - 1000"));
        QCOMPARE(rangeText(-20, 100), QString("-20 - 100"));
        QCOMPARE(rangeText(0.5f, 1e7f), QString("0.5 - 10000000"));
    }
};

QTEST_GUILESS_MAIN(TestNumberText)
#include "tst_numbertext.moc"
