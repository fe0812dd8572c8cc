#include "shell/language.h"
#include "support/testroot.h"

#include <QTranslator>
#include <QtTest>

// The rows of the catalogues that the instrument's texts are known by, as
// the module and the string screens show them in each language: both
// screens' contexts hold them alike, the catalogues' own slips included.
class TestScreenCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void tabulatedRowsStandInBothScreensContexts_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("translations"); // en, fr, de, es
        auto row = [](const char* source, QStringList t) {
            QTest::newRow(source) << QString::fromUtf8(source) << t;
        };
        row("Start", {"Start", "Début", "Start", "Inicio"});
        row("Confronto", {"Comparison", "Comparaison", "Vergleichen", "Comparación"});
        row("Misure", {"Measured", "Mesures", "Messungen", "Medidas"});
        row("Salva", {"Save", "Sauvegarder", "Speichern", "Guardar"});
        row("Tensione Eccessiva.", {"Excessive voltage value.", "Valeur tension exessive.",
                                    "Spannung zu hoch.", "Valor de tensión excesivo."});
        row("Corrente Eccessiva.", {"Excessive current value.", "Valeur de courant excessive.",
                                    "Strom zu hoch.", "Valor excesivo de corriente."});
        row("Potenza Eccessiva.", {"Excessive power value.", "Valeur de puissance excessive.",
                                   "Leistung zu hoch.", "Valor excesivo de potencia."});
        row("Energia Eccessiva.", {"Excessive energy value.", "Valeur d'énergie excessive.",
                                   "Energie zu hoch.", "Valor excesivo de energía."});
        row("Polarità Inversa.", {"Reverse polarity.", "Polarité inversée.",
                                  "Polarität vertauscht.", "Polaridad invertida."});
        row("Negativo Flottante.",
            {"Floating negative.", "Negatif flottant.", "Potentialfrei.", "Negativo flotante."});
        row("Tensione troppo bassa.", {"Voltage too low.", "Tension trop fiable.",
                                       "Spannung zu niedrig.", "Tension demasiado baja."});
        row("Corrente troppo bassa.", {"Current too low.", "Courant trop fiable.",
                                       "Strom zu niedrig.", "Corriente demasiado baja."});
        row("Problema di connessione al Power Device.",
            {"Problem of wiring to the power device.",
             "Problème de connection à l'appareil de puissance.",
             "Anschlussproblem an Power Device.",
             "Problema de conexión con el módulo de Potencia."});
        row("Eseguito ripristino modulo potenza.",
            {"Power module restore done.", "Restauration du module de puissance.",
             "Wiederherstellung des Power Device.", "Reanudada conexión al módulo de potencia."});
        row("Temperatura non rilevata.",
            {"Temperature not detected.", "Température non détectée.",
             "Temperatur nicht ermittelt.", "Valor de temperatura no detectado."});
        row("Irradiazione non rilevata.",
            {"Solar radiation value not detected.", "Valeur de radiation solaire non détecté.",
             "Sonneneinstrahlung nicht ermittelt.", "Valor de irradiancia no detectado."});
        row("Temperatura fuori limite.", {"Outside temperature limit.", "Température hors limite.",
                                          "Temperatur von Grenzen.", "Temperatura fuera límite."});
        row("Valori STC non disponibili.\nRipetere.",
            {"STC values are not available.\nRepeat.",
             "Valeurs STC pas disponibles.\nRepeter le test.",
             "STC werte nicht verfügbar.\nBitte wiederholen.",
             "Valores en STC no disponibles.\nRepita et test."});
        row("Delta Irraggiamento Elevato",
            {"Highly variable solar radiation", "Fort variation du valeur d'ensoleillement",
             "Einstrahlung sehr variabel", "Valor de la irradiancia inestable"});
        row("Misura Salvata.",
            {"Saved measure.", "Mesure sauvegardée.", "Messung gespeichert.", "Medida guardada."});
        row("Nome della misura già presente.",
            {"The measure name already exists.", "Ce nom de mesure déjà present.",
             "Dieser Messungsname ist bereits vorhanden.", "Este nombre de medida ya existe."});
    }
    void tabulatedRowsStandInBothScreensContexts()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, translations);
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        const _language langs[] = {LANG_EN, LANG_FR, LANG_DE, LANG_ES};
        const QByteArray text = source.toUtf8();
        for (int i = 0; i < 4; i++) {
            QTranslator translator;
            QVERIFY(loadTranslator(&translator, langs[i]));
            QCOMPARE(translator.translate("StringIV", text.constData()), translations[i]);
            QCOMPARE(translator.translate("PanelIV", text.constData()), translations[i]);
        }
        // the Italian catalogue gives the source text back
        QTranslator italian;
        QVERIFY(loadTranslator(&italian, LANG_IT));
        QCOMPARE(italian.translate("StringIV", text.constData()), source);
    }
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
