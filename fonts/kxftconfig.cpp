#include "fonts/kxftconfig.h"

#include "base/chandle.h"
#include "base/diagnostics.h"
#include "fonts/fontsfile.h"
#include "settings/backup.h"

#include <QDeadlineTimer>
#include <QVariant>
#include <QX11Info>

#include <chrono>
#include <memory>
#include <thread>
#include <utility>

namespace {

using Kind = FontsItem::Kind;

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds mergeTime = 2s; // for programs that rewrite the file under our hands
constexpr std::chrono::milliseconds rereadPause = 10ms;

bool systemAntiAliasing()
{
    const std::unique_ptr<FcPattern, Release<FcPatternDestroy>> pattern(FcPatternCreate());
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcBool isOn = FcTrue;
    FcPatternGetBool(pattern.get(), FC_ANTIALIAS, 0, &isOn);
    return isOn;
}

bool truthOf(const FontsItem &item, bool fallback)
{
    return item.isEmpty() ? fallback : item.text.toLower() == QLatin1String("true");
}

} // namespace

KXftConfig::KXftConfig()
    : m_file(chooseFontsFile(fontconfigFiles()))
{
    printDiagnostic(QStringLiteral("user fontconfig file to use: %1").arg(m_file));
    reset();
}

void KXftConfig::reset()
{
    read();
    QString error; // told already; whoever edits something tries again
    if (!m_refusal.isEmpty()) {
        printDiagnostic(QStringLiteral("Can't use %1: %2").arg(m_file, m_refusal));
    } else if (bringIntoAgreement(&m_settings.points, &m_settings.pixels, QX11Info::appDpiY())) {
        m_madeChanges = true;
        if (!apply(&error))
            read();
    }
}

void KXftConfig::read()
{
    const FileContent file = readFontsFile(m_file);
    m_madeChanges = false;
    m_content = file.content;
    m_refusal = file.error;
    QString error;
    FontsDocument &document = m_document.emplace();
    if (!document.setContent(file.content, &error))
        m_refusal = error;
    m_settings = {FontRendering::subPixelOrder(document.item(Kind::SubPixel).text),
                  document.item(Kind::ExcludePoints).range,
                  document.item(Kind::ExcludePixels).range,
                  FontRendering::hintStyle(document.item(Kind::HintStyle).text),
                  truthOf(document.item(Kind::Hinting), true),
                  truthOf(document.item(Kind::AntiAliasing), systemAntiAliasing())};
}

bool KXftConfig::wasRewritten() const
{
    const FileContent now = readFontsFile(m_file);
    return now.state == FileState::Regular && now.content != m_content;
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
    const QDeadlineTimer deadline(mergeTime);
    for (bool isTold = false; !deadline.hasExpired();) {
        if (wasRewritten()) {
            if (!std::exchange(isTold, true))
                printDiagnostic(QStringLiteral("font config file was rewritten since we last read!"));
            const Settings wanted = m_settings;
            read();
            m_settings = wanted;
            m_madeChanges = true;
        }
        if (!m_refusal.isEmpty()) // half of it is written, perhaps
            std::this_thread::sleep_for(rereadPause);
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
    if (!m_document && !m_document.emplace().setContent(m_content, error))
        return false;
    const QByteArray content = m_document->withItems(items());
    // A rewrite that changes nothing can lose nothing, and would only drive the older copies out.
    if (m_content != content && !m_document->holdsOnlySettings()) {
        if (const QString copy = backUp(m_file); !copy.isEmpty())
            printDiagnostic(QStringLiteral("Saved a copy of %1 as %2").arg(m_file, copy));
    }
    const auto isCurrent = [this] { return !wasRewritten(); };
    if (!lock->replace(content, isCurrent, error) || readFontsFile(m_file).content != content)
        return false;
    m_content = content;
    m_document.reset();
    m_madeChanges = false;
    return true;
}

QVector<FontsItem> KXftConfig::items() const
{
    const SubPixelOrder order = m_settings.subPixelType;
    const HintStyle style = m_settings.hintStyle;
    return {{Kind::SubPixel, order == SubPixelOrder::None ? QString() : FontRendering::fileName(order)},
            {Kind::Hinting, QVariant(m_settings.hinting).toString()},
            {Kind::HintStyle, style == HintStyle::NotSet ? QString() : FontRendering::fileName(style)},
            {Kind::AntiAliasing, QVariant(m_settings.antiAliasing).toString()},
            {Kind::ExcludePoints, {}, m_settings.points},
            {Kind::ExcludePixels, {}, m_settings.pixels}};
}

void KXftConfig::setExcludePixelRange(const ExcludeRange &pixels)
{
    if (m_settings.pixels.equals(pixels))
        return;
    m_settings.points = {};
    m_settings.pixels = pixels;
    bringIntoAgreement(&m_settings.points, &m_settings.pixels, QX11Info::appDpiY());
    m_madeChanges = true;
}

void KXftConfig::setHintStyle(HintStyle style)
{
    set(&m_settings.hintStyle, style);
    if (style != HintStyle::NotSet)
        setHinting(style != HintStyle::None);
}
