#include "shell/language.h"
#include "support/testroot.h"

#include <QTranslator>
#include <QtTest>

// The string screen's own rows of the catalogues. The tabulated rows that the
// module and the string screens share are checked in every context that shows
// them by tests/shell/tst_catalogue.cpp.
class TestScreenCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void stringScreensOwnTexts()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QTranslator translator;
        QVERIFY(loadTranslator(&translator, LANG_FR));
        QCOMPARE(translator.translate("StringIV", "Stringa"), QString("Chaine"));
        QCOMPARE(translator.translate("StringIV", "String IV"), QString("String IV"));
        QVERIFY(loadTranslator(&translator, LANG_EN));
        QCOMPARE(translator.translate("StringIV", "Stringa"), QString("String"));
        QCOMPARE(translator.translate("StringIV", "Misura Stringa..."),
                 QString("String measure..."));
    }
};

QTEST_MAIN(TestScreenCatalogue)
#include "tst_screencatalogue.moc"
