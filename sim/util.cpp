#include "util.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace sim {

double nowMs()
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<double>(ts.tv_sec) * 1000.0 + static_cast<double>(ts.tv_nsec) / 1e6;
}

std::vector<std::string> splitWords(const std::string& text)
{
    std::vector<std::string> words;
    std::string word;
    for (char c : text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            if (!word.empty())
                words.push_back(word);
            word.clear();
        } else {
            word += c;
        }
    }
    if (!word.empty())
        words.push_back(word);
    return words;
}

std::string toHex(const std::string& bytes)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (unsigned char c : bytes) {
        text += digits[c >> 4];
        text += digits[c & 0x0F];
    }
    return text;
}

static int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

bool fromHex(const std::string& text, std::string* bytes)
{
    if (text.size() % 2 != 0)
        return false;
    bytes->clear();
    for (size_t i = 0; i < text.size(); i += 2) {
        int hi = hexDigit(text[i]);
        int lo = hexDigit(text[i + 1]);
        if (hi < 0 || lo < 0)
            return false;
        *bytes += static_cast<char>(hi * 16 + lo);
    }
    return true;
}

std::string escape(const std::string& bytes)
{
    std::string text;
    for (unsigned char c : bytes) {
        switch (c) {
        case '\r':
            text += "\\r";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\t':
            text += "\\t";
            break;
        case '\\':
            text += "\\\\";
            break;
        case ' ':
            text += "\\x20";
            break;
        default:
            if (c < 0x20 || c >= 0x7F)
                text += format("\\x%02x", c);
            else
                text += static_cast<char>(c);
        }
    }
    return text;
}

std::string unescape(const std::string& text)
{
    std::string bytes;
    for (size_t i = 0; i < text.size(); i++) {
        char c = text[i];
        if (c != '\\' || i + 1 >= text.size()) {
            bytes += c;
            continue;
        }
        char e = text[++i];
        switch (e) {
        case 'r':
            bytes += '\r';
            break;
        case 'n':
            bytes += '\n';
            break;
        case 't':
            bytes += '\t';
            break;
        case '0':
            bytes += '\0';
            break;
        case 's':
            bytes += ' ';
            break;
        case 'x':
            if (i + 2 < text.size() && hexDigit(text[i + 1]) >= 0 && hexDigit(text[i + 2]) >= 0) {
                bytes += static_cast<char>(hexDigit(text[i + 1]) * 16 + hexDigit(text[i + 2]));
                i += 2;
            } else {
                bytes += 'x';
            }
            break;
        default:
            bytes += e;
        }
    }
    return bytes;
}

std::string format(const char* fmt, ...)
{
    char buffer[1024];
    va_list args;
    va_start(args, fmt);
    int n = vsnprintf(buffer, sizeof buffer, fmt, args);
    va_end(args);
    if (n < 0)
        return std::string();
    if (static_cast<size_t>(n) < sizeof buffer)
        return std::string(buffer, static_cast<size_t>(n));
    std::string big(static_cast<size_t>(n) + 1, '\0');
    va_start(args, fmt);
    vsnprintf(&big[0], big.size(), fmt, args);
    va_end(args);
    big.resize(static_cast<size_t>(n));
    return big;
}

bool parseDouble(const std::string& text, double* value)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    errno = 0;
    double v = strtod(text.c_str(), &end);
    if (end == text.c_str() || *end != '\0' || errno != 0)
        return false;
    *value = v;
    return true;
}

bool parseInt(const std::string& text, long* value)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    errno = 0;
    long v = strtol(text.c_str(), &end, 0);
    if (end == text.c_str() || *end != '\0' || errno != 0)
        return false;
    *value = v;
    return true;
}

bool makePath(const std::string& dir)
{
    if (dir.empty())
        return false;
    std::string partial;
    size_t pos = 0;
    while (pos != std::string::npos) {
        pos = dir.find('/', pos + 1);
        partial = dir.substr(0, pos);
        if (!partial.empty() && mkdir(partial.c_str(), 0755) != 0 && errno != EEXIST)
            return false;
    }
    return true;
}

bool writeFile(const std::string& path, const std::string& content, bool executable)
{
    size_t slash = path.rfind('/');
    if (slash != std::string::npos && slash > 0)
        makePath(path.substr(0, slash));
    std::string temp = path + ".new";
    int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, executable ? 0755 : 0644);
    if (fd < 0)
        return false;
    size_t done = 0;
    while (done < content.size()) {
        ssize_t n = ::write(fd, content.data() + done, content.size() - done);
        if (n <= 0) {
            ::close(fd);
            unlink(temp.c_str());
            return false;
        }
        done += static_cast<size_t>(n);
    }
    ::close(fd);
    return rename(temp.c_str(), path.c_str()) == 0;
}

bool readFile(const std::string& path, std::string* content)
{
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    content->clear();
    char buffer[4096];
    ssize_t n;
    while ((n = ::read(fd, buffer, sizeof buffer)) > 0)
        content->append(buffer, static_cast<size_t>(n));
    ::close(fd);
    return n == 0;
}

bool removeTree(const std::string& path)
{
    struct stat st;
    if (lstat(path.c_str(), &st) != 0)
        return errno == ENOENT;
    if (S_ISDIR(st.st_mode)) {
        DIR* dir = opendir(path.c_str());
        if (dir != nullptr) {
            while (struct dirent* entry = readdir(dir)) {
                if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0)
                    continue;
                removeTree(path + "/" + entry->d_name);
            }
            closedir(dir);
        }
        return rmdir(path.c_str()) == 0;
    }
    return unlink(path.c_str()) == 0;
}

bool exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

} // namespace sim
