#include "platform/findfileinpath.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isProgram(const std::string &path)
{
    struct stat status = {};
    return path.size() < PATH_MAX && ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)
           && ::access(path.c_str(), X_OK) == 0;
}

/// An element of PATH as a directory: an empty one means the current directory.
std::string searchDirectory(const std::string &element)
{
    if (!element.empty())
        return element;
    char current[PATH_MAX];
    return ::getcwd(current, sizeof current) ? std::string(current) : std::string(".");
}

std::string findProgram(const std::string &name)
{
    if (name.empty())
        return {};
    if (name.find('/') != std::string::npos)
        return isProgram(name) ? name : std::string();
    const char *variable = std::getenv("PATH");
    const std::string searchPath = variable ? variable : "/usr/local/bin:/usr/bin:/bin";
    for (std::size_t begin = 0; begin <= searchPath.size();) {
        const std::size_t end = std::min(searchPath.find(':', begin), searchPath.size());
        std::string path = searchDirectory(searchPath.substr(begin, end - begin)) + '/' + name;
        if (isProgram(path))
            return path;
        begin = end + 1;
    }
    return {};
}

} // namespace

bool FindFileInPATH(const char *name, char *buffer)
{
    const std::string path = findProgram(name);
    std::memcpy(buffer, path.c_str(), path.size() + 1);
    return !path.empty();
}
