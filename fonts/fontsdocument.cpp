#include "fonts/fontsdocument.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace {

constexpr char declaration[] = "<?xml version=\"1.0\"?>";
constexpr char quotedDeclaration[] = "<?xml version = '1.0'?>";
constexpr char bareDoctype[] = "<!DOCTYPE fontconfig>";
constexpr char doctype[] = "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">";
constexpr char emptyRoot[] = "<fontconfig>\n</fontconfig>\n";

struct ByteOrderMark {
    const char *codec;
    QByteArray bytes;
};

/// The tabs that \a line begins with.
int levelOf(const QByteArray &line)
{
    int level = 0;
    while (level < line.size() && line.at(level) == '\t')
        ++level;
    return level;
}

QString encodable(const QString &text, const QTextCodec *codec)
{
    if (codec->canEncode(text))
        return text;
    QString result;
    for (const uint codePoint : text.toUcs4()) {
        const QString character = QString::fromUcs4(&codePoint, 1);
        result += codec->canEncode(character)
                      ? character
                      : QLatin1String("&#") + QString::number(codePoint) + QLatin1Char(';');
    }
    return result;
}

} // namespace

FontsDocument::FontsDocument()
{
    clear();
}

void FontsDocument::clear()
{
    m_codec = QTextCodec::codecForName("UTF-8");
    m_byteOrderMark.clear();
    m_text = QByteArray(declaration) + '\n' + doctype + '\n' + emptyRoot;
    QString error;
    const bool isRead = readFontsXml(m_text, &m_xml, &error);
    Q_ASSERT(isRead);
    Q_UNUSED(isRead)
}

bool FontsDocument::decode(const QByteArray &content, QString *error)
{
    static const ByteOrderMark marks[] = {
        {"UTF-8", "\xEF\xBB\xBF"}, {"UTF-16LE", "\xFF\xFE"}, {"UTF-16BE", "\xFE\xFF"}};
    static const QRegularExpression declared(
        QStringLiteral("^<\\?xml\\s[^>]*?encoding\\s*=\\s*[\"']([^\"']*)[\"']"));

    QByteArray name = "UTF-8";
    const auto *mark = std::find_if(
        std::begin(marks), std::end(marks),
        [&content](const ByteOrderMark &mark) { return content.startsWith(mark.bytes); });
    if (mark != std::end(marks)) {
        m_byteOrderMark = mark->bytes;
        name = mark->codec;
    } else if (const auto match = declared.match(QString::fromLatin1(content.left(200))); match.hasMatch()) {
        name = match.captured(1).toLatin1();
    }
    m_codec = QTextCodec::codecForName(name);
    if (!m_codec) {
        *error = QStringLiteral("unknown encoding %1").arg(QString::fromLatin1(name));
        return false;
    }
    m_text = content.mid(m_byteOrderMark.size());
    if (!isUtf8()) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        m_text = m_codec->toUnicode(m_text.constData(), m_text.size(), &state).toUtf8();
    }
    // Only a text that turns back into the same bytes can be changed without losing any.
    if (encoded(m_text) != content) {
        *error = QStringLiteral("not %1 text").arg(QString::fromLatin1(m_codec->name()));
        return false;
    }
    // The XML reader would take a second mark for the first, and a declaration would be put in front of it.
    if (m_text.startsWith(marks[0].bytes)) {
        *error = QStringLiteral("more than one byte order mark");
        return false;
    }
    return true;
}

bool FontsDocument::isUtf8() const
{
    constexpr int utf8Mib = 106;
    return m_codec->mibEnum() == utf8Mib;
}

QByteArray FontsDocument::encoded(const QByteArray &text) const
{
    if (isUtf8())
        return m_byteOrderMark + text;
    const QString decoded = QString::fromUtf8(text);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return m_byteOrderMark + m_codec->fromUnicode(decoded.constData(), decoded.size(), &state);
}

bool FontsDocument::setContent(const QByteArray &content, QString *error)
{
    clear();
    if (content.trimmed().isEmpty())
        return true;
    bool understood = decode(content, error);
    if (understood) {
        understood = readFontsXml(m_text, &m_xml, error);
        if (!understood && !m_xml.hasRoot) {
            const QByteArray text = m_text + (m_text.endsWith('\n') ? QByteArray() : newLine()) + emptyRoot;
            understood = readFontsXml(text, &m_xml, error);
            m_text = text;
        }
    }
    if (!understood)
        clear();
    return understood;
}

QByteArray FontsDocument::withChanges(const QVector<Change> &changes) const
{
    QVector<Edit> edits;
    addPrologEdits(&edits);
    QVector<QByteArray> added;
    for (const Change &change : changes) {
        const QByteArray form = encodable(change.form, m_codec).toUtf8();
        if (change.child >= 0) {
            edits.append(changeOf(children().at(change.child), form));
        } else if (change.before >= 0) {
            const int start = children().at(change.before).start;
            const QByteArray indentation = lineIndentation(start);
            edits.append({start, start, laidOut(form.split('\n'), indentation) + newLine() + indentation});
        } else if (!form.isEmpty()) {
            added.append(form);
        }
    }
    if (!added.isEmpty())
        edits.append(additionOf(added));
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit &one, const Edit &other) { return one.start < other.start; });

    QByteArray text;
    int position = 0;
    for (const Edit &edit : qAsConst(edits)) {
        text.append(m_text.constData() + position, edit.start - position).append(edit.text);
        position = edit.end;
    }
    text.append(m_text.constData() + position, m_text.size() - position);
    return encoded(text);
}

