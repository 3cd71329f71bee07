#include "platform/findinps.h"

#include "base/descriptor.h"

#include <filesystem>
#include <string>

#include <fcntl.h>
#include <linux/limits.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr char deletedMark[] = " (deleted)"; // behind a program whose file was replaced, as by an upgrade

/// A file of the kernel's up to its first NUL, without streams: there may be thousands. Empty when it can't be read.
std::string textOf(const fs::path &file)
{
    std::string text(PATH_MAX, '\0');
    const Descriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    [[maybe_unused]] const ssize_t size = ::read(opened.get(), text.data(), text.size());
    return text.c_str();
}

bool isNamed(const fs::path &process, const std::string &name)
{
    std::error_code error;
    const std::string program = fs::read_symlink(process / "exe", error).filename();
    return program == name || program == name + deletedMark
           || fs::path(textOf(process / "cmdline")).filename() == name; // argv[0] ends with a NUL
}

bool isAlive(const fs::path &process)
{
    const std::string status = textOf(process / "stat");
    // "PID (NAME) STATE ...": the name itself may hold blanks and brackets.
    const std::size_t nameEnd = status.rfind(')');
    return nameEnd != std::string::npos && status.find_first_of("ZXx", nameEnd) == std::string::npos;
}

} // namespace

bool findInPS(const char *name)
{
    std::error_code error;
    for (fs::directory_iterator process("/proc", error), end; process != end; process.increment(error)) {
        if (*name && isNamed(*process, name) && isAlive(*process))
            return true;
    }
    return false;
}
