#include "platform/findinps.h"

#include "base/chandle.h"

#include <cerrno>
#include <climits>
#include <memory>
#include <string>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace std::string_view_literals;

constexpr auto deletedMark = " (deleted)"sv; // behind a program whose file was replaced, as by an upgrade

std::string_view lastComponent(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

/// The first bytes of a file in \a proc.
std::string readStart(int proc, const std::string &path)
{
    char buffer[PATH_MAX];
    const int descriptor = ::openat(proc, path.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t length = descriptor < 0 ? -1 : ::read(descriptor, buffer, sizeof buffer);
    if (descriptor >= 0)
        ::close(descriptor);
    return length < 0 ? std::string() : std::string(buffer, std::size_t(length));
}

bool isNamed(int proc, const std::string &id, std::string_view name)
{
    char target[PATH_MAX];
    const ssize_t length = ::readlinkat(proc, (id + "/exe").c_str(), target, sizeof target);
    if (length < 0 && errno == ENOENT)
        return false; // a kernel thread or a zombie, or it has vanished
    if (length >= 0) {
        const std::string_view program = lastComponent({target, std::size_t(length)});
        if (program == name || program == std::string(name).append(deletedMark))
            return true;
    }
    const std::string arguments = readStart(proc, id + "/cmdline");
    return lastComponent(arguments.c_str()) == name; // argv[0] ends with a NUL
}

bool isAlive(int proc, const std::string &id)
{
    const std::string status = readStart(proc, id + "/stat");
    // "PID (NAME) STATE ...": the name itself may hold blanks and brackets.
    const std::size_t nameEnd = status.rfind(')');
    return nameEnd != std::string::npos && nameEnd + 2 < status.size()
           && "ZXx"sv.find(status[nameEnd + 2]) == std::string_view::npos;
}

bool isProcessId(const char *name)
{
    return name[0] >= '1' && name[0] <= '9';
}

} // namespace

bool findInPS(const char *name)
{
    if (!*name)
        return false;
    const std::unique_ptr<DIR, Release<::closedir>> directory(::opendir("/proc"));
    while (const dirent *entry = directory ? ::readdir(directory.get()) : nullptr) {
        const int proc = ::dirfd(directory.get());
        if (isProcessId(entry->d_name) && isNamed(proc, entry->d_name, name) && isAlive(proc, entry->d_name))
            return true;
    }
    return false;
}
