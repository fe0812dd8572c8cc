#ifndef KRM_TESTS_FIVELANGUAGES_H
#define KRM_TESTS_FIVELANGUAGES_H

#include <QString>
#include <QStringList>
#include <QTranslator>
#include <functional>
#include <memory>

class QWidget;

// The instrument's screens in each of its five languages: the catalogues
// compiled by the build, one data row per language, each screen shot into
// build/screenshots/<screen>-<language>.png and checked for legibility.

// The short name of a language of the instrument (0 "it" to 4 "es").
const char* languageCode(int lang);

// The data rows "it", "en", "fr", "de", "es" of column "lang" (the int of
// the language).
void languageRows();

// The compiled catalogue of the language installed for the object's life.
class ShownLanguage
{
public:
    explicit ShownLanguage(int lang);
    ~ShownLanguage();
    ShownLanguage(const ShownLanguage&) = delete;
    ShownLanguage& operator=(const ShownLanguage&) = delete;

    bool loaded() const { return isLoaded; }

private:
    QTranslator translator;
    bool isLoaded;
};

// One screen of a table of screens: the name of its pictures and what builds
// it as the operator finds it (its records read, its fields filled).
struct ScreenMaker {
    const char* name;
    std::function<std::unique_ptr<QWidget>()> make;
};

// The screen shown (a window of 1024 x 600 unless it is smaller by its own
// choice: a dialog with a fixed size keeps it), its picture saved as
// <name>-<code of lang>.png, and what legibilityFaults finds on it, each
// fault named with the screen.
QStringList shootInLanguage(QWidget* screen, const QString& name, int lang);

// Every screen of the table built, shot and checked in turn, each closed
// before the next is built: the faults of all of them.
QStringList shootAllInLanguage(const QList<ScreenMaker>& screens, int lang);

#endif