void FontsDocument::addPrologEdits(QVector<Edit> *edits) const
{
    if (m_text.startsWith(quotedDeclaration))
        edits->append({0, int(qstrlen(quotedDeclaration)), declaration});
    else if (!m_text.startsWith("<?xml"))
        edits->append({0, 0, declaration + newLine()});
    const int bareSize = int(qstrlen(bareDoctype));
    if (m_xml.doctype >= 0 && m_text.mid(m_xml.doctype, bareSize) == bareDoctype)
        edits->append({m_xml.doctype, m_xml.doctype + bareSize, doctype});
}

FontsDocument::Edit FontsDocument::changeOf(const Child &child, const QByteArray &form) const
{
    const QByteArray indentation = lineIndentation(child.start);
    // What users wrote between our tags is theirs.
    QList<QByteArray> lines = child.remarks;
    if (form.isEmpty())
        return {lines.isEmpty() ? removalStart(child, indentation) : child.start, child.end,
                laidOut(lines, indentation)};
    for (QByteArray &line : lines)
        line.prepend('\t');
    QList<QByteArray> wanted = form.split('\n');
    // A start tag may carry more than we know of.
    if (child.hasMoreAttributes)
        wanted.first() = m_text.mid(child.start, child.startTagEnd - child.start);
    QByteArray essence;
    for (const QByteArray &line : qAsConst(wanted))
        essence += line.mid(levelOf(line));
    if (essence == child.essence)
        return {child.start, child.start, {}};
    return {child.start, child.end, laidOut(wanted.mid(0, 1) + lines + wanted.mid(1), indentation)};
}

int FontsDocument::removalStart(const Child &child, const QByteArray &indentation) const
{
    int start = child.start - indentation.size();
    const int lineEnd = m_text.indexOf('\n', child.end);
    const bool isAlone = start > 0 && m_text.at(start - 1) == '\n' && lineEnd >= 0
                         && m_text.mid(child.end, lineEnd - child.end).trimmed().isEmpty();
    if (!isAlone)
        return child.start;
    --start;
    return start > 0 && m_text.at(start - 1) == '\r' ? start - 1 : start;
}

FontsDocument::Edit FontsDocument::additionOf(const QVector<QByteArray> &forms) const
{
    const QByteArray step = indentationStep();
    QByteArray text;
    for (const QByteArray &form : forms)
        text += newLine() + step + laidOut(form.split('\n'), step);
    if (m_xml.rootClose < 0)
        return {m_xml.rootOpenEnd - 2, m_xml.rootOpenEnd, '>' + text + newLine() + "</fontconfig>"};
    int position = m_xml.rootClose;
    while (position > m_xml.rootOpenEnd && std::strchr(" \t\r\n", m_text.at(position - 1)))
        --position;
    if (!m_text.mid(position, m_xml.rootClose - position).contains('\n'))
        text += newLine();
    return {position, position, text};
}

QByteArray FontsDocument::laidOut(QList<QByteArray> lines, const QByteArray &indentation) const
{
    const QByteArray step = indentationStep();
    for (int i = 1; i < lines.size(); ++i) {
        const int level = levelOf(lines.at(i));
        lines[i] = indentation + step.repeated(level) + lines.at(i).mid(level);
    }
    return lines.join(newLine());
}

QByteArray FontsDocument::lineIndentation(int position) const
{
    int start = position;
    while (start > 0 && (m_text.at(start - 1) == ' ' || m_text.at(start - 1) == '\t'))
        --start;
    return start > 0 && m_text.at(start - 1) == '\n' ? m_text.mid(start, position - start) : QByteArray();
}

QByteArray FontsDocument::indentationStep() const
{
    for (const Child &child : children()) {
        QByteArray indentation = lineIndentation(child.start);
        if (!indentation.isEmpty())
            return indentation;
    }
    return "  ";
}

QByteArray FontsDocument::newLine() const
{
    const int end = m_text.indexOf('\n');
    return end > 0 && m_text.at(end - 1) == '\r' ? "\r\n" : "\n";
}

bool FontsDocument::holdsOnlySettings() const
{
    QList<FontsItem::Kind> kinds;
    for (const Child &child : children()) {
        if (!child.item || child.hasMoreAttributes || !child.remarks.isEmpty()
            || kinds.contains(child.item->kind))
            return false;
        if (child.item->kind != FontsItem::Kind::Directory)
            kinds.append(child.item->kind);
    }
    return !m_xml.holdsMore;
}
