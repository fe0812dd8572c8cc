#include "data/datasetting.h"

#include "data/workdir.h"

#include <cstdlib>
#include <cstring>

#define DEFAULT_BLUEMAC "00:00:00:00:00:00"
#define DEFAULT_BLUENAME "KRM510"

static const char* const languageCodes[] = {"it", "en", "fr", "de", "es"};

void defaultConfig(_configParam* c)
{
    memset(c, 0, sizeof *c);
    c->sn = 0;
    c->tclock = CLOCK_DATE_TIME;
    c->lang = LANG_IT;
    c->adci0 = 0.0032f;
    c->adci1 = 0.0064f;
    c->adci0offset = 0;
    c->adci1offset = 0;
    c->adcv0 = 0.141333f;
    c->adcv1 = 0.282624f;
    c->adcv0offset = -0.002624f;
    c->adcv1offset = 0.147721f;
    c->tmmod = 1.0f;
    c->tomod = 0.0f;
    c->tmenv = 1.0f;
    c->toenv = 0.0f;
    c->kpyra = 26.17963f;
    c->cpyar = 10.54f;
    c->irrmin = 600.0f;
    c->utemp = 45.0f;
    c->tprobe = PROBE_MODULE;
    c->remote = LINK_LOCAL;
    c->bright = 100;
    strcpy(c->bluemac, DEFAULT_BLUEMAC);
    strcpy(c->bluename, DEFAULT_BLUENAME);
}

static void takeConfigValue(_configParam* c, const char* key, const char* value)
{
    if (strcmp(key, "SN") == 0) {
        c->sn = static_cast<unsigned int>(strtoul(value, nullptr, 10));
    } else if (strcmp(key, "TCLOCK") == 0) {
        int v = atoi(value);
        c->tclock = static_cast<_displayClock>(v > 2 ? 0 : v);
    } else if (strcmp(key, "LANG") == 0) {
        char code[TAG_VALUE_SIZE];
        strcpy(code, value);
        strlower(code);
        for (int i = 0; i < 5; i++)
            if (strcmp(code, languageCodes[i]) == 0)
                c->lang = static_cast<_language>(i);
    } else if (strcmp(key, "ADCI") == 0) {
        c->adci0 = static_cast<float>(cAtof(value));
        c->adci1 = c->adci0 + c->adci0;
        c->adci0offset = 0;
        c->adci1offset = 0;
    } else if (strcmp(key, "ADCV") == 0) {
        c->adcv0 = static_cast<float>(cAtof(value));
        c->adcv1 = c->adcv0 + c->adcv0;
        c->adcv0offset = -0.002624f;
        c->adcv1offset = 0.147721f;
    } else if (strcmp(key, "ADCI0") == 0) {
        c->adci0 = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "ADCI1") == 0) {
        c->adci1 = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "ADCI0OFFSET") == 0) {
        c->adci0offset = atoi(value);
    } else if (strcmp(key, "ADCI1OFFSET") == 0) {
        c->adci1offset = atoi(value);
    } else if (strcmp(key, "ADCV0") == 0) {
        c->adcv0 = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "ADCV1") == 0) {
        c->adcv1 = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "ADCV0OFFSET") == 0) {
        c->adcv0offset = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "ADCV1OFFSET") == 0) {
        c->adcv1offset = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "TMMOD") == 0) {
        c->tmmod = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "TOMOD") == 0) {
        c->tomod = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "TMENV") == 0) {
        c->tmenv = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "TOENV") == 0) {
        c->toenv = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "KPYRA") == 0) {
        c->kpyra = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "CPYAR") == 0) {
        c->cpyar = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "IRRMIN") == 0) {
        c->irrmin = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "UTEMP") == 0) {
        c->utemp = static_cast<float>(cAtof(value));
    } else if (strcmp(key, "TPROBE") == 0) {
        c->tprobe = static_cast<_probeTemp>(atoi(value));
    } else if (strcmp(key, "REMOTE") == 0) {
        c->remote = static_cast<_remoteUnitLink>(atoi(value));
    } else if (strcmp(key, "BRIGHT") == 0) {
        c->bright = atoi(value);
    } else if (strcmp(key, "BLUEMAC") == 0) {
        if (strlen(value) > BLUEMAC_SIZE - 1)
            strcpy(c->bluemac, DEFAULT_BLUEMAC);
        else
            strcpy(c->bluemac, value);
    } else if (strcmp(key, "BLUENAME") == 0) {
        // the old reader replaced a name of 60 characters, which the
        // settings screen accepts, by the default at the next start: stored
        // data is never lost, the name keeps its 60 characters
        if (strlen(value) > BLUENAME_SIZE - 1)
            strcpy(c->bluename, DEFAULT_BLUENAME);
        else
            strcpy(c->bluename, value);
    }
}

