#include "math/scale.h"
#include "math/floatbits.h"

#include <QtTest>

#include <cmath>
#include <limits>

class TestScale : public QObject
{
    Q_OBJECT
private slots:
    void panelVScaleClimbsTheLadder()
    {
        QCOMPARE(panelVScale(0.0), 30.0f);
        QCOMPARE(panelVScale(20.0), 30.0f);
        QCOMPARE(panelVScale(45.0), 50.0f);
        QCOMPARE(panelVScale(60.0), 70.0f);
        QCOMPARE(panelVScale(90.0), 100.0f);
        QCOMPARE(panelVScale(140.0), 150.0f);
        QCOMPARE(panelVScale(180.0), 200.0f);
        QCOMPARE(panelVScale(250.0), 300.0f);
        QCOMPARE(panelVScale(450.0), 500.0f);
        QCOMPARE(panelVScale(600.0), 700.0f);
        QCOMPARE(panelVScale(900.0), 1000.0f);
    }
    void panelVScaleAboveTheLadderIs1500()
    {
        QCOMPARE(panelVScale(960.0), 1500.0f);
        QCOMPARE(panelVScale(1e9), 1500.0f);
    }
    void panelVScaleHasFivePercentHeadRoom()
    {
        // 29 V * 1.05 = 30.45: no longer below 30.
        QCOMPARE(panelVScale(28.5), 30.0f);
        QCOMPARE(panelVScale(29.0), 50.0f);
    }
    void panelVScaleOfExactlyThirtyGivesFifty()
    {
        // Find a maximum whose head room is exactly 30 in double.
        double m = 30.0 / 1.05;
        for (int i = 0; i < 8 && m * 1.05 != 30.0; i++)
            m = std::nextafter(m, m * 1.05 < 30.0 ? 100.0 : 0.0);
        QVERIFY(m * 1.05 == 30.0);
        QCOMPARE(panelVScale(m), 50.0f);
    }
    void panelVScaleOfNanIs1500()
    {
        QCOMPARE(panelVScale(std::numeric_limits<double>::quiet_NaN()), 1500.0f);
    }
    void stringVScaleIsPanelVScale()
    {
        for (double m : {0.0, 29.0, 400.0, 999.0, 2000.0})
            QCOMPARE(stringVScale(m), panelVScale(m));
    }
    void currentScaleIsTwelveAboveTenAmperes()
    {
        QCOMPARE(panelIScale(10.0), 10.0f);
        QCOMPARE(panelIScale(std::nextafter(10.0, 11.0)), 12.0f);
        QCOMPARE(panelIScale(0.0), 10.0f);
        QCOMPARE(stringIScale(10.5), 12.0f);
        QCOMPARE(stringIScale(9.0), 10.0f);
    }
    void currentScaleOfNanIsTen()
    {
        QCOMPARE(panelIScale(std::numeric_limits<double>::quiet_NaN()), 10.0f);
        QCOMPARE(stringIScale(std::numeric_limits<double>::quiet_NaN()), 10.0f);
    }
};

QTEST_GUILESS_MAIN(TestScale)
#include "tst_scale.moc"
