#include "fonts/kxftconfig.h"

#include "base/diagnostics.h"
#include "fonts/fontsfile.h"
#include "settings/backup.h"
#include "settings/directories.h"

#include <QX11Info>

namespace {

using Kind = FontsItem::Kind;

// How often programs may rewrite the file under our hands before we give up.
constexpr int mergeLimit = 3;

bool systemAntiAliasing()
{
    const std::unique_ptr<FcPattern, Release<FcPatternDestroy>> pattern(FcPatternCreate());
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcBool isOn = FcTrue;
    FcPatternGetBool(pattern.get(), FC_ANTIALIAS, 0, &isOn);
    return isOn;
}

double screenDpi()
{
    const int dpi = QX11Info::isPlatformX11() ? QX11Info::appDpiY() : 0;
    return dpi > 0 ? dpi : 96;
}

QString homeDirectory()
{
    return directoryPath(DirectoryKind::Home);
}

QString boolName(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

KXftConfig::KXftConfig(int required, bool system)
    : KXftConfig(required, system, chooseFontsFile(fontconfigFiles(), system), mergeLimit)
{}

KXftConfig::KXftConfig(int required, bool system, const QString &file, int mergesLeft)
    : m_required(required)
    , m_file(file)
    , m_system(system)
    , m_mergesLeft(mergesLeft)
{
    printDiagnostic(QStringLiteral("%1 fontconfig file to use: %2")
                        .arg(system ? QStringLiteral("system") : QStringLiteral("user"), file));
    reset();
}

bool KXftConfig::reset()
{
    const bool isUsable = read();
    if (isUsable && (m_required & ExcludedRange) && bringRangesIntoAgreement())
        apply();
    return isUsable;
}

bool KXftConfig::read()
{
    m_madeChanges = false;
    m_subPixel = {};
    m_excludeRange = {};
    m_excludePixelRange = {};
    m_hint = {};
    m_hinting = {};
    m_antiAliasing = {};
    m_antiAliasing.set = systemAntiAliasing();
    m_directories.clear();

    // Taken before reading, so that a file replaced meanwhile counts as rewritten.
    m_time = fontsFileStamp(m_file);
    FileContent file = readFontsFile(m_file);
    m_isUsable = m_document.setContent(file.content, &file.error) && file.state != FileState::Unreadable
                 && (file.state == FileState::Regular || canMakeFile(m_file));
    if (!m_isUsable && file.state == FileState::Missing)
        file.error = QStringLiteral("It does not exist and can't be made");
    if (!m_isUsable)
        printDiagnostic(QStringLiteral("Can't use %1: %2").arg(m_file, file.error));
    readContents();
    return m_isUsable;
}

void KXftConfig::readContents()
{
    const QString home = homeDirectory();
    for (const FontsDocument::Child &child : m_document.children()) {
        const std::optional<FontsItem> item = readFontsItem(child.node, home);
        if (!item)
            continue;
        switch (item->kind) {
        case Kind::Directory:
            m_directories.append(ListItem{{child.node}, item->text});
            break;
        case Kind::SubPixel:
            m_subPixel = {{child.node}, FontRendering::subPixelOrder(item->text)};
            break;
        case Kind::HintStyle:
            m_hint = {{child.node}, FontRendering::hintStyle(item->text)};
            break;
        case Kind::Hinting:
            m_hinting = {{child.node}, item->isOn()};
            break;
        case Kind::AntiAliasing:
            m_antiAliasing = {{child.node}, item->isOn()};
            break;
        case Kind::ExcludePoints:
            m_excludeRange = {{child.node}, item->range};
            break;
        case Kind::ExcludePixels:
            m_excludePixelRange = {{child.node}, item->range};
            break;
        }
    }
}

bool KXftConfig::bringRangesIntoAgreement()
{
    const bool toBeWritten = bringIntoAgreement(&m_excludeRange.range, &m_excludePixelRange.range,
                                                screenDpi());
    m_madeChanges = m_madeChanges || toBeWritten;
    return toBeWritten;
}

bool KXftConfig::apply()
{
    if (!m_madeChanges)
        return true;
    if (!m_isUsable)
        return false;
    const auto wasRewritten = [this] {
        const QString time = fontsFileStamp(m_file);
        return !time.isEmpty() && time != m_time;
    };
    if (!wasRewritten()) {
        if (m_required & ExcludedRange)
            bringRangesIntoAgreement();
        FontsFileLock lock(m_file);
        if (!lock.isHeld()) {
            printDiagnostic(QStringLiteral("Can't write %1: can't lock it").arg(m_file));
            return false;
        }
        // Another program may have come first to the lock.
        if (!wasRewritten())
            return write(&lock);
    }
    return merge();
}

bool KXftConfig::write(FontsFileLock *lock)
{
    const FileContent old = readFontsFile(m_file);
    const QByteArray content = m_document.withChanges(changes());
    // A rewrite that changes nothing can lose nothing, and would only drive the older copies out.
    if (old.content != content && !m_document.holdsOnly(ownedNodes())) {
        if (const QString copy = backUp(m_file); !copy.isEmpty())
            printDiagnostic(QStringLiteral("Saved a copy of %1 as %2").arg(m_file, copy));
    }
    if (QString error; !lock->replace(content, &error)) {
        printDiagnostic(QStringLiteral("Can't write %1: %2").arg(m_file, error));
        return false;
    }
    // Not reset(): it would find the range in pixels and write again, without end.
    read();
    return true;
}

bool KXftConfig::merge()
{
    printDiagnostic(QStringLiteral("font config file was rewritten since we last read!"));
    if (m_mergesLeft <= 0)
        return false;
    if (m_required & ExcludedRange)
        bringRangesIntoAgreement();
    KXftConfig current(m_required, m_system, m_file, m_mergesLeft - 1);
    copySettingsTo(&current);
    const bool applied = current.apply();
    read();
    return applied;
}

void KXftConfig::copySettingsTo(KXftConfig *other) const
{
    if (m_required & Directories) {
        for (const ListItem &directory : m_directories) {
            if (directory.toBeRemoved)
                other->removeDirectory(directory.string);
            else
                other->addDirectory(directory.string);
        }
    }
    // Both units, so that a conversion there and back can't move the bounds.
    if (m_required & ExcludedRange)
        other->setRanges(m_excludeRange.range, m_excludePixelRange.range);
    if (m_required & SubPixelType)
        other->setSubPixelType(m_subPixel.type);
    if (m_required & HintingStyle)
        other->setHintStyle(m_hint.style);
    if (m_required & AntiAlias)
        other->setAntiAliasing(m_antiAliasing.set);
}

void KXftConfig::addChange(QVector<FontsDocument::Change> *changes, FontsItem::Kind kind, const Item &item,
                           const QString &form) const
{
    if (!form.isEmpty()) {
        changes->append({item.node, form});
        return;
    }
    // An older element of the same kind would come back into force if only the last one went.
    for (const FontsDocument::Child &child : m_document.children()) {
        const std::optional<FontsItem> found = readFontsItem(child.node, homeDirectory());
        if (found && found->kind == kind)
            changes->append({child.node, {}});
    }
}

QVector<FontsDocument::Change> KXftConfig::changes() const
{
    QVector<FontsDocument::Change> changes;
    for (const ListItem &directory : m_directories) {
        if (directory.node.isNull() && !directory.toBeRemoved)
            changes.append({{}, directoryForm(directory.string, homeDirectory())});
    }
    for (const ListItem &directory : m_directories) {
        if (!directory.node.isNull() && directory.toBeRemoved)
            changes.append({directory.node, {}});
    }
    if (m_required & SubPixelType) {
        const bool isGone = m_subPixel.type == SubPixelOrder::None || m_subPixel.toBeRemoved;
        addChange(&changes, Kind::SubPixel, m_subPixel,
                  isGone ? QString() : valueForm(Kind::SubPixel, FontRendering::fileName(m_subPixel.type)));
    }
    if (m_required & HintingStyle) {
        const bool isGone = m_hint.style == HintStyle::NotSet || m_hint.toBeRemoved;
        addChange(&changes, Kind::Hinting, m_hinting, valueForm(Kind::Hinting, boolName(m_hinting.set)));
        addChange(&changes, Kind::HintStyle, m_hint,
                  isGone ? QString() : valueForm(Kind::HintStyle, FontRendering::fileName(m_hint.style)));
    }
    if (m_required & AntiAlias)
        addChange(&changes, Kind::AntiAliasing, m_antiAliasing,
                  valueForm(Kind::AntiAliasing, boolName(m_antiAliasing.set)));
    if (m_required & ExcludedRange) {
        const auto form = [](Kind kind, const Exclude &item) {
            return item.range.isZero() || item.toBeRemoved ? QString() : excludeForm(kind, item.range);
        };
        addChange(&changes, Kind::ExcludePoints, m_excludeRange, form(Kind::ExcludePoints, m_excludeRange));
        addChange(&changes, Kind::ExcludePixels, m_excludePixelRange,
                  form(Kind::ExcludePixels, m_excludePixelRange));
    }
    return changes;
}

QVector<QDomElement> KXftConfig::ownedNodes() const
{
    QVector<QDomElement> nodes = {m_subPixel.node, m_excludeRange.node, m_excludePixelRange.node,
                                  m_hint.node,     m_hinting.node,      m_antiAliasing.node};
    for (const ListItem &directory : m_directories)
        nodes.append(directory.node);
    nodes.removeAll(QDomElement());
    return nodes;
}

void KXftConfig::setSubPixelType(SubPixelOrder type)
{
    if (type == m_subPixel.type && !m_subPixel.toBeRemoved)
        return;
    m_subPixel.toBeRemoved = false;
    m_subPixel.type = type;
    m_madeChanges = true;
}

void KXftConfig::setRanges(const ExcludeRange &points, const ExcludeRange &pixels)
{
    if (m_excludeRange.range.equals(points) && m_excludePixelRange.range.equals(pixels))
        return;
    m_excludeRange.range = points;
    m_excludePixelRange.range = pixels;
    m_madeChanges = true;
}

void KXftConfig::setExcludeRange(const ExcludeRange &points)
{
    if (m_excludeRange.range.equals(points) && !m_excludeRange.toBeRemoved)
        return;
    // The pixels would win when both are brought into agreement.
    ExcludeRange agreed = points;
    ExcludeRange pixels;
    bringIntoAgreement(&agreed, &pixels, screenDpi());
    setRanges(points, pixels);
}

void KXftConfig::setExcludePixelRange(const ExcludeRange &pixels)
{
    if (m_excludePixelRange.range.equals(pixels) && !m_excludePixelRange.toBeRemoved)
        return;
    ExcludeRange points;
    ExcludeRange agreed = pixels;
    bringIntoAgreement(&points, &agreed, screenDpi());
    setRanges(points, pixels);
}

void KXftConfig::setHintStyle(HintStyle style)
{
    if (style == HintStyle::NotSet) {
        if (m_hint.style != HintStyle::NotSet && !m_hint.toBeRemoved) {
            m_hint.toBeRemoved = true;
            m_hint.style = HintStyle::NotSet;
            m_madeChanges = true;
        }
        return;
    }
    if (style != m_hint.style || m_hint.toBeRemoved) {
        m_hint.toBeRemoved = false;
        m_hint.style = style;
        m_madeChanges = true;
    }
    setHinting(style != HintStyle::None);
}

void KXftConfig::setHinting(bool set)
{
    m_madeChanges = m_madeChanges || set != m_hinting.set;
    m_hinting.set = set;
}

void KXftConfig::setAntiAliasing(bool set)
{
    m_madeChanges = m_madeChanges || set != m_antiAliasing.set;
    m_antiAliasing.set = set;
}

QStringList KXftConfig::directories() const
{
    QStringList paths;
    for (const ListItem &directory : m_directories) {
        if (!directory.toBeRemoved)
            paths.append(directory.string);
    }
    return paths;
}

void KXftConfig::addDirectory(const QString &path)
{
    const QString wanted = directoryFormOfPath(path);
    for (ListItem &directory : m_directories) {
        if (directory.string != wanted)
            continue;
        m_madeChanges = m_madeChanges || directory.toBeRemoved;
        directory.toBeRemoved = false;
        return;
    }
    m_directories.append(ListItem{{}, wanted});
    m_madeChanges = true;
}

void KXftConfig::removeDirectory(const QString &path)
{
    const QString unwanted = directoryFormOfPath(path);
    for (ListItem &directory : m_directories) {
        if (directory.string != unwanted || directory.toBeRemoved)
            continue;
        directory.toBeRemoved = true;
        m_madeChanges = true;
    }
}