int readConfigFile(_configParam* config)
{
    if (config == nullptr)
        return -1;
    defaultConfig(config);

    WorkDir wd;
    if (!wd.enter(CONFIG_DIR))
        return -2;
    FILE* f = fopen(CONFIG_FILE, "r");
    if (f == nullptr)
        return -1;

    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    while (readTagLine(f, line)) {
        if (splitTagLine(line, key, value) == TAG_PAIR)
            takeConfigValue(config, key, value);
    }
    fclose(f);
    return 0;
}

int saveConfigFile(_configParam config)
{
    WorkDir wd;
    if (!wd.enter(CONFIG_DIR))
        return -3;
    FILE* f = fopen(CONFIG_FILE, "w");
    if (f == nullptr)
        return -2;

    // sn and the language code pass through the same small buffer
    char text[16];
    int sum = -1;
    sum += fprintf(f, "#\n# krm510 configuration file\n#\n");
    sum += fprintf(f, "# do not edit!\n");
    snprintf(text, sizeof text, "%06d", static_cast<int>(config.sn));
    sum += fwriteTagStr(f, "SN", text);
    sum += fwriteTagInt(f, "TCLOCK", config.tclock);
    int lang = config.lang;
    strcpy(text, (lang >= 1 && lang <= 4) ? languageCodes[lang] : "it");
    sum += fwriteTagStr(f, "LANG", text);
    sum += fwriteTagFloat(f, "ADCI0", config.adci0);
    sum += fwriteTagFloat(f, "ADCI1", config.adci1);
    sum += fwriteTagInt(f, "ADCI0OFFSET", config.adci0offset);
    sum += fwriteTagInt(f, "ADCI1OFFSET", config.adci1offset);
    sum += fwriteTagFloat(f, "ADCV0", config.adcv0);
    sum += fwriteTagFloat(f, "ADCV1", config.adcv1);
    sum += fwriteTagFloat(f, "ADCV0OFFSET", config.adcv0offset);
    sum += fwriteTagFloat(f, "ADCV1OFFSET", config.adcv1offset);
    sum += fwriteTagFloat(f, "TMMOD", config.tmmod);
    sum += fwriteTagFloat(f, "TOMOD", config.tomod);
    sum += fwriteTagFloat(f, "TMENV", config.tmenv);
    sum += fwriteTagFloat(f, "TOENV", config.toenv);
    sum += fwriteTagFloat(f, "KPYRA", config.kpyra);
    sum += fwriteTagFloat(f, "CPYAR", config.cpyar);
    sum += fwriteTagFloat(f, "IRRMIN", config.irrmin);
    sum += fwriteTagFloat(f, "UTEMP", config.utemp);
    sum += fwriteTagInt(f, "TPROBE", config.tprobe);
    sum += fwriteTagInt(f, "REMOTE", config.remote);
    sum += fwriteTagInt(f, "BRIGHT", config.bright);
    config.bluemac[BLUEMAC_SIZE - 1] = '\0';
    config.bluename[BLUENAME_SIZE - 1] = '\0';
    sum += fwriteTagStr(f, "BLUEMAC", config.bluemac);
    sum += fwriteTagStr(f, "BLUENAME", config.bluename);
    fclose(f);
    return sum;
}
