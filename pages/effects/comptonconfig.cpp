#include "pages/effects/comptonconfig.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "base/editfile.h"
#include "pages/effects/libconfigtext.h"
#include "settings/backup.h"

#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <libconfig.h>

namespace {

constexpr char transparencyName[] = "enable-transparency";
constexpr char shadowName[] = "shadow";

// The files in use are a few kilobytes long.
constexpr int sizeLimit = 1024 * 1024;

/// libconfig's tree of a text.
class Tree
{
public:
    Tree() { ::config_init(&m_config); }
    ~Tree() { ::config_destroy(&m_config); }
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    bool read(const QByteArray &text)
    {
        return !text.contains('\0') && ::config_read_string(&m_config, text.constData()) == CONFIG_TRUE;
    }

    std::optional<bool> boolean(const char *name) const
    {
        int value = 0;
        if (::config_lookup_bool(&m_config, name, &value) != CONFIG_TRUE)
            return {};
        return bool(value);
    }

    void setBoolean(const char *name, bool value)
    {
        config_setting_t *root = config_root_setting(&m_config);
        ::config_setting_remove(root, name); // its type may be another one
        ::config_setting_set_bool(::config_setting_add(root, name, CONFIG_TYPE_BOOL), value);
    }

    /// The whole configuration as libconfig writes it.
    QByteArray text() const
    {
        char *buffer = nullptr;
        std::size_t size = 0;
        std::FILE *stream = ::open_memstream(&buffer, &size);
        ::config_write(&m_config, stream);
        std::fclose(stream); // fills in buffer and size
        const std::unique_ptr<char, Release<std::free>> owned(buffer);
        return QByteArray(buffer, int(size));
    }

private:
    config_t m_config;
};

std::optional<QByteArray> expanded(const QByteArray &text, const QString &path)
{
    return withIncludes(text, QFileInfo(path).path(), sizeLimit);
}

/// libconfig has the last word on a text that was edited: it must hold \a updates.
bool holds(const QByteArray &text, const QString &path, const QMap<QByteArray, bool> &updates)
{
    const std::optional<QByteArray> wholeText = expanded(text, path);
    Tree tree;
    return wholeText && tree.read(*wholeText)
           && std::all_of(updates.keyBegin(), updates.keyEnd(), [&](const QByteArray &name) {
                  return tree.boolean(name.constData()) == updates.value(name);
              });
}

/// \a text of the file at \a path with \a updates; nothing when it is no configuration.
std::optional<QByteArray> updated(const QByteArray &text, const QString &path, QMap<QByteArray, bool> updates)
{
    const std::optional<QByteArray> wholeText = expanded(text, path);
    Tree tree;
    if (!wholeText || !tree.read(*wholeText))
        return {};
    for (const QByteArray &name : updates.keys()) {
        if (tree.boolean(name.constData()) == updates.value(name))
            updates.remove(name);
    }
    // A name may stand only once, and it may stand in an included file.
    for (QByteArray edited : {text, *wholeText}) {
        for (auto update = updates.cbegin(); update != updates.cend(); ++update)
            edited = withRootBoolean(edited, update.key(), *update);
        if (holds(edited, path, updates))
            return edited;
    }
    for (auto update = updates.cbegin(); update != updates.cend(); ++update)
        tree.setBoolean(update.key().constData(), *update);
    return tree.text();
}

} // namespace

std::optional<ComptonValues> readComptonFile(const QString &path)
{
    // Not config_read_file(): it may end the program, or block, on what is no regular file.
    const FileContent file = readRegularFile(path, sizeLimit);
    const std::optional<QByteArray> wholeText = expanded(file.content, path);
    Tree tree;
    if (file.state != FileState::Regular || !wholeText || !tree.read(*wholeText))
        return {};
    return ComptonValues{tree.boolean(transparencyName), tree.boolean(shadowName)};
}

bool updateComptonFile(const QString &path, bool transparency, bool shadow, QString *error)
{
    const auto edit = [&](const QByteArray &text) {
        std::optional<QByteArray> result = updated(text, path,
                                                   {{transparencyName, transparency}, {shadowName, shadow}});
        if (!result)
            *error = QStringLiteral("No configuration");
        return result;
    };
    EditFileOptions options;
    options.limit = sizeLimit;
    options.beforeReplace = [](const QString &original) { backUp(original); };
    return editFile(path, edit, error, options);
}
