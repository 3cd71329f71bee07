#include "fonts/kxftconfig.h"

#include "base/chandle.h"
#include "base/diagnostics.h"
#include "base/xdgdirectories.h"
#include "fonts/fontsfile.h"
#include "settings/backup.h"

#include <QElapsedTimer>
#include <QThread>
#include <QX11Info>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

using Kind = FontsItem::Kind;

constexpr int mergeTimeMs = 2000; // for programs that rewrite the file under our hands
constexpr int rereadPauseMs = 10;

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

QString boolForm(Kind kind, bool value)
{
    return valueForm(kind, value ? QStringLiteral("true") : QStringLiteral("false"));
}

QString rangeForm(Kind kind, const ExcludeRange &range)
{
    return range.isZero() ? QString() : excludeForm(kind, range);
}

} // namespace

KXftConfig::KXftConfig(int required, bool system)
    : m_required(required)
    , m_file(chooseFontsFile(fontconfigFiles(), system))
    , m_refusal(QStringLiteral("It was not read"))
{
    printDiagnostic(QStringLiteral("%1 fontconfig file to use: %2")
                        .arg(system ? QStringLiteral("system") : QStringLiteral("user"), m_file));
}

bool KXftConfig::reset()
{
    read();
    if (!m_refusal.isEmpty()) {
        printDiagnostic(QStringLiteral("Can't use %1: %2").arg(m_file, m_refusal));
        return false;
    }
    QString error; // told already; whoever edits something tries again
    if (bringRangesIntoAgreement() && !apply(&error))
        read();
    return true;
}

void KXftConfig::read()
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

    const FileContent file = readFontsFile(m_file);
    m_content = file.content;
    m_refusal = file.error;
    QString error;
    if (!m_document.setContent(file.content, &error))
        m_refusal = error;
    else if (file.state == FileState::Missing && !canMakeFile(m_file))
        m_refusal = QStringLiteral("It does not exist and can't be made");
    for (int child = 0; child < m_document.children().size(); ++child) {
        if (const auto &item = m_document.children().at(child).item)
            readItem(*item, child);
    }
}

void KXftConfig::readItem(const FontsItem &item, int child)
{
    switch (item.kind) {
    case Kind::Directory:
        m_directories.append(ListItem{{child}, directoryFormOfPath(item.text, homeDirectory())});
        break;
    case Kind::SubPixel:
        m_subPixel = {{child}, FontRendering::subPixelOrder(item.text)};
        break;
    case Kind::HintStyle:
        m_hint = {{child}, FontRendering::hintStyle(item.text)};
        break;
    case Kind::Hinting:
        m_hinting = {{child}, item.isOn()};
        break;
    case Kind::AntiAliasing:
        m_antiAliasing = {{child}, item.isOn()};
        break;
    case Kind::ExcludePoints:
        m_excludeRange = {{child}, item.range};
        break;
    case Kind::ExcludePixels:
        m_excludePixelRange = {{child}, item.range};
        break;
    }
}

bool KXftConfig::wasRewritten() const
{
    const FileContent now = readFontsFile(m_file);
    return now.state == FileState::Regular && now.content != m_content;
}

bool KXftConfig::bringRangesIntoAgreement()
{
    const bool toBeWritten = (m_required & ExcludedRange)
                             && bringIntoAgreement(&m_excludeRange.range, &m_excludePixelRange.range,
                                                   screenDpi());
    m_madeChanges = m_madeChanges || toBeWritten;
    return toBeWritten;
}

bool KXftConfig::apply(QString *error)
{
    if (!m_madeChanges)
        return true;
    *error = m_refusal;
    if (m_refusal.isEmpty()) {
        FontsFileLock lock(m_file);
        *error = lock.error();
        if (lock.isHeld() && writeOrMerge(&lock, error))
            return true;
    }
    printDiagnostic(QStringLiteral("Can't write %1: %2").arg(m_file, *error));
    return false;
}

bool KXftConfig::writeOrMerge(FontsFileLock *lock, QString *error)
{
    QElapsedTimer timer;
    timer.start();
    for (bool isTold = false; !timer.hasExpired(mergeTimeMs);) {
        if (wasRewritten()) {
            if (!std::exchange(isTold, true))
                printDiagnostic(QStringLiteral("font config file was rewritten since we last read!"));
            merge();
        }
        if (!m_refusal.isEmpty()) // half of it is written, perhaps
            QThread::msleep(rereadPauseMs);
        else if (write(lock, error))
            return true;
        else if (!error->isEmpty())
            return false;
    }
    *error = m_refusal.isEmpty() ? QStringLiteral("Another program keeps changing it") : m_refusal;
    return false;
}

/// False with an empty \a error when another program came in between.
bool KXftConfig::write(FontsFileLock *lock, QString *error)
{
    bringRangesIntoAgreement();
    const QByteArray content = m_document.withChanges(changes());
    // A rewrite that changes nothing can lose nothing, and would only drive the older copies out.
    if (m_content != content && !m_document.holdsOnlySettings()) {
        if (const QString copy = backUp(m_file); !copy.isEmpty())
            printDiagnostic(QStringLiteral("Saved a copy of %1 as %2").arg(m_file, copy));
    }
    if (!lock->replace(
            content, [this] { return !wasRewritten(); }, error))
        return false;
    const KXftConfig wanted = *this;
    read();
    if (m_content == content)
        return true;
    *this = wanted;
    return false;
}

