#pragma once

#include "fonts/fontrendering.h"
#include "fonts/fontsdocument.h"

#include <QList>
#include <QStringList>

class FontsFileLock;

/// Reads and writes the font rendering settings in a fontconfig file and leaves everything else in it as it is.
class KXftConfig
{
public:
    /// Which settings an instance handles; the others are not written.
    enum RequiredData {
        Directories = 0x01,
        SubPixelType = 0x02,
        ExcludedRange = 0x04,
        AntiAlias = 0x08,
        HintingStyle = 0x10
    };

    struct Item {
        int child = -1; ///< the element that holds the setting; -1 when the file has none
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
        bool toBeRemoved = false;
    };

    /// Chooses the user's file, or the \a system's. It is read by reset().
    explicit KXftConfig(int required, bool system = false);

    /// Forgets every change and reads the file. A range of sizes to exclude is brought into agreement in both units,
    /// which writes the file. Returns false when the file can't be read and understood, and when it is missing and
    /// can't be made; the items keep their defaults then, and apply() writes nothing.
    bool reset();

    /// Writes the file if anything changed. What another program wrote since the last read stays, our settings are
    /// put into it, for up to two seconds. On false, \a error says why, and the settings wait for another try.
    [[nodiscard]] bool apply(QString *error);

    SubPixelOrder subPixelType() const { return m_subPixel.type; }
    void setSubPixelType(SubPixelOrder type) { set(&m_subPixel.type, type); }

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
    void setHinting(bool value) { set(&m_hinting.set, value); }

    bool antiAliasing() const { return m_antiAliasing.set; }
    void setAntiAliasing(bool value) { set(&m_antiAliasing.set, value); }

    /// The font directories, each with a slash at its end.
    QStringList directories() const;
    void addDirectory(const QString &path);
    void removeDirectory(const QString &path);

    /// Whether there is something to write.
    bool changed() const { return m_madeChanges; }
    QString fileName() const { return m_file; }

private:
    template<typename Value>
    void set(Value *member, Value value)
    {
        m_madeChanges = m_madeChanges || *member != value;
        *member = value;
    }

    void read();
    void readItem(const FontsItem &item, int child);
    bool wasRewritten() const;
    bool bringRangesIntoAgreement();
    bool write(FontsFileLock *lock, QString *error);
    bool writeOrMerge(FontsFileLock *lock, QString *error);
    void merge();
    QVector<FontsDocument::Change> changes() const;
    void addChange(QVector<FontsDocument::Change> *changes, FontsItem::Kind kind, const Item &item,
                   const QString &form, int before = -1) const;
    int firstExcludeRange() const;

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
    QByteArray m_content; // of the file when it was read
    QString m_refusal;    // why the file can't be used; empty: it was understood, or can be made
};
