#include "data/coredata.h"

#include <cctype>
#include <clocale>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <locale.h>

static locale_t cLocale()
{
    static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
}

double cAtof(const char* text)
{
    if (text == nullptr)
        return 0.0;
    return strtod_l(text, nullptr, cLocale());
}

// Switches the calling thread to the C locale while it lives.
class CLocaleScope
{
public:
    CLocaleScope() : previous(uselocale(cLocale())) {}
    ~CLocaleScope() { uselocale(previous); }
    CLocaleScope(const CLocaleScope&) = delete;
    CLocaleScope& operator=(const CLocaleScope&) = delete;

private:
    locale_t previous;
};

int cFprintf(FILE* stream, const char* format, ...)
{
    CLocaleScope c;
    va_list args;
    va_start(args, format);
    int n = vfprintf(stream, format, args);
    va_end(args);
    return n;
}

int cSscanf(const char* text, const char* format, ...)
{
    CLocaleScope c;
    va_list args;
    va_start(args, format);
    int n = vsscanf(text, format, args);
    va_end(args);
    return n;
}

int cSnprintf(char* target, size_t size, const char* format, ...)
{
    CLocaleScope c;
    va_list args;
    va_start(args, format);
    int n = vsnprintf(target, size, format, args);
    va_end(args);
    return n;
}

static bool lowerTag(const char* tag, char* buffer, size_t size)
{
    if (tag == nullptr)
        return false;
    strncpy(buffer, tag, size - 1);
    buffer[size - 1] = '\0';
    strlower(buffer);
    return true;
}

int fwriteTagStr(FILE* stream, const char* tag, const char* value)
{
    char key[TAG_KEY_SIZE];
    if (stream == nullptr || !lowerTag(tag, key, sizeof key))
        return -1;
    return fprintf(stream, "%s = %s\n", key, value == nullptr ? "~" : value);
}

int fwriteTagFloatPrecision(FILE* stream, const char* tag, float value, int precision)
{
    char key[TAG_KEY_SIZE];
    if (stream == nullptr || !lowerTag(tag, key, sizeof key))
        return -1;
    if (precision == 0)
        return cFprintf(stream, "%s = %f\n", key, static_cast<double>(value));
    return cFprintf(stream, "%s = %.*f\n", key, precision, static_cast<double>(value));
}

int fwriteTagFloat(FILE* stream, const char* tag, float value)
{
    return fwriteTagFloatPrecision(stream, tag, value, 0);
}

int fwriteTagInt(FILE* stream, const char* tag, int value)
{
    char key[TAG_KEY_SIZE];
    if (stream == nullptr || !lowerTag(tag, key, sizeof key))
        return -1;
    return fprintf(stream, "%s = %d\n", key, value);
}

char* allocData(char* old, const char* text)
{
    if (text == nullptr || strcmp(text, "~") == 0)
        return nullptr;
    size_t size = strlen(text) + 1;
    char* block = static_cast<char*>(realloc(old, size));
    if (block == nullptr)
        return old;
    memcpy(block, text, size);
    return block;
}

void takeData(char** field, const char* text)
{
    if (field == nullptr)
        return;
    char* block = allocData(*field, text);
    if (block == nullptr)
        free(*field);
    *field = block;
}

static const char* skipBlanks(const char* p)
{
    while (*p != '\0' && isspace(static_cast<unsigned char>(*p)))
        p++;
    return p;
}

void skipNote(FILE* stream)
{
    if (stream == nullptr)
        return;
    char line[TAG_LINE_SIZE];
    while (readTagLine(stream, line)) {
        if (*skipBlanks(line) == '<')
            return;
    }
}

char cupper(char c)
{
    unsigned char u = static_cast<unsigned char>(c);
    return (u >= 97 && u <= 122) ? static_cast<char>(u - 32) : c;
}

char clower(char c)
{
    unsigned char u = static_cast<unsigned char>(c);
    return (u >= 65 && u <= 90) ? static_cast<char>(u + 32) : c;
}

void strupper(char* text)
{
    if (text == nullptr)
        return;
    for (; *text != '\0'; text++)
        *text = cupper(*text);
}

void strlower(char* text)
{
    if (text == nullptr)
        return;
    for (; *text != '\0'; text++)
        *text = clower(*text);
}

void strunderline(char* text, int* count)
{
    int blanks = 0;
    if (text != nullptr) {
        for (; *text != '\0'; text++) {
            unsigned char u = static_cast<unsigned char>(*text);
            if (u == ' ')
                blanks++;
            if (u == ' ' || (u >= 0x21 && u <= 0x2F) || (u >= 0x3A && u <= 0x40) ||
                (u >= 0x5B && u <= 0x5D))
                *text = '_';
        }
    }
    if (count != nullptr)
        *count = blanks;
}

static bool endsKey(unsigned char c)
{
    // printable 7-bit characters only; a blank, "#", "=" or a tab ends the key
    return c < 0x20 || c > 0x7E || c == ' ' || c == '#' || c == '=' || c == '\t';
}

_tagLine splitTagLine(const char* line, char key[TAG_KEY_SIZE], char value[TAG_VALUE_SIZE])
{
    memset(key, 0, TAG_KEY_SIZE);
    memset(value, 0, TAG_VALUE_SIZE);
    if (line == nullptr)
        return TAG_SKIP;

    const char* p = skipBlanks(line);
    if (*p == '#' || *p == '\0')
        return TAG_SKIP;

    // A key longer than the key buffer is cut; what is left of it then stands
    // where the "=" should be, so the line is not taken.
    size_t k = 0;
    while (!endsKey(static_cast<unsigned char>(*p)) && k < TAG_KEY_SIZE - 1)
        key[k++] = *p++;
    if (k == 0)
        return TAG_SKIP;
    strupper(key);

    p = skipBlanks(p);
    if (*p == '<')
        return TAG_NOTE;
    if (*p != '=')
        return TAG_NO_EQUALS;

    p = skipBlanks(p + 1);
    size_t v = 0;
    while (*p != '\0' && *p != '\r' && *p != '\n' && v < TAG_VALUE_SIZE - 1)
        value[v++] = *p++;
    if (v == 0)
        return TAG_SKIP;
    return TAG_PAIR;
}

bool readTagLine(FILE* stream, char line[TAG_LINE_SIZE])
{
    if (stream == nullptr)
        return false;
    size_t n = 0;
    int c = EOF;
    bool any = false;
    while ((c = getc(stream)) != EOF) {
        any = true;
        if (n < TAG_LINE_SIZE - 1)
            line[n++] = static_cast<char>(c);
        if (c == '\n')
            break;
    }
    line[n] = '\0';
    return any;
}
