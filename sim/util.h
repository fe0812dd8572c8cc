#ifndef KRM_SIM_UTIL_H
#define KRM_SIM_UTIL_H

// Small helpers of the simulated instrument: time, text, files. Nothing here
// (nor anywhere in sim/) uses the program's sources.

#include <string>
#include <vector>

namespace sim {

// Monotonic time in milliseconds.
double nowMs();

std::vector<std::string> splitWords(const std::string& text);
std::string toHex(const std::string& bytes);
bool fromHex(const std::string& text, std::string* bytes);
// C-like escapes: \r \n \t \0 \\ \xNN; "unescape" is the inverse.
std::string escape(const std::string& bytes);
std::string unescape(const std::string& text);
std::string format(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

bool parseDouble(const std::string& text, double* value);
bool parseInt(const std::string& text, long* value);

// Files under the machine folder.
bool makePath(const std::string& dir);
bool writeFile(const std::string& path, const std::string& content, bool executable = false);
bool readFile(const std::string& path, std::string* content);
bool removeTree(const std::string& path);
bool exists(const std::string& path);

} // namespace sim

#endif
