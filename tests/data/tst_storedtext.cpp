#include "data/storedtext.h"

#include <QtTest>

// Texts of the files as the screens take them: UTF-8, or Latin-1 when the
// bytes are not valid UTF-8 (files of older instruments).
class TestStoredText : public QObject
{
    Q_OBJECT
private slots:
    void textsSpeakUtf8_validUtf8IsReadAsUtf8()
    {
        QCOMPARE(storedText("Citt\xc3\xa0 \xe2\x82\xac"), QString::fromUtf8("Città €"));
        QCOMPARE(storedText("plain"), QString("plain"));
        QCOMPARE(storedText(""), QString(""));
    }
    void textsSpeakUtf8_aTextThatIsNotUtf8IsReadAsLatin1()
    {
        // "Città" and "Müller" as an older instrument wrote them
        QCOMPARE(storedText("Citt\xe0"), QString::fromUtf8("Città"));
        QCOMPARE(storedText("M\xfcller GmbH"), QString::fromUtf8("Müller GmbH"));
        // a cut UTF-8 sequence is not UTF-8 either: every byte is kept
        QCOMPARE(storedText("ab\xc3"), QString::fromUtf8("abÃ"));
    }
    void textsSpeakUtf8_everyStoredTextComesBackByteForByte()
    {
        // a leading byte-order mark, an overlong sequence, a lone surrogate
        for (const char* bytes : {"\xef\xbb\xbf"
                                  "abc",
                                  "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\x7f\x01"}) {
            QString text = storedText(bytes);
            QVERIFY2(textToStore(text) == QByteArray(bytes) || text.toLatin1() == QByteArray(bytes),
                     bytes);
        }
    }
    void textsSpeakUtf8_nullIsANullText() { QVERIFY(storedText(nullptr).isNull()); }
    void textsSpeakUtf8_textsAreWrittenInUtf8AndReadBackWhole()
    {
        const QString text = QString::fromUtf8("Ümlaut é ß ") + QString(240, QChar(0x20AC));
        QCOMPARE(textToStore(text), text.toUtf8());
        QCOMPARE(storedText(textToStore(text).constData()), text);
    }
};

QTEST_GUILESS_MAIN(TestStoredText)
#include "tst_storedtext.moc"
