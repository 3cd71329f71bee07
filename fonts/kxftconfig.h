#pragma once

#include "fonts/fontsdocument.h"

class FontsFileLock;

/// Reads and writes the font rendering settings in a fontconfig file and leaves everything else in it as it is.
class KXftConfig
{
public:
    /// Chooses and reads the user's file.
    KXftConfig();

    /// Forgets every change and reads the file. A range of sizes to exclude is brought into agreement in both units,
    /// which writes the file. When the file can't be read and understood, and when it is missing and can't be
    /// made, the settings have their defaults and apply() writes nothing.
    void reset();

    /// Writes the file if anything changed. What another program wrote since the last read stays, our settings are
    /// put into it, for up to two seconds. On false, \a error says why, and the settings wait for another try.
    [[nodiscard]] bool apply(QString *error);

    SubPixelOrder subPixelType() const { return m_settings.subPixelType; }
    void setSubPixelType(SubPixelOrder type) { set(&m_settings.subPixelType, type); }

    /// In pixels.
    ExcludeRange excludePixelRange() const { return m_settings.pixels; }
    /// Sets the range in points, too, computed from \a pixels.
    void setExcludePixelRange(const ExcludeRange &pixels);

    HintStyle hintStyle() const { return m_settings.hintStyle; }
    /// Also switches hinting on, or off with HintStyle::None. HintStyle::NotSet removes the style.
    void setHintStyle(HintStyle style);

    bool hinting() const { return m_settings.hinting; }
    void setHinting(bool value) { set(&m_settings.hinting, value); }

    bool antiAliasing() const { return m_settings.antiAliasing; }
    void setAntiAliasing(bool value) { set(&m_settings.antiAliasing, value); }

    /// Whether there is something to write.
    bool changed() const { return m_madeChanges; }
    QString fileName() const { return m_file; }

private:
    struct Settings {
        SubPixelOrder subPixelType = SubPixelOrder::None;
        ExcludeRange points;
        ExcludeRange pixels;
        HintStyle hintStyle = HintStyle::NotSet;
        bool hinting = true;
        bool antiAliasing = true;
    };

    template<typename Value>
    void set(Value *member, Value value)
    {
        m_madeChanges = m_madeChanges || *member != value;
        *member = value;
    }

    void read();
    bool wasRewritten() const;
    bool write(FontsFileLock *lock, QString *error);
    bool writeOrMerge(FontsFileLock *lock, QString *error);
    QVector<FontsItem> items() const;

    Settings m_settings;
    std::optional<FontsDocument> m_document; // of m_content; none yet after a write: reading takes its time
    QString m_file;
    bool m_madeChanges = false;
    QByteArray m_content; // of the file when it was read
    QString m_refusal;    // why the file can't be used; empty: it was understood, or can be made
};
