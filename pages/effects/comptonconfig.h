#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <memory>
#include <optional>

inline constexpr char comptonTransparency[] = "enable-transparency";
inline constexpr char comptonShadow[] = "shadow";

/// A compton file. It belongs to the user: an update touches only the values it sets.
class ComptonConfig
{
public:
    ~ComptonConfig();
    ComptonConfig(ComptonConfig &&) noexcept;

    /// Reads the file at \a path with all that it includes; nothing when it can't be read, is no configuration
    /// or is larger than any configuration can sensibly be.
    static std::optional<ComptonConfig> read(const QString &path);

    /// The root's boolean \a name; nothing when it is missing or of another type.
    std::optional<bool> boolean(const char *name) const;

    /// Makes the root's \a name the boolean \a value, whatever type it had. Returns whether it was anything else.
    bool updateBoolean(const char *name, bool value);

    /// Replaces the file in one step. A setting that stands in an included file isn't changed there: then the
    /// texts of the included files take the places of the includes.
    [[nodiscard]] bool write(QString *error) const;

private:
    class Tree;

    ComptonConfig(const QString &path, const QByteArray &text, const QByteArray &wholeText,
                  std::unique_ptr<Tree> tree);
    QByteArray withUpdates(QByteArray text) const;
    bool areUpdatesIn(const QByteArray &text) const;

    QString m_path;
    QByteArray m_text;
    QByteArray m_wholeText;       ///< with the includes in their places
    std::unique_ptr<Tree> m_tree; ///< what libconfig makes of the whole text and of the updates
    QMap<QByteArray, bool> m_updates;
};
