#include "data/coredata.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QtTest>
#include <cmath>
#include <cstdlib>
#include <cstring>

// Helpers to feed one line through the splitter.
struct Split {
    _tagLine kind;
    QByteArray key;
    QByteArray value;
};

static Split split(const char* line)
{
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    _tagLine kind = splitTagLine(line, key, value);
    return Split{kind, QByteArray(key), QByteArray(value)};
}

static QByteArray written(int (*write)(FILE*))
{
    char* buffer = nullptr;
    size_t size = 0;
    FILE* f = open_memstream(&buffer, &size);
    write(f);
    fclose(f);
    QByteArray out(buffer, static_cast<int>(size));
    free(buffer);
    return out;
}

class TestCoreData : public QObject
{
    Q_OBJECT
private slots:
    // ---- the tag grammar
    void valueWithEmbeddedEqualsOrHashIsKeptWhole()
    {
        Split s = split("mcom = a=b # c\n");
        QCOMPARE(s.kind, TAG_PAIR);
        QCOMPARE(s.key, QByteArray("MCOM"));
        QCOMPARE(s.value, QByteArray("a=b # c"));
    }
    void tildeTextFieldReadsBackAsNull()
    {
        Split s = split("rname = ~\n");
        QCOMPARE(s.kind, TAG_PAIR);
        char* field = allocData(nullptr, s.value.constData());
        QVERIFY(field == nullptr);
    }
    void keyInUpperCaseIsAccepted()
    {
        QCOMPARE(split("PMAX = 250\n").key, QByteArray("PMAX"));
        QCOMPARE(split("pMaX = 250\n").key, QByteArray("PMAX"));
    }
    void lineOfOnlyBlanksIsIgnored()
    {
        QCOMPARE(split("   \t  \n").kind, TAG_SKIP);
        QCOMPARE(split("").kind, TAG_SKIP);
    }
    void keyWithoutEqualsIsReported()
    {
        Split s = split("pmax 250\n");
        QCOMPARE(s.kind, TAG_NO_EQUALS);
        QCOMPARE(s.key, QByteArray("PMAX"));
        QCOMPARE(split("pmax\n").kind, TAG_NO_EQUALS);
    }
    void lessThanAfterKeyOpensANote()
    {
        QCOMPARE(split("note <\n").kind, TAG_NOTE);
        QCOMPARE(split("  NOTE   <begin\n").kind, TAG_NOTE);
    }
    void valueWithTrailingBlanksKeepsThem()
    {
        QCOMPARE(split("name = ABC 250   \r\n").value, QByteArray("ABC 250   "));
    }
    void commentLineIsIgnored()
    {
        QCOMPARE(split("# pmax = 3\n").kind, TAG_SKIP);
        QCOMPARE(split("   # pmax = 3\n").kind, TAG_SKIP);
    }
    void emptyValueIsIgnored()
    {
        QCOMPARE(split("pmax =\n").kind, TAG_SKIP);
        QCOMPARE(split("pmax =    \r\n").kind, TAG_SKIP);
    }
    void emptyKeyIsIgnored()
    {
        QCOMPARE(split("= 3\n").kind, TAG_SKIP);
        QCOMPARE(split("\x01key = 3\n").kind, TAG_SKIP);
    }
    void blanksAroundTheEqualsAreSkipped()
    {
        Split s = split("\t pmax\t=\t 250.5\n");
        QCOMPARE(s.kind, TAG_PAIR);
        QCOMPARE(s.key, QByteArray("PMAX"));
        QCOMPARE(s.value, QByteArray("250.5"));
    }
    void hashEndsTheKey()
    {
        Split s = split("pmax#x = 1\n");
        QCOMPARE(s.kind, TAG_NO_EQUALS);
        QCOMPARE(s.key, QByteArray("PMAX"));
    }
    void byteAboveAsciiEndsTheKey()
    {
        Split s = split("pm\xe0x = 1\n");
        QCOMPARE(s.kind, TAG_NO_EQUALS);
        QCOMPARE(s.key, QByteArray("PM"));
    }
    void bytesAboveAsciiInAValueAreKept()
    {
        QCOMPARE(split("mcom = citt\xe0 \xff\n").value, QByteArray("citt\xe0 \xff"));
    }
    void keyLongerThanItsBufferIsNotTaken()
    {
        QByteArray line(200, 'K');
        line += " = 1\n";
        Split s = split(line.constData());
        QCOMPARE(s.kind, TAG_NO_EQUALS);
        QCOMPARE(s.key.size(), TAG_KEY_SIZE - 1);
    }
    void valueEndsAtCarriageReturn()
    {
        QCOMPARE(split("a = 1\r2\n").value, QByteArray("1"));
    }
    static QList<Split> linesOf(const TestRoot& root, const QByteArray& content)
    {
        root.write("/etc/long", content);
        FILE* f = fopen(root.path("/etc/long").toLocal8Bit().constData(), "r");
        QList<Split> lines;
        char line[TAG_LINE_SIZE];
        while (f != nullptr && readTagLine(f, line))
            lines.append(split(line));
        if (f != nullptr)
            fclose(f);
        return lines;
    }
    // The old reader took a line in pieces of 255 bytes, each read as a line
    // of its own; stored data is never lost: a line is whole up to the bound.
    void storedDataNeverLost_lineOf1000CharactersIsReadWhole()
    {
        TestRoot root;
        QList<Split> lines = linesOf(root, "mcom = " + QByteArray(993, 'x') + "\npmax = 7\n");
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].kind, TAG_PAIR);
        QCOMPARE(lines[0].value, QByteArray(993, 'x'));
        QCOMPARE(lines[1].value, QByteArray("7"));
    }
    void storedDataNeverLost_lineBeyondTheBoundIsSkippedNeverTakenForTheNextLine()
    {
        TestRoot root;
        QList<Split> lines = linesOf(root, "mcom = " + QByteArray(5000, 'x') + "\nmcom = y\n" +
                                               QByteArray(TAG_LINE_SIZE - 1, 'z') + "\npmax = 7");
        // 1023 bytes of the first line are kept, the rest of it skipped; a
        // line of exactly 1023 bytes and a last line without a newline are whole
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0].value, QByteArray(TAG_LINE_SIZE - 1 - 7, 'x'));
        QCOMPARE(lines[1].value, QByteArray("y"));
        QCOMPARE(lines[2].kind, TAG_NO_EQUALS);
        QCOMPARE(lines[3].value, QByteArray("7"));
    }
    void storedDataNeverLost_lineOfExactlyTheBoundKeepsTheNextLine()
    {
        TestRoot root;
        // 1023 bytes and the newline: the newline is beyond the bound
        QList<Split> lines =
            linesOf(root, "a = " + QByteArray(TAG_LINE_SIZE - 1 - 4, 'v') + "\nb = 2\n");
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].value.size(), TAG_LINE_SIZE - 1 - 4);
        QCOMPARE(lines[1].key, QByteArray("B"));
    }
    void storedDataNeverLost_noteBlockWithLongLinesIsSkippedWhole()
    {
        TestRoot root;
        QVERIFY(root.write("/etc/note", "note <\n" + QByteArray(3000, '<') + "x\n" +
                                            QByteArray(3000, 'n') + "\n<\nb = 2\n"));
        FILE* f = fopen(root.path("/etc/note").toLocal8Bit().constData(), "r");
        char line[TAG_LINE_SIZE];
        QVERIFY(readTagLine(f, line));
        QCOMPARE(split(line).kind, TAG_NOTE);
        skipNote(f); // the long line of "<" closes it
        QVERIFY(readTagLine(f, line));
        QCOMPARE(split(line).kind, TAG_NO_EQUALS); // the line of n's
        fclose(f);
    }
    void nulByteEndsTheLineText()
    {
        TestRoot root;
        QVERIFY(root.write("/etc/nul", QByteArray("pmax = 12\0xx\nvoc = 3\n", 21)));
        FILE* f = fopen(root.path("/etc/nul").toLocal8Bit().constData(), "r");
        char line[TAG_LINE_SIZE];
        QVERIFY(readTagLine(f, line));
        Split s = split(line);
        QCOMPARE(s.value, QByteArray("12"));
        QVERIFY(readTagLine(f, line));
        QCOMPARE(split(line).key, QByteArray("VOC"));
        QVERIFY(!readTagLine(f, line));
        fclose(f);
    }
    void readTagLineOfNullStreamIsTheEnd()
    {
        char line[TAG_LINE_SIZE];
        QVERIFY(!readTagLine(nullptr, line));
        QCOMPARE(split(nullptr).kind, TAG_SKIP);
    }

    // ---- tag writers
    void tagIsWrittenInLowerCase()
    {
        QCOMPARE(written([](FILE* f) { return fwriteTagInt(f, "MNPAN", 12); }),
                 QByteArray("mnpan = 12\n"));
    }
    void nullTextIsWrittenAsTilde()
    {
        QCOMPARE(written([](FILE* f) { return fwriteTagStr(f, "RNAME", nullptr); }),
                 QByteArray("rname = ~\n"));
    }
    void floatIsWrittenWithSixDecimals()
    {
        QCOMPARE(written([](FILE* f) { return fwriteTagFloat(f, "Pmax", 250.5f); }),
                 QByteArray("pmax = 250.500000\n"));
    }
    void floatPrecisionZeroMeansSixDecimals()
    {
        QCOMPARE(written([](FILE* f) { return fwriteTagFloatPrecision(f, "v", 1.25f, 0); }),
                 QByteArray("v = 1.250000\n"));
        QCOMPARE(written([](FILE* f) { return fwriteTagFloatPrecision(f, "v", 1.25f, 2); }),
                 QByteArray("v = 1.25\n"));
    }
    void nanIsWrittenAsNan()
    {
        QCOMPARE(written([](FILE* f) { return fwriteTagFloat(f, "sisc", NAN); }),
                 QByteArray("sisc = nan\n"));
    }
    // The old instrument wrote and read the numbers of its files in the
    // process locale; files speak C whatever the locale.
    void filesSpeakC_floatIsWrittenWithAPointUnderACommaLocale()
    {
        CommaLocale comma;
        if (!comma.active())
            QSKIP("no locale with a decimal comma on this machine");
        char text[16];
        snprintf(text, sizeof text, "%.2f", 1.5);
        QCOMPARE(QByteArray(text), QByteArray("1,50")); // the locale is in force
        QCOMPARE(written([](FILE* f) { return fwriteTagFloatPrecision(f, "v", 1.25f, 2); }),
                 QByteArray("v = 1.25\n"));
        QCOMPARE(written([](FILE* f) { return fwriteTagFloat(f, "v", -1.25f); }),
                 QByteArray("v = -1.250000\n"));
        QCOMPARE(written([](FILE* f) { return cFprintf(f, "%.4f", 2.5); }), QByteArray("2.5000"));
        cSnprintf(text, sizeof text, "%.1f", 0.5);
        QCOMPARE(QByteArray(text), QByteArray("0.5"));
        // the locale of the process is left as it was
        snprintf(text, sizeof text, "%.1f", 0.5);
        QCOMPARE(QByteArray(text), QByteArray("0,5"));
    }
    void filesSpeakC_numbersAreReadWithAPointUnderACommaLocale()
    {
        CommaLocale comma;
        if (!comma.active())
            QSKIP("no locale with a decimal comma on this machine");
        QCOMPARE(atof("1.25"), 1.0); // what the old reading gave
        QCOMPARE(cAtof("1.25"), 1.25);
        QCOMPARE(cAtof("1,25"), 1.0);
        QCOMPARE(cAtof("-3.5e2"), -350.0);
        QVERIFY(std::isnan(cAtof("nan")));
        QCOMPARE(cAtof(nullptr), 0.0);
    }
    void writersReturnTheCharacterCount()
    {
        char* buffer = nullptr;
        size_t size = 0;
        FILE* f = open_memstream(&buffer, &size);
        QCOMPARE(fwriteTagStr(f, "name", "abc"), 11);
        QCOMPARE(fwriteTagInt(f, "n", -5), 7);
        fclose(f);
        free(buffer);
    }
    void writersRefuseNullStreamOrTag()
    {
        QCOMPARE(fwriteTagStr(nullptr, "a", "b"), -1);
        QCOMPARE(fwriteTagInt(nullptr, "a", 1), -1);
        QCOMPARE(fwriteTagFloat(nullptr, "a", 1), -1);
        char* buffer = nullptr;
        size_t size = 0;
        FILE* f = open_memstream(&buffer, &size);
        QCOMPARE(fwriteTagStr(f, nullptr, "b"), -1);
        QCOMPARE(fwriteTagFloatPrecision(f, nullptr, 1, 2), -1);
        fclose(f);
        QCOMPARE(size, size_t(0));
        free(buffer);
    }
    void writeToFullDeviceGivesNoError()
    {
        // the writers count what they hand to the stream; a full disk shows
        // only when the stream is closed
        FILE* f = fopen("/dev/full", "w");
        QVERIFY(f != nullptr);
        QCOMPARE(fwriteTagInt(f, "a", 1), 6);
        QVERIFY(fclose(f) != 0);
    }

    // ---- allocData
    void allocDataCopiesTheText()
    {
        char* field = allocData(nullptr, "Solar");
        QCOMPARE(QByteArray(field), QByteArray("Solar"));
        field = allocData(field, "a longer text than before");
        QCOMPARE(QByteArray(field), QByteArray("a longer text than before"));
        free(field);
    }
    void allocDataOfTildeLeavesOldBlockAlone()
    {
        char* old = allocData(nullptr, "keep");
        char* field = allocData(old, "~");
        QVERIFY(field == nullptr);
        QCOMPARE(QByteArray(old), QByteArray("keep"));
        free(old);
    }
    void allocDataOfTildeWithMoreTextIsAText()
    {
        char* field = allocData(nullptr, "~ ");
        QCOMPARE(QByteArray(field), QByteArray("~ "));
        free(field);
    }

    // ---- skipNote
    void skipNoteStopsAfterTheClosingLine()
    {
        TestRoot root;
        QVERIFY(root.write("/etc/note", "free text\n  more = 3\n   < end\npmax = 1\n"));
        FILE* f = fopen(root.path("/etc/note").toLocal8Bit().constData(), "r");
        skipNote(f);
        char line[TAG_LINE_SIZE];
        QVERIFY(readTagLine(f, line));
        QCOMPARE(QByteArray(line), QByteArray("pmax = 1\n"));
        fclose(f);
    }
    void skipNoteRunsToTheEndWithoutClosingLine()
    {
        TestRoot root;
        QVERIFY(root.write("/etc/note", "a\nb\nc"));
        FILE* f = fopen(root.path("/etc/note").toLocal8Bit().constData(), "r");
        skipNote(f);
        QVERIFY(feof(f));
        fclose(f);
        skipNote(nullptr);
    }

    // ---- case and file names
    void strupperChangesAsciiLettersOnly()
    {
        char text[] = "abz{}\xe0\x7f AZ09";
        strupper(text);
        QCOMPARE(QByteArray(text), QByteArray("ABZ{}\xe0\x7f AZ09"));
    }
    void strlowerChangesAsciiLettersOnly()
    {
        char text[] = "ABZ[]@\xc0 az09";
        strlower(text);
        QCOMPARE(QByteArray(text), QByteArray("abz[]@\xc0 az09"));
        QCOMPARE(cupper('q'), 'Q');
        QCOMPARE(clower('Q'), 'q');
        QCOMPARE(clower('\xd0'), '\xd0');
    }
    void strunderlineReplacesPunctuationAndCountsBlanks()
    {
        char text[] = "Solar Co. s.r.l/ 250W";
        int blanks = -1;
        strunderline(text, &blanks);
        QCOMPARE(QByteArray(text), QByteArray("Solar_Co__s_r_l__250W"));
        QCOMPARE(blanks, 3);
    }
    void strunderlineKeepsTheCharactersItMust()
    {
        char text[] = "az09^{|}~\xe8_`";
        int blanks = -1;
        strunderline(text, &blanks);
        QCOMPARE(QByteArray(text), QByteArray("az09^{|}~\xe8_`"));
        QCOMPARE(blanks, 0);
    }
    void strunderlineReplacesEveryByteOfItsRanges()
    {
        for (int c = 1; c < 256; c++) {
            char text[2] = {static_cast<char>(c), 0};
            int blanks = 0;
            strunderline(text, &blanks);
            bool replaced = c == 0x20 || (c >= 0x21 && c <= 0x2F) || (c >= 0x3A && c <= 0x40) ||
                            (c >= 0x5B && c <= 0x5D);
            QCOMPARE(text[0] == '_' && c != '_', replaced);
            QCOMPARE(blanks, c == 0x20 ? 1 : 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestCoreData)
#include "tst_coredata.moc"
