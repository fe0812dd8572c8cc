#include "platform/command.h"

#include "platform/systemroot.h"

#include <cstdlib>
#include <cstring>
#include <unistd.h>

static bool isExecutable(const std::string& path)
{
    return access(path.c_str(), X_OK) == 0;
}

std::string Command::quote(const std::string& word)
{
    bool plain = !word.empty();
    for (char c : word)
        if (!(isalnum(static_cast<unsigned char>(c)) || strchr("/._-+=:,@%", c) != nullptr))
            plain = false;
    return plain ? word : shellQuote(word);
}

std::string shellQuote(const std::string& word)
{
    std::string quoted = "'";
    for (char c : word) {
        if (c == '\'')
            quoted += "'\\''";
        else
            quoted += c;
    }
    return quoted + "'";
}

std::string Command::resolve(const char* commandLine)
{
    if (commandLine == nullptr)
        return std::string();
    const char* p = commandLine;
    while (*p == ' ' || *p == '\t')
        p++;
    const char* end = p;
    while (*end != '\0' && *end != ' ' && *end != '\t' && *end != '\n' && *end != ';' &&
           *end != '|' && *end != '&' && *end != '>' && *end != '<')
        end++;
    std::string word(p, end);
    if (word.empty())
        return std::string(commandLine);

    std::string found;
    if (word[0] == '/') {
        found = SystemRoot::path(word);
    } else if (word.find('/') == std::string::npos) {
        for (const char* dir : {"/usr/bin/", "/bin/"}) {
            std::string candidate = SystemRoot::path(std::string(dir) + word);
            if (isExecutable(candidate)) {
                found = candidate;
                break;
            }
        }
    }
    if (found.empty() || found == word)
        return std::string(commandLine);
    return std::string(commandLine, p) + quote(found) + end;
}

int Command::system(const char* commandLine)
{
    if (commandLine == nullptr)
        return ::system(nullptr);
    return ::system(resolve(commandLine).c_str());
}

FILE* Command::popen(const char* commandLine, const char* mode)
{
    if (commandLine == nullptr || mode == nullptr)
        return nullptr;
    return ::popen(resolve(commandLine).c_str(), mode);
}

int Command::pclose(FILE* stream)
{
    if (stream == nullptr)
        return -1;
    return ::pclose(stream);
}
