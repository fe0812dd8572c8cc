#include "math/correzione.h"
#include "math/floatbits.h"

#include <QtTest>

#include <climits>

class TestCorrezione : public QObject
{
    Q_OBJECT
private slots:
    void voltageIsCountTimesGainPlusOffset()
    {
        COMPARE_BITS(correzTensione(1000, 0.25f, 0.5f), 250.5f);
        COMPARE_BITS(correzTensione(0, 0.282624f, 0.147721f), 0.147721f);
    }
    void voltageIsSinglePrecision()
    {
        // A count for which single precision and a double narrowed once differ.
        const float gain = 0.282624f;
        const float offset = 0.147721f;
        int raw = 1000;
        while (static_cast<float>(raw) * gain + offset
               == static_cast<float>(double(raw) * gain + offset))
            raw++;
        COMPARE_BITS(correzTensione(raw, gain, offset), static_cast<float>(raw) * gain + offset);
    }
    void negativeVoltageBecomesZero()
    {
        COMPARE_BITS(correzTensione(0, 0.141333f, -0.002624f), 0.0f);
        COMPARE_BITS(correzTensione(-10, 0.5f, 1.0f), 0.0f);
    }
    void currentOffsetIsTakenOffBeforeTheGain()
    {
        COMPARE_BITS(correzCorrente(1010, 0.5f, 10), 500.0f);
        COMPARE_BITS(correzCorrente(100, 0.0064f, 0), 100.0f * 0.0064f);
    }
    void negativeCurrentBecomesZero()
    {
        COMPARE_BITS(correzCorrente(5, 0.5f, 10), 0.0f);
    }
    void extremeCountsDoNotOverflow()
    {
        COMPARE_BITS(correzCorrente(INT_MAX, 1.0f, -1), 2147483648.0f);
        COMPARE_BITS(correzCorrente(INT_MIN, 1.0f, 1), 0.0f);
    }
};

QTEST_GUILESS_MAIN(TestCorrezione)
#include "tst_correzione.moc"
