#include "fonts/fontsdocument.h"

#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

using Child = FontsXml::Child;

constexpr char declaration[] = "<?xml version=\"1.0\"?>";
constexpr char quotedDeclaration[] = "<?xml version = '1.0'?>";
constexpr char bareDoctype[] = "<!DOCTYPE fontconfig>";
constexpr char doctype[] = "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">";
constexpr char emptyRoot[] = "<fontconfig>\n</fontconfig>\n";

bool isOf(const Child &child, FontsItem::Kind kind)
{
    return child.item && child.item->kind == kind;
}

} // namespace

FontsDocument::FontsDocument()
{
    QString error;
    (void)understand(QByteArray(declaration) + '\n' + doctype + '\n' + emptyRoot, &error); // always succeeds
}

bool FontsDocument::setContent(const QByteArray &content, QString *error)
{
    *this = FontsDocument();
    if (content.trimmed().isEmpty() || understand(content, error))
        return true;
    *this = FontsDocument();
    return false;
}

bool FontsDocument::understand(const QByteArray &content, QString *error)
{
    if (!decode(content, error))
        return false;
    if (readFontsXml(m_text, &m_xml, error))
        return true;
    if (m_xml.hasRoot)
        return false;
    m_text += m_text.endsWith(QLatin1Char('\n')) ? QString() : newLine();
    m_text += QLatin1String(emptyRoot);
    return readFontsXml(m_text, &m_xml, error);
}

bool FontsDocument::decode(const QByteArray &content, QString *error)
{
    QXmlStreamReader declaration(QString::fromLatin1(content));
    declaration.readNext();
    // Nothing is found of an encoding that Qt does not know; the error is left to who reads on.
    const QByteArray declared = declaration.documentEncoding().toLatin1();
    m_codec = QTextCodec::codecForUtfText(content,
                                          QTextCodec::codecForName(declared.isEmpty() ? "UTF-8" : declared));
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    m_text = m_codec->toUnicode(content.constData(), content.size(), &state);
    const QChar mark(QChar::ByteOrderMark);
    m_byteOrderMark = m_text.startsWith(mark) ? QString(mark) : QString();
    m_text.remove(0, m_byteOrderMark.size());
    // Only a text that turns back into the same bytes can be changed without losing any. A second mark would be
    // taken for the first.
    if (encoded(m_text) == content && !m_text.startsWith(mark))
        return true;
    *error = QStringLiteral("not %1 text").arg(QString::fromLatin1(m_codec->name()));
    return false;
}

QByteArray FontsDocument::encoded(const QString &text) const
{
    const QString whole = m_byteOrderMark + text;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return m_codec->fromUnicode(whole.constData(), whole.size(), &state);
}

FontsItem FontsDocument::item(FontsItem::Kind kind) const
{
    FontsItem found{kind};
    for (const Child &child : children())
        found = isOf(child, kind) ? *child.item : found;
    return found;
}

QByteArray FontsDocument::withItems(const QVector<FontsItem> &items) const
{
    QVector<Edit> edits;
    addPrologEdits(&edits);
    QString added;
    for (const FontsItem &item : items) {
        const Child *last = nullptr;
        for (const Child &child : children()) {
            if (!isOf(child, item.kind))
                continue;
            last = &child;
            // An older element of the same kind would come back into force if only the last one went.
            if (item.isEmpty())
                edits.append(removal(child));
        }
        if (item.isEmpty())
            continue;
        if (last) {
            edits.append(replacement(*last, item));
        } else if (const auto place = placeOf(item, items); place != children().end()) {
            const QString indentation = lineIndentation(place->start);
            edits.append({place->start, place->start, laidOut(item, indentation) + newLine() + indentation});
        } else {
            added += newLine() + indentationStep() + laidOut(item, indentationStep());
        }
    }
    if (!added.isEmpty())
        edits.append(addition(added));
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit &one, const Edit &other) { return one.start < other.start; });
    QString text = m_text;
    for (auto edit = edits.crbegin(); edit != edits.crend(); ++edit)
        text.replace(edit->start, edit->end - edit->start, edit->text);
    return encoded(text);
}

void FontsDocument::addPrologEdits(QVector<Edit> *edits) const
{
    if (m_text.startsWith(QLatin1String(quotedDeclaration)))
        edits->append({0, int(qstrlen(quotedDeclaration)), QLatin1String(declaration)});
    else if (!m_text.startsWith(QLatin1String("<?xml")))
        edits->append({0, 0, QLatin1String(declaration) + newLine()});
    const int start = m_text.leftRef(m_xml.rootOpenEnd).indexOf(QLatin1String(bareDoctype));
    if (start >= 0)
        edits->append({start, start + int(qstrlen(bareDoctype)), QLatin1String(doctype)});
}