void KXftConfig::merge()
{
    const KXftConfig wanted = *this;
    read();
    m_madeChanges = true;
    if (m_required & Directories) {
        for (const ListItem &directory : wanted.m_directories) {
            if (directory.toBeRemoved)
                removeDirectory(directory.string);
            else
                addDirectory(directory.string);
        }
    }
    // Both units, so that a conversion there and back can't move the bounds.
    m_excludeRange.range = wanted.m_excludeRange.range;
    m_excludePixelRange.range = wanted.m_excludePixelRange.range;
    m_subPixel.type = wanted.m_subPixel.type;
    m_hint.style = wanted.m_hint.style;
    m_hinting.set = wanted.m_hinting.set;
    m_antiAliasing.set = wanted.m_antiAliasing.set;
}

void KXftConfig::addChange(QVector<FontsDocument::Change> *changes, Kind kind, const Item &item,
                           const QString &form, int before) const
{
    if (!form.isEmpty()) {
        changes->append({item.child, form, before});
        return;
    }
    // An older element of the same kind would come back into force if only the last one went.
    for (int child = 0; child < m_document.children().size(); ++child) {
        if (const auto &found = m_document.children().at(child).item; found && found->kind == kind)
            changes->append({child, {}, -1});
    }
}

int KXftConfig::firstExcludeRange() const
{
    const auto &children = m_document.children();
    const auto first = std::find_if(
        children.begin(), children.end(), [this](const FontsDocument::Child &child) {
            return child.item
                   && ((child.item->kind == Kind::ExcludePoints && !m_excludeRange.range.isZero())
                       || (child.item->kind == Kind::ExcludePixels && !m_excludePixelRange.range.isZero()));
        });
    return first == children.end() ? -1 : int(first - children.begin());
}

QVector<FontsDocument::Change> KXftConfig::changes() const
{
    QVector<FontsDocument::Change> changes;
    for (const ListItem &directory : m_directories) {
        if (directory.child < 0 && !directory.toBeRemoved)
            changes.append({-1, directoryForm(directory.string, homeDirectory()), -1});
        else if (directory.child >= 0 && directory.toBeRemoved)
            changes.append({directory.child, {}, -1});
    }
    if (m_required & SubPixelType)
        addChange(&changes, Kind::SubPixel, m_subPixel,
                  m_subPixel.type == SubPixelOrder::None
                      ? QString()
                      : valueForm(Kind::SubPixel, FontRendering::fileName(m_subPixel.type)));
    if (m_required & HintingStyle) {
        addChange(&changes, Kind::Hinting, m_hinting, boolForm(Kind::Hinting, m_hinting.set));
        addChange(&changes, Kind::HintStyle, m_hint,
                  m_hint.style == HintStyle::NotSet
                      ? QString()
                      : valueForm(Kind::HintStyle, FontRendering::fileName(m_hint.style)));
    }
    // The rules apply in their order: behind a range, the new one would take it out of force.
    if (m_required & AntiAlias)
        addChange(&changes, Kind::AntiAliasing, m_antiAliasing,
                  boolForm(Kind::AntiAliasing, m_antiAliasing.set),
                  (m_required & ExcludedRange) ? firstExcludeRange() : -1);
    if (m_required & ExcludedRange) {
        addChange(&changes, Kind::ExcludePoints, m_excludeRange,
                  rangeForm(Kind::ExcludePoints, m_excludeRange.range));
        addChange(&changes, Kind::ExcludePixels, m_excludePixelRange,
                  rangeForm(Kind::ExcludePixels, m_excludePixelRange.range));
    }
    return changes;
}

void KXftConfig::setExcludeRange(const ExcludeRange &points)
{
    if (m_excludeRange.range.equals(points))
        return;
    // The pixels would win when both are brought into agreement.
    ExcludeRange agreed = points;
    m_excludePixelRange.range = {};
    bringIntoAgreement(&agreed, &m_excludePixelRange.range, screenDpi());
    m_excludeRange.range = points;
    m_madeChanges = true;
}

void KXftConfig::setExcludePixelRange(const ExcludeRange &pixels)
{
    if (m_excludePixelRange.range.equals(pixels))
        return;
    ExcludeRange agreed = pixels;
    m_excludeRange.range = {};
    bringIntoAgreement(&m_excludeRange.range, &agreed, screenDpi());
    m_excludePixelRange.range = pixels;
    m_madeChanges = true;
}

void KXftConfig::setHintStyle(HintStyle style)
{
    set(&m_hint.style, style);
    if (style != HintStyle::NotSet)
        setHinting(style != HintStyle::None);
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
        if (directory.string == wanted)
            return set(&directory.toBeRemoved, false);
    }
    m_directories.append(ListItem{{}, wanted});
    m_madeChanges = true;
}

void KXftConfig::removeDirectory(const QString &path)
{
    const QString unwanted = directoryFormOfPath(path);
    for (ListItem &directory : m_directories) {
        if (directory.string == unwanted)
            set(&directory.toBeRemoved, true);
    }
}
