#pragma once

#include "fonts/fontrendering.h"
#include "fonts/fontsdocument.h"
#include "fonts/fontsitem.h"

#include <QList>
#include <QStringList>

class FontsFileLock;

/// Reads and writes the font rendering settings in a fontconfig file and leaves everything else in it as it is.
class KXftConfig
{
public:
    /// Which settings an instance handles; the others are neither read nor written.
    enum RequiredData {
        Directories = 0x01,
        SubPixelType = 0x02,
        ExcludedRange = 0x04,
        AntiAlias = 0x08,
        HintingStyle = 0x10
    };

    struct Item {
        QDomElement node; ///< the element that holds the setting; null when the file has none
        bool toBeRemoved = false;
    };
    struct SubPixel : Item {
        SubPixelOrder type = SubPixelOrder::None;
    };
    struct Exclude : Item {
        ExcludeRange range;
    };
    struct Hint : Item {
        HintStyle style = HintStyle::NotSet;
    };
    struct Hinting : Item {
        bool set = true;
    };
    struct AntiAliasing : Item {
        bool set = true;
    };
    struct ListItem : Item {
        QString string; ///< a directory, with a slash at its end
    };

    /// Chooses the user's file, or the \a system's, and reads it. A range of sizes to exclude is brought into
    /// agreement in both units, which writes the file.
    explicit KXftConfig(int required, bool system = false);

    /// Forgets every change and reads the file. Returns false when the file can't be read and understood, and
    /// when it is missing and can't be made; the items keep their defaults then, and apply() writes nothing.
    bool reset();

    /// Writes the file if anything changed. What another program wrote since the last read stays, our
    /// settings are put into it. On false the file is as it was.
    bool apply();

    SubPixelOrder subPixelType() const { return m_subPixel.type; }
    void setSubPixelType(SubPixelOrder type);

    /// In points.
    ExcludeRange excludeRange() const { return m_excludeRange.range; }
    /// Sets both ranges: pixels are computed from \a points.
    void setExcludeRange(const ExcludeRange &points);

    ExcludeRange excludePixelRange() const { return m_excludePixelRange.range; }
    /// Sets both ranges: points are computed from \a pixels.
    void setExcludePixelRange(const ExcludeRange &pixels);

    HintStyle hintStyle() const { return m_hint.style; }
    /// Also switches hinting on, or off with HintStyle::None. HintStyle::NotSet removes the style.
    void setHintStyle(HintStyle style);

    bool hinting() const { return m_hinting.set; }
    void setHinting(bool set);

    bool antiAliasing() const { return m_antiAliasing.set; }
    void setAntiAliasing(bool set);

    /// The font directories, each with a slash at its end.
    QStringList directories() const;
    void addDirectory(const QString &path);
    void removeDirectory(const QString &path);

    /// Whether there is something to write.
    bool changed() const { return m_madeChanges; }
    QString fileName() const { return m_file; }

private:
    KXftConfig(int required, bool system, const QString &file, int mergesLeft);

    bool read();
    void readContents();
    bool bringRangesIntoAgreement();
    void setRanges(const ExcludeRange &points, const ExcludeRange &pixels);
    bool merge();
    bool write(FontsFileLock *lock);
    void copySettingsTo(KXftConfig *other) const;
    QVector<FontsDocument::Change> changes() const;
    void addChange(QVector<FontsDocument::Change> *changes, FontsItem::Kind kind, const Item &item,
                   const QString &form) const;
    QVector<QDomElement> ownedNodes() const;

    SubPixel m_subPixel;
    Exclude m_excludeRange; // in points
    Exclude m_excludePixelRange;
    Hint m_hint;
    Hinting m_hinting;
    AntiAliasing m_antiAliasing;
    FontsDocument m_document;
    int m_required;
    QList<ListItem> m_directories;
    QString m_file;
    bool m_madeChanges = false;
    bool m_system;
    QString m_time;          // tells the version of the file that was read
    bool m_isUsable = false; // the file was understood, or can be made
    int m_mergesLeft;
};