FontsDocument::Edit FontsDocument::replacement(const Child &child, const FontsItem &item) const
{
    const QString indentation = lineIndentation(child.start);
    QString wanted = laidOut(item, indentation);
    QString essence = fontsItemForm(item).remove(QLatin1Char('\t')).remove(QLatin1Char('\n'));
    const int startTagSize = wanted.indexOf(QLatin1Char('>')) + 1;
    // A start tag may carry more than we know of, and what users wrote between our tags is theirs.
    QString kept = child.startTag.isEmpty() ? wanted.left(startTagSize) : child.startTag;
    essence.replace(0, startTagSize, kept);
    if (essence == child.essence)
        return {child.start, child.start, {}};
    for (const QString &remark : child.remarks)
        kept += newLine() + indentation + indentationStep() + remark;
    return {child.start, child.end, wanted.replace(0, startTagSize, kept)};
}

FontsDocument::Edit FontsDocument::removal(const Child &child) const
{
    const QString indentation = lineIndentation(child.start);
    if (!child.remarks.isEmpty())
        return {child.start, child.end, child.remarks.join(newLine() + indentation)};
    // With the line break before it when it has its lines for itself.
    QStringRef before = m_text.leftRef(child.start - indentation.size());
    const QStringRef after = m_text.midRef(child.end,
                                           m_text.indexOf(QLatin1Char('\n'), child.end) - child.end);
    if (!before.endsWith(QLatin1Char('\n')) || !after.trimmed().isEmpty())
        return {child.start, child.end, {}};
    before.chop(before.endsWith(QLatin1String("\r\n")) ? 2 : 1);
    return {before.size(), child.end, {}};
}

FontsDocument::Edit FontsDocument::addition(const QString &elements) const
{
    if (!m_xml.rootClose)
        return {m_xml.rootOpenEnd - 2, m_xml.rootOpenEnd,
                QLatin1Char('>') + elements + newLine() + QLatin1String("</fontconfig>")};
    const QString blanks = blanksBefore(*m_xml.rootClose);
    const int position = *m_xml.rootClose - blanks.size();
    return {position, position, blanks.contains(QLatin1Char('\n')) ? elements : elements + newLine()};
}

QVector<Child>::const_iterator FontsDocument::placeOf(const FontsItem &item,
                                                      const QVector<FontsItem> &items) const
{
    if (item.kind != FontsItem::Kind::AntiAliasing)
        return children().end();
    // The rules apply in their order: behind a range, the new one would take it out of force.
    return std::find_if(children().begin(), children().end(), [&items](const Child &child) {
        return std::any_of(items.begin(), items.end(), [&child](const FontsItem &range) {
            return range.isRange() && !range.isEmpty() && isOf(child, range.kind);
        });
    });
}

QString FontsDocument::laidOut(const FontsItem &item, const QString &indentation) const
{
    return fontsItemForm(item)
        .replace(QLatin1Char('\t'), indentationStep())
        .replace(QLatin1Char('\n'), newLine() + indentation);
}

QString FontsDocument::blanksBefore(int position) const
{
    const QStringRef before = m_text.leftRef(position);
    const auto isBlank = [](QChar character) { return character.isSpace(); };
    const auto text = std::find_if_not(before.rbegin(), before.rend(), isBlank);
    return before.right(int(std::distance(before.rbegin(), text))).toString();
}

QString FontsDocument::lineIndentation(int position) const
{
    const QString blanks = blanksBefore(position);
    return blanks.contains(QLatin1Char('\n')) ? blanks.section(QLatin1Char('\n'), -1) : QString();
}

QString FontsDocument::indentationStep() const
{
    for (const Child &child : children()) {
        QString indentation = lineIndentation(child.start);
        if (!indentation.isEmpty())
            return indentation;
    }
    return QStringLiteral("  ");
}

QString FontsDocument::newLine() const
{
    const bool isDos = m_text.leftRef(m_text.indexOf(QLatin1Char('\n'))).endsWith(QLatin1Char('\r'));
    return isDos ? QStringLiteral("\r\n") : QStringLiteral("\n");
}

bool FontsDocument::holdsOnlySettings() const
{
    QList<FontsItem::Kind> kinds;
    for (const Child &child : children()) {
        if (!child.item || !child.startTag.isEmpty() || !child.remarks.isEmpty()
            || kinds.contains(child.item->kind))
            return false;
        kinds.append(child.item->kind);
    }
    return !m_xml.holdsMore;
}
