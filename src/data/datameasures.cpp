#include "data/datameasures.h"

#include "data/datapanel.h"
#include "data/direntry.h"
#include "data/recordfiles.h"
#include "data/workdir.h"
#include "platform/systemroot.h"

#include <cstdlib>
#include <cstring>
#include <unistd.h>

const char* measureDir(_meaType type)
{
    return type == MEA_STRING ? DIR_DATA_MEA_STRING : DIR_DATA_MEA_PANEL;
}

void measureFileName(const char* mdata, const char* mtime, char* target)
{
    char joined[MEASURE_NAME_SIZE];
    snprintf(joined, sizeof joined, "%s-%s", mdata, mtime);
    strlower(joined);
    size_t n = 0;
    for (const char* p = joined; *p != '\0'; p++) {
        unsigned char c = static_cast<unsigned char>(*p);
        if ((c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || c == '-')
            target[n++] = *p;
    }
    target[n] = '\0';
}

char* newFileNameMeasures(const char* mdata, const char* mtime, char* target, _meaType type)
{
    if (mdata == nullptr || mtime == nullptr || target == nullptr)
        return nullptr;
    measureFileName(mdata, mtime, target);
    // The caller writes the file from here: no way back on purpose.
    if (chdir(SystemRoot::path(measureDir(type)).c_str()) != 0)
        return nullptr;
    return target;
}

int saveMeasuresData(const _measure* m, _meaType type, unsigned sn)
{
    if (m == nullptr || m->mdata == nullptr || m->mtime == nullptr)
        return -4;
    char name[MEASURE_NAME_SIZE];
    if (newFileNameMeasures(m->mdata, m->mtime, name, type) == nullptr)
        return -3;
    // remembers the measure directory that newFileNameMeasures went into
    WorkDir wd;
    if (!wd.enter(measureDir(type)))
        return -2;
    FILE* f = fopen(name, "w");
    if (f == nullptr)
        return -1;

    int sum = fwriteTagInt(f, "FSN", static_cast<int>(sn));
    sum += fwriteTagStr(f, "VERSION", DATA_VERSION);
    sum += fwriteTagStr(f, "MDATA", m->mdata);
    sum += fwriteTagStr(f, "MTIME", m->mtime);
    sum += fwriteTagInt(f, "MNPAN", m->mnpan);
    sum += fwriteTagFloat(f, "MISC", m->misc);
    sum += fwriteTagFloat(f, "MVOC", m->mvoc);
    sum += fwriteTagFloat(f, "MIMPP", m->mimpp);
    sum += fwriteTagFloat(f, "MVMPP", m->mvmpp);
    sum += fwriteTagFloat(f, "MTEMP", m->mtemp);
    sum += fwriteTagInt(f, "MPROBE", m->mprobe);
    sum += fwriteTagFloat(f, "MIRR", m->mirr);
    sum += fwriteTagInt(f, "MCOMP", m->mcomp);
    sum += fwriteTagFloat(f, "MPMAX", m->mpmax);
    sum += fwriteTagFloat(f, "MDPMAX", m->mdpmax);
    sum += fwriteTagFloat(f, "SPMAX", m->spmax);
    sum += fwriteTagFloat(f, "SVOC", m->svoc);
    sum += fwriteTagFloat(f, "SVMPP", m->svmpp);
    sum += fwriteTagFloat(f, "SIMPP", m->simpp);
    sum += fwriteTagFloat(f, "SISC", m->sisc);
    sum += fwriteTagInt(f, "MTEST", m->mtest);
    sum += fwriteTagFloat(f, "MDEGY", m->mdegy);
    sum += fwriteTagFloat(f, "MDEGP", m->mdegp);
    sum += fwriteTagInt(f, "RRIMB", m->rrimb);
    sum += fwriteTagStr(f, "MCOM", m->mcom);
    sum += fwriteTagInt(f, "MRSTEST", m->mrstest);
    sum += fwriteTagFloat(f, "MRS", m->mrs);
    sum += fwriteTagFloat(f, "MRSI1", m->mrsi1);
    sum += fwriteTagFloat(f, "MRSI2", m->mrsi2);
    sum += fwriteTagStr(f, "RNAME", m->rname);
    sum += fwriteTagStr(f, "RBNAME", m->rbname);
    sum += fwriteTagFloatPrecision(f, "RPMAX", m->ref.pmax, 2);
    sum += fwriteTagFloatPrecision(f, "RNOCT", m->ref.noct, 2);
    sum += fwriteTagFloatPrecision(f, "RIMPP", m->ref.impp, 2);
    sum += fwriteTagFloatPrecision(f, "RVMPP", m->ref.vmpp, 2);
    sum += fwriteTagFloatPrecision(f, "RISC", m->ref.isc, 2);
    sum += fwriteTagFloatPrecision(f, "RVOC", m->ref.voc, 2);
    sum += fwriteTagInt(f, "RTYPE", m->ref.type);
    sum += fwriteTagFloatPrecision(f, "RKISC", m->ref.kisc, 4);
    sum += fwriteTagFloatPrecision(f, "RKVOC", m->ref.kvoc, 4);
    sum += fwriteTagFloatPrecision(f, "RKPMAX", m->ref.kpmax, 4);
    sum += fwriteTagFloatPrecision(f, "RTOLLP", m->ref.tollp, 2);
    sum += fwriteTagFloatPrecision(f, "RTOLLM", m->ref.tollm, 2);
    for (int k = 0; k < RAMP_POINTS; k++)
        sum += cFprintf(f, "%.4f\t%.4f\n", static_cast<double>(m->ramp.corrente[k]),
                        static_cast<double>(m->ramp.tensione[k]));
    fflush(f);
    fclose(f);
    return sum;
}

static void takeMeasureValue(_measure* m, const char* key, const char* value)
{
    struct FloatKey {
        const char* key;
        float _measure::*field;
    };
    static const FloatKey floatKeys[] = {
        {"MISC", &_measure::misc},   {"MVOC", &_measure::mvoc},     {"MIMPP", &_measure::mimpp},
        {"MVMPP", &_measure::mvmpp}, {"MPMAX", &_measure::mpmax},   {"SISC", &_measure::sisc},
        {"SVOC", &_measure::svoc},   {"SIMPP", &_measure::simpp},   {"SVMPP", &_measure::svmpp},
        {"SPMAX", &_measure::spmax}, {"MDPMAX", &_measure::mdpmax}, {"MTEMP", &_measure::mtemp},
        {"MIRR", &_measure::mirr},   {"MDEGY", &_measure::mdegy},   {"MDEGP", &_measure::mdegp},
        {"MRS", &_measure::mrs},     {"MRSI1", &_measure::mrsi1},   {"MRSI2", &_measure::mrsi2},
    };
    struct IntKey {
        const char* key;
        int _measure::*field;
    };
    static const IntKey intKeys[] = {
        {"MNPAN", &_measure::mnpan}, {"MPROBE", &_measure::mprobe}, {"MCOMP", &_measure::mcomp},
        {"RRIMB", &_measure::rrimb}, {"MTEST", &_measure::mtest},   {"MRSTEST", &_measure::mrstest},
    };
    struct RefKey {
        const char* key;
        float _panelFeature::*field;
    };
    static const RefKey refKeys[] = {
        {"RPMAX", &_panelFeature::pmax},   {"RIMPP", &_panelFeature::impp},
        {"RVMPP", &_panelFeature::vmpp},   {"RISC", &_panelFeature::isc},
        {"RVOC", &_panelFeature::voc},     {"RNOCT", &_panelFeature::noct},
        {"RKISC", &_panelFeature::kisc},   {"RKVOC", &_panelFeature::kvoc},
        {"RKPMAX", &_panelFeature::kpmax}, {"RTOLLP", &_panelFeature::tollp},
        {"RTOLLM", &_panelFeature::tollm},
    };

    if (strcmp(key, "VERSION") == 0) {
        _mea_version v = {0, 0, 0};
        sscanf(value, "%d.%d.%d", &v.major, &v.minor, &v.patch);
        m->version = v;
    } else if (strcmp(key, "MDATA") == 0) {
        takeData(&m->mdata, value);
    } else if (strcmp(key, "MTIME") == 0) {
        takeData(&m->mtime, value);
    } else if (strcmp(key, "MCOM") == 0) {
        takeData(&m->mcom, value);
    } else if (strcmp(key, "RNAME") == 0) {
        takeData(&m->rname, value);
    } else if (strcmp(key, "RBNAME") == 0) {
        takeData(&m->rbname, value);
    } else if (strcmp(key, "RTYPE") == 0) {
        m->ref.type = atoi(value);
    } else {
        for (const FloatKey& k : floatKeys)
            if (strcmp(key, k.key) == 0)
                m->*k.field = static_cast<float>(cAtof(value));
        for (const IntKey& k : intKeys)
            if (strcmp(key, k.key) == 0)
                m->*k.field = atoi(value);
        for (const RefKey& k : refKeys)
            if (strcmp(key, k.key) == 0)
                m->ref.*k.field = static_cast<float>(cAtof(value));
    }
}

int readMeasureData(const char* file, _measure* m, _meaType type)
{
    if (m == nullptr)
        return -1;
    memset(m, 0, sizeof *m);
    WorkDir wd;
    if (!wd.enter(measureDir(type)))
        return -2;
    if (file == nullptr)
        return -1;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return -1;

    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    // First pass: the tags. Point lines have no "=" and fall out by themselves.
    while (readTagLine(f, line)) {
        _tagLine kind = splitTagLine(line, key, value);
        if (kind == TAG_NOTE)
            skipNote(f);
        else if (kind == TAG_PAIR)
            takeMeasureValue(m, key, value);
    }

    // Second pass: every line without "=" is a point, current then voltage.
    rewind(f);
    float* corrente = m->ramp.corrente;
    float* tensione = m->ramp.tensione;
    int k = 0;
    while (k < RAMP_POINTS && readTagLine(f, line)) {
        if (line[0] == '<') {
            skipNote(f);
            continue;
        }
        if (strchr(line, '=') != nullptr)
            continue;
        char first[TAG_LINE_SIZE] = {0};
        char second[TAG_LINE_SIZE] = {0};
        sscanf(line, "%255s\t%255s", first, second);
        corrente[k] = static_cast<float>(cAtof(first));
        tensione[k] = static_cast<float>(cAtof(second));
        if (corrente[k] == 0.0f && tensione[k] == 0.0f) {
            // a zero point repeats the one before it; before the first point
            // stand the last reference value and the last current slot
            if (k == 0) {
                corrente[0] = m->ref.tollm;
                tensione[0] = corrente[RAMP_POINTS - 1];
            } else {
                corrente[k] = corrente[k - 1];
                tensione[k] = tensione[k - 1];
            }
        }
        k++;
    }
    fclose(f);

    if (k - 1 > 255)
        return k - 1;
    // A table of the 256-point ramps: from the last point read on, every slot
    // takes point 254. With no point at all the slot before the first point,
    // the last reference value, is overwritten too.
    float c254 = corrente[254];
    float t254 = tensione[254];
    if (k == 0)
        m->ref.tollm = c254;
    for (int i = k == 0 ? 0 : k - 1; i < RAMP_POINTS; i++) {
        corrente[i] = c254;
        tensione[i] = t254;
    }
    return RAMP_POINTS;
}

int getHeaderMeasures(const char* file, _listMeasures* node)
{
    if (file == nullptr || node == nullptr)
        return 1;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return 1;
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    while (readTagLine(f, line)) {
        if (splitTagLine(line, key, value) != TAG_PAIR)
            continue;
        if (strcmp(key, "MDATA") == 0)
            takeData(&node->mdata, value);
        else if (strcmp(key, "MTIME") == 0)
            takeData(&node->mtime, value);
        else if (strcmp(key, "MNPAN") == 0)
            takeData(&node->mnpan, value);
        else if (strcmp(key, "MCOM") == 0)
            takeData(&node->mcom, value);
        else if (strcmp(key, "MCOMP") == 0)
            takeData(&node->mcomp, value);
        else if (strcmp(key, "MTEST") == 0)
            takeData(&node->mtest, value);
    }
    fclose(f);
    return 0;
}

static void copyValue(char* target, int size, const char* value)
{
    if (target == nullptr || size <= 0)
        return;
    snprintf(target, static_cast<size_t>(size), "%s", value);
}

int getDataTimeComment(const char* file, char* date, int dateSize, char* time, int timeSize,
                       char* comment, int commentSize, _meaType type)
{
    if (date != nullptr && dateSize > 0)
        memset(date, 0, static_cast<size_t>(dateSize));
    if (time != nullptr && timeSize > 0)
        memset(time, 0, static_cast<size_t>(timeSize));
    if (comment != nullptr && commentSize > 0)
        memset(comment, 0, static_cast<size_t>(commentSize));
    WorkDir wd;
    if (!wd.enter(measureDir(type)))
        return -2;
    FILE* f = file != nullptr ? fopen(file, "r") : nullptr;
    if (f == nullptr)
        return -1;
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    while (readTagLine(f, line)) {
        if (splitTagLine(line, key, value) != TAG_PAIR)
            continue;
        if (strcmp(key, "MDATA") == 0)
            copyValue(date, dateSize, value);
        else if (strcmp(key, "MTIME") == 0)
            copyValue(time, timeSize, value);
        else if (strcmp(key, "MCOM") == 0)
            copyValue(comment, commentSize, value);
    }
    fclose(f);
    return 0;
}

_listMeasures* addMeasuresNode(_listMeasures* list, const char* file)
{
    _listMeasures* node = static_cast<_listMeasures*>(calloc(1, sizeof(_listMeasures)));
    if (node == nullptr)
        return list;
    node->file = file != nullptr ? strdup(file) : nullptr;
    // a measure whose file has gone keeps null texts
    getHeaderMeasures(file, node);
    node->next = list;
    return node;
}

_listMeasures* readListMeasures(QWidget* parent, _meaType type)
{
    _listMeasures* list = nullptr;
    walkDataDir(parent, "Read Measures...", measureDir(type), COUNT_FILES,
                [&list](const char* name) { list = addMeasuresNode(list, name); });
    return list;
}

_listMeasures* getSingleListMeasures(const char* file, _meaType type)
{
    if (file == nullptr)
        return nullptr;
    WorkDir wd;
    if (!wd.enter(measureDir(type)))
        return nullptr;
    return addMeasuresNode(nullptr, file);
}

int deleteMeasures(const char* file, _meaType type)
{
    WorkDir wd;
    if (!wd.enter(measureDir(type)))
        return -1;
    return myUnlink(file);
}

_listMeasures* closeListMeasures(_listMeasures* list)
{
    while (list != nullptr) {
        _listMeasures* next = list->next;
        free(list->mdata);
        free(list->mtime);
        free(list->unused1);
        free(list->unused2);
        free(list->mnpan);
        free(list->mcom);
        free(list->mcomp);
        free(list->mtest);
        free(list->file);
        free(list);
        list = next;
    }
    return nullptr;
}

void freeMeasureData(_measure* m)
{
    if (m == nullptr)
        return;
    free(m->mdata);
    free(m->mtime);
    free(m->mcom);
    free(m->rname);
    free(m->rbname);
    m->mdata = m->mtime = m->mcom = m->rname = m->rbname = nullptr;
}

bool isMeaMadeByBrask(_mea_version version)
{
    return version.major > 1 || version.minor > 5;
}
