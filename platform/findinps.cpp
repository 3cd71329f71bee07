#include "platform/findinps.h"

#include "base/chandle.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstring>
#include <future>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

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

bool isWithMark(std::string_view program, std::string_view name)
{
    return program.size() == name.size() + deletedMark.size() && program.substr(0, name.size()) == name
           && program.substr(name.size()) == deletedMark;
}

/// A directory of /proc. With thousands of processes every system call counts, so its files are reached by
/// paths relative to /proc, and only as many as it takes.
class Process
{
public:
    Process(int proc, const char *id)
        : m_proc(proc)
        , m_idLength(std::min(std::strlen(id), sizeof m_path / 2))
    {
        std::memcpy(m_path, id, m_idLength);
    }

    bool isNamed(std::string_view name)
    {
        char buffer[PATH_MAX];
        const ssize_t length = ::readlinkat(m_proc, file("/exe"), buffer, sizeof buffer);
        if (length < 0 && errno == ENOENT)
            return false; // a kernel thread or a zombie, or it has vanished
        const std::string_view program = lastComponent({buffer, std::size_t(std::max<ssize_t>(length, 0))});
        if (program == name || isWithMark(program, name))
            return true;
        const std::string_view arguments = read("/cmdline", buffer, sizeof buffer);
        return lastComponent(arguments.substr(0, arguments.find('\0'))) == name;
    }

    bool isAlive()
    {
        char buffer[256];
        const std::string_view status = read("/stat", buffer, sizeof buffer);
        // "PID (NAME) STATE ...": the name itself may hold blanks and brackets.
        const std::size_t nameEnd = status.rfind(')');
        if (nameEnd == std::string_view::npos || nameEnd + 2 >= status.size())
            return false;
        return "ZXx"sv.find(status[nameEnd + 2]) == std::string_view::npos;
    }

private:
    const char *file(std::string_view name)
    {
        std::memcpy(m_path + m_idLength, name.data(), name.size());
        m_path[m_idLength + name.size()] = '\0';
        return m_path;
    }

    std::string_view read(const char *name, char *buffer, std::size_t size)
    {
        const int descriptor = ::openat(m_proc, file(name), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0)
            return {};
        const ssize_t length = ::read(descriptor, buffer, size);
        ::close(descriptor);
        return {buffer, std::size_t(std::max<ssize_t>(length, 0))};
    }

    int m_proc;
    std::size_t m_idLength;
    char m_path[64];
};

bool isProcessId(const char *name)
{
    return name[0] >= '1' && name[0] <= '9';
}

/// The processes of a moment; some may be gone when they are looked at.
class ProcessList
{
public:
    ProcessList()
        : m_proc(::opendir("/proc"))
    {
        while (const dirent *entry = m_proc ? ::readdir(m_proc.get()) : nullptr) {
            if (isProcessId(entry->d_name))
                m_ids.emplace_back(entry->d_name);
        }
    }

    bool contains(std::string_view name) const
    {
        std::atomic<std::size_t> next = 0;
        std::atomic<bool> isFound = false;
        const auto search = [&] {
            for (std::size_t i = next++; i < m_ids.size() && !isFound; i = next++) {
                Process process(::dirfd(m_proc.get()), m_ids[i].c_str());
                if (process.isNamed(name) && process.isAlive())
                    isFound = true;
            }
        };
        std::vector<std::future<void>> searchers;
        for (unsigned i = 1; i < searcherCount(); ++i)
            searchers.push_back(std::async(search)); // without a free thread this one does it all
        search();
        searchers.clear(); // waits for them
        return isFound;
    }

private:
    /// The kernel takes 10 us to tell about a process: a desktop's few hundred are not worth a thread.
    unsigned searcherCount() const
    {
        constexpr std::size_t worthAThread = 500;
        constexpr unsigned most = 4;
        const auto wanted = unsigned(std::min<std::size_t>(m_ids.size() / worthAThread, most));
        return std::max(1U, std::min(wanted, std::thread::hardware_concurrency()));
    }

    std::unique_ptr<DIR, Release<::closedir>> m_proc;
    std::vector<std::string> m_ids;
};

} // namespace

bool findInPS(const char *name)
{
    return *name && ProcessList().contains(name);
}
