#include "pages/effects/comptonconfig.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "pages/effects/libconfigtext.h"

#include <QFileInfo>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <libconfig.h>

namespace {

// The files in use are a few kilobytes long.
constexpr int sizeLimit = 1024 * 1024;

/// Numbers have a decimal point in these files, whatever the user's language, until the end of the scope.
class PointLocale
{
public:
    PointLocale()
        : m_locale(::newlocale(LC_NUMERIC_MASK, "C", locale_t(nullptr)))
        , m_before(m_locale ? ::uselocale(m_locale) : locale_t(nullptr))
    {}
    ~PointLocale()
    {
        if (!m_locale)
            return;
        ::uselocale(m_before);
        ::freelocale(m_locale);
    }
    PointLocale(const PointLocale &) = delete;
    PointLocale &operator=(const PointLocale &) = delete;

private:
    locale_t m_locale;
    locale_t m_before;
};

std::optional<QByteArray> expanded(const QByteArray &text, const QString &path)
{
    return withIncludes(text, QFileInfo(path).path(), sizeLimit);
}

} // namespace

/// libconfig's tree of a text.
class ComptonConfig::Tree
{
public:
    Tree() { ::config_init(&m_config); }
    ~Tree() { ::config_destroy(&m_config); }
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    bool read(const QByteArray &text)
    {
        const PointLocale locale;
        return !text.contains('\0') && ::config_read_string(&m_config, text.constData()) == CONFIG_TRUE;
    }

    std::optional<bool> boolean(const char *name) const
    {
        int value = 0;
        if (::config_lookup_bool(&m_config, name, &value) != CONFIG_TRUE)
            return {};
        return value != 0;
    }

    void setBoolean(const char *name, bool value)
    {
        config_setting_t *root = config_root_setting(&m_config);
        config_setting_t *setting = ::config_lookup(&m_config, name);
        if (setting && config_setting_type(setting) != CONFIG_TYPE_BOOL) {
            ::config_setting_remove(root, name);
            setting = nullptr;
        }
        if (!setting)
            setting = ::config_setting_add(root, name, CONFIG_TYPE_BOOL);
        if (setting)
            ::config_setting_set_bool(setting, value ? CONFIG_TRUE : CONFIG_FALSE);
    }

    /// The whole configuration as libconfig writes it; empty when memory runs out.
    QByteArray text() const
    {
        char *buffer = nullptr;
        std::size_t size = 0;
        std::unique_ptr<FILE, Release<std::fclose>> stream(::open_memstream(&buffer, &size));
        if (!stream)
            return {};
        {
            const PointLocale locale;
            ::config_write(&m_config, stream.get());
        }
        stream.reset(); // fills in buffer and size
        const std::unique_ptr<char, Release<std::free>> owned(buffer);
        return QByteArray(owned.get(), int(size));
    }

private:
    config_t m_config;
};

ComptonConfig::ComptonConfig(const QString &path, const QByteArray &text, const QByteArray &wholeText,
                             std::unique_ptr<Tree> tree)
    : m_path(path)
    , m_text(text)
    , m_wholeText(wholeText)
    , m_tree(std::move(tree))
{}

ComptonConfig::~ComptonConfig() = default;
ComptonConfig::ComptonConfig(ComptonConfig &&) noexcept = default;

std::optional<ComptonConfig> ComptonConfig::read(const QString &path)
{
    if (QFileInfo(path).size() > sizeLimit)
        return {};
    // Not config_read_file(): it may end the program, or block, on what is no regular file.
    const FileContent file = readRegularFile(path);
    if (file.state != FileState::Regular)
        return {};
    const std::optional<QByteArray> wholeText = expanded(file.content, path);
    auto tree = std::make_unique<Tree>();
    if (!wholeText || !tree->read(*wholeText))
        return {};
    return ComptonConfig(path, file.content, *wholeText, std::move(tree));
}

std::optional<bool> ComptonConfig::boolean(const char *name) const
{
    return m_tree->boolean(name);
}

bool ComptonConfig::updateBoolean(const char *name, bool value)
{
    if (boolean(name) == value)
        return false;
    m_tree->setBoolean(name, value);
    m_updates.insert(name, value);
    return true;
}

bool ComptonConfig::write(QString *error) const
{
    QByteArray text = withUpdates(m_text);
    if (!areUpdatesIn(text)) // a name may stand only once, and one stands in an included file
        text = withUpdates(m_wholeText);
    if (!areUpdatesIn(text))
        text = m_tree->text();
    if (text.isEmpty()) {
        *error = QStringLiteral("Out of memory");
        return false;
    }
    return replaceFile(m_path, text, error);
}

QByteArray ComptonConfig::withUpdates(QByteArray text) const
{
    for (auto update = m_updates.cbegin(); update != m_updates.cend(); ++update)
        text = withRootBoolean(text, update.key(), update.value());
    return text;
}

/// libconfig has the last word on an edited text: it must hold the updates.
bool ComptonConfig::areUpdatesIn(const QByteArray &text) const
{
    const std::optional<QByteArray> wholeText = expanded(text, m_path);
    Tree tree;
    if (!wholeText || !tree.read(*wholeText))
        return false;
    for (auto update = m_updates.cbegin(); update != m_updates.cend(); ++update) {
        if (tree.boolean(update.key().constData()) != update.value())
            return false;
    }
    return true;
}
