#include "platform/findinps.h"

#include "platform/base/chandle.h"

#include <climits>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace std::string_view_literals;

/// A file of /proc/PID, read into a buffer of the caller's. Empty when the process has vanished meanwhile.
std::string_view readProcFile(int directory, const char *name, char *buffer, std::size_t size)
{
    const int file = ::openat(directory, name, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return {};
    const ssize_t length = ::read(file, buffer, size);
    ::close(file);
    return length > 0 ? std::string_view(buffer, std::size_t(length)) : std::string_view();
}

std::string_view lastComponent(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

bool executableIsNamed(int directory, std::string_view name)
{
    char buffer[PATH_MAX];
    const ssize_t length = ::readlinkat(directory, "exe", buffer, sizeof buffer);
    if (length <= 0)
        return false; // a kernel thread, a zombie, or another user's process
    const std::string_view program = lastComponent({buffer, std::size_t(length)});
    // The kernel marks a program whose file was replaced, as an upgrade does while it runs.
    constexpr std::string_view deleted = " (deleted)"sv;
    return program == name
           || (program.size() == name.size() + deleted.size() && program.substr(0, name.size()) == name
               && program.substr(name.size()) == deleted);
}

bool firstArgumentIsNamed(int directory, std::string_view name)
{
    char buffer[PATH_MAX];
    const std::string_view arguments = readProcFile(directory, "cmdline", buffer, sizeof buffer);
    return !arguments.empty() && lastComponent(arguments.substr(0, arguments.find('\0'))) == name;
}

bool isAlive(int directory)
{
    char buffer[256];
    const std::string_view status = readProcFile(directory, "stat", buffer, sizeof buffer);
    // "PID (NAME) STATE ...": the name itself may hold blanks and brackets.
    const std::size_t nameEnd = status.rfind(')');
    if (nameEnd == std::string_view::npos || nameEnd + 2 >= status.size())
        return false;
    return "ZXx"sv.find(status[nameEnd + 2]) == std::string_view::npos;
}

bool isProcess(const dirent *entry)
{
    return entry->d_name[0] >= '1' && entry->d_name[0] <= '9';
}

} // namespace

bool findInPS(const char *name)
{
    const std::string_view wanted(name);
    const std::unique_ptr<DIR, Release<::closedir>> processes(::opendir("/proc"));
    if (wanted.empty() || !processes)
        return false;
    while (const dirent *entry = ::readdir(processes.get())) {
        if (!isProcess(entry))
            continue;
        const int directory = ::openat(::dirfd(processes.get()), entry->d_name,
                                       O_PATH | O_DIRECTORY | O_CLOEXEC);
        if (directory < 0)
            continue;
        const bool found = (executableIsNamed(directory, wanted) || firstArgumentIsNamed(directory, wanted))
                           && isAlive(directory);
        ::close(directory);
        if (found)
            return true;
    }
    return false;
}
