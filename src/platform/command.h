#ifndef KRM_PLATFORM_COMMAND_H
#define KRM_PLATFORM_COMMAND_H

#include <cstdio>
#include <string>

// The one way the program runs a shell command. The first word of the command
// line is looked up so that a machine folder set as system root supplies its
// own programs:
//   - an absolute path ("/usr/bin/mountusb.sh", "/home/myspi") is resolved
//     through the system root;
//   - a bare name ("date", "hwclock", "pidof", "rm") is taken from
//     <root>/usr/bin or <root>/bin when it is there, else left to the PATH.
// The rest of the line is passed unchanged to /bin/sh: every text that does
// not come from the program itself (a setting, a folder on a stick) goes into
// it through quote() or shellQuote(), so that it reaches the command as one
// argument and runs nothing else.

// The word between single quotes, as /bin/sh reads it back unchanged: every
// path the program puts on a command line goes through here, so that a
// folder named "a b; 'c'" on a stick stays one argument and runs nothing.
std::string shellQuote(const std::string& word);

class Command
{
public:
    // The word as one shell argument: as it is when it holds only plain
    // characters, else in single quotes (a quote inside as '\'').
    static std::string quote(const std::string& word);
    static std::string resolve(const char* commandLine);
    static int system(const char* commandLine);
    static FILE* popen(const char* commandLine, const char* mode);
    static int pclose(FILE* stream);
};

#endif
