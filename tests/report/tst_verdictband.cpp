#include "verdictband.h"

#include <QtTest>

class TestVerdictBand : public QObject
{
    Q_OBJECT
private slots:
    void placeholder() {}
};

QTEST_MAIN(TestVerdictBand)
#include "tst_verdictband.moc"
