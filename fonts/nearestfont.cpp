#include "fonts/nearestfont.h"

#include "base/chandle.h"
#include "base/diagnostics.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QSet>

#include <algorithm>
#include <memory>

#include <fontconfig/fontconfig.h>

namespace {

using FcPatternPtr = std::unique_ptr<FcPattern, Release<FcPatternDestroy>>;

/// Asking the database for its families sorts and copies them all, too much for each of a page's fonts.
bool isInstalled(const QString &family)
{
    static QSet<QString> installed;
    static const auto clearOnChange = QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged,
                                                       qGuiApp, [] { installed.clear(); });
    Q_UNUSED(clearOnChange)
    if (installed.isEmpty()) {
        const QStringList families = QFontDatabase().families();
        installed = QSet<QString>(families.begin(), families.end());
    }
    return installed.contains(family);
}

/// The family of fontconfig's best match for \a family; \a family itself when it has none.
QString matchedFamily(const QString &family)
{
    const FcPatternPtr pattern(FcPatternCreate());
    const QByteArray name = family.toLocal8Bit();
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8 *>(name.constData()));
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    const FcPatternPtr match(FcFontMatch(nullptr, pattern.get(), &result));
    FcChar8 *matched = nullptr; // belongs to the match
    if (match)
        FcPatternGetString(match.get(), FC_FAMILY, 0, &matched);
    return matched ? QString::fromUtf8(reinterpret_cast<const char *>(matched)) : family;
}

QString substituteFamily()
{
    QString family = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    if (!isInstalled(family)) {
        const QString matched = matchedFamily(family);
        printDiagnostic(QStringLiteral("fontconfig %1->%2").arg(family, matched));
        family = matched;
    }
    return family;
}

/// The style of the face of \a family that comes nearest to \a wanted.
QString nearestStyle(QFontDatabase &database, const QString &family, const QFont &wanted)
{
    const QFont face = database.font(family, database.styleString(wanted), wanted.pointSize());
    QString style = database.styleString(face);
    if (!wanted.styleName().isEmpty())
        return style;
    // Weight and slant can fit several widths of a family, of which the database takes any: a plain font of
    // "DejaVu Sans" came out condensed. The matcher knows the one of normal width.
    QFont plain(family, wanted.pointSize(), face.weight());
    plain.setStyle(face.style());
    const QString normalWidth = QFontInfo(plain).styleName();
    const QFont candidate = database.font(family, normalWidth, wanted.pointSize());
    const bool fits = database.styles(family).contains(normalWidth) && candidate.weight() == face.weight()
                      && candidate.style() == face.style();
    return fits ? normalWidth : style;
}

} // namespace

QFont nearestInstalledFont(const QFont &wanted)
{
    QFontDatabase database;
    const QString family = isInstalled(wanted.family()) ? wanted.family() : substituteFamily();
    const QString style = nearestStyle(database, family, wanted);
    int size = wanted.pointSize();
    if (!database.isSmoothlyScalable(family, style))
        size = nearestSize(database.smoothSizes(family, style), size);
    QFont font = database.font(family, style, size);
    // What the family has no face for, the toolkit makes from another one.
    if (font.bold() != wanted.bold())
        font.setWeight(wanted.weight());
    if (font.italic() != wanted.italic())
        font.setStyle(wanted.style());
    return font;
}

int nearestSize(const QList<int> &sizes, int wanted)
{
    const auto nearest = std::min_element(sizes.begin(), sizes.end(), [wanted](int one, int other) {
        return qAbs(one - wanted) < qAbs(other - wanted);
    });
    return nearest == sizes.end() || qAbs(*nearest - wanted) >= 1000 ? wanted : *nearest;
}
