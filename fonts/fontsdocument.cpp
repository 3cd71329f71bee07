#include "fonts/fontsdocument.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// A tree this deep holds no configuration, but could exhaust the stack of whoever walks it.
constexpr int depthLimit = 200;

const QLatin1String declaration("<?xml version=\"1.0\"?>");
const QLatin1String quotedDeclaration("<?xml version = '1.0'?>");
const QLatin1String bareDoctype("<!DOCTYPE fontconfig>");
const QLatin1String doctype("<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">");
const QLatin1String emptyRoot("<fontconfig>\n</fontconfig>\n");

struct ByteOrderMark {
    const char *codec;
    QByteArray bytes;
};

/// Comments and processing instructions in the text of an element, a line each.
QStringList remarksIn(const QString &element)
{
    static const QRegularExpression remark(QStringLiteral("<!\\[CDATA\\[.*?\\]\\]>|(<!--.*?-->|<\\?.*?\\?>)"),
                                           QRegularExpression::DotMatchesEverythingOption);
    QStringList remarks;
    for (auto matches = remark.globalMatch(element); matches.hasNext();) {
        const QString found = matches.next().captured(1);
        if (!found.isEmpty())
            remarks.append(found);
    }
    return remarks;
}

/// The element without what two writings of the same settings may differ in.
QString essence(QString element)
{
    static const QRegularExpression gaps(QStringLiteral("(?<=>)\\s+|\\s+(?=<)"));
    for (const QString &remark : remarksIn(element))
        element.remove(remark);
    return element.remove(gaps);
}

QString withoutUnencodable(const QString &text, const QTextCodec *codec)
{
    if (codec->canEncode(text))
        return text;
    QString encodable;
    for (const uint codePoint : text.toUcs4()) {
        const QString character = QString::fromUcs4(&codePoint, 1);
        encodable += codec->canEncode(character)
                         ? character
                         : QLatin1String("&#") + QString::number(codePoint) + QLatin1Char(';');
    }
    return encodable;
}

} // namespace

/// One pass over the text: checks that it is well-formed, finds the root's children in it and builds the nodes
/// of those that may hold a setting.
class FontsDocument::Reader
{
public:
    explicit Reader(FontsDocument *document)
        : m_document(document)
        , m_reader(document->m_text)
    {
        m_reader.setNamespaceProcessing(false);
    }

    bool read(QString *error);
    bool hasNoRoot() const
    {
        return m_document->m_document.documentElement().isNull()
               && m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    }

private:
    void readDoctype(int before);
    void startElement(int before);
    void startChild(int before);
    void endElement(int before);
    QDomElement createElement();
    /// What an entity stands for has no place in the text, so it can't be changed there.
    bool isInText(const Child &child) const
    {
        const QStringRef text = m_document->m_text.midRef(child.start, child.end - child.start);
        return text.startsWith(QLatin1Char('<')) && text.mid(1).startsWith(child.node.tagName())
               && text.endsWith(QLatin1Char('>'));
    }
    /// The reader stops in front of a tag or behind its first character.
    int tagStart(int before) const
    {
        const QString &text = m_document->m_text;
        return before > 0 && text.at(before - 1) == QLatin1Char('<') ? before - 1 : before;
    }
    int offset() const { return int(m_reader.characterOffset()); }

    FontsDocument *m_document;
    QXmlStreamReader m_reader;
    QDomElement m_node; // null inside elements that are only skipped
    int m_depth = 0;
};

bool FontsDocument::Reader::read(QString *error)
{
    while (!m_reader.atEnd()) {
        const int before = offset();
        switch (m_reader.readNext()) {
        case QXmlStreamReader::DTD:
            readDoctype(before);
            break;
        case QXmlStreamReader::StartElement:
            startElement(before);
            break;
        case QXmlStreamReader::EndElement:
            endElement(before);
            break;
        case QXmlStreamReader::Characters:
            if (!m_node.isNull() && !m_reader.isWhitespace())
                m_node.appendChild(m_document->m_document.createTextNode(m_reader.text().toString()));
            break;
        case QXmlStreamReader::EntityReference:
            // Nobody here knows what it stands for, so the element around it is not one of ours.
            if (!m_node.isNull())
                m_node.appendChild(m_document->m_document.createEntityReference(m_reader.name().toString()));
            break;
        default:
            break;
        }
    }
    if (m_reader.hasError())
        *error = QStringLiteral("line %1: %2")
                     .arg(QString::number(m_reader.lineNumber()), m_reader.errorString());
    return !m_reader.hasError();
}

void FontsDocument::Reader::readDoctype(int before)
{
    const int position = m_document->m_text.indexOf(bareDoctype, before);
    if (position >= 0 && position + bareDoctype.size() == offset())
        m_document->m_doctype = position;
}

QDomElement FontsDocument::Reader::createElement()
{
    QDomElement element = m_document->m_document.createElement(m_reader.name().toString());
    for (const QXmlStreamAttribute &attribute : m_reader.attributes())
        element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    return element;
}

void FontsDocument::Reader::startElement(int before)
{
    if (++m_depth > depthLimit) {
        m_reader.raiseError(QStringLiteral("Elements are nested too deeply"));
        return;
    }
    if (m_depth == 1) {
        if (m_reader.name() != QLatin1String("fontconfig"))
            m_reader.raiseError(
                QStringLiteral("The root element is '%1', not 'fontconfig'").arg(m_reader.name().toString()));
        m_document->m_document.appendChild(createElement());
        m_document->m_rootOpenEnd = offset();
    } else if (m_depth == 2) {
        startChild(before);
    } else if (!m_node.isNull()) {
        m_node = m_node.appendChild(createElement()).toElement();
    }
}

void FontsDocument::Reader::startChild(int before)
{
    Child child;
    child.start = tagStart(before);
    child.startTagEnd = offset();
    const bool isMatch = m_reader.name() == QLatin1String("match")
                         && m_reader.attributes().value(QLatin1String("target")) == QLatin1String("font");
    if (isMatch || m_reader.name() == QLatin1String("dir"))
        child.node = m_document->m_document.documentElement().appendChild(createElement()).toElement();
    m_node = child.node;
    m_document->m_children.append(child);
}

void FontsDocument::Reader::endElement(int before)
{
    if (m_depth == 1) {
        m_document->m_rootClose = offset() == m_document->m_rootOpenEnd ? -1 : tagStart(before);
    } else if (m_depth == 2) {
        Child &child = m_document->m_children.last();
        child.end = offset();
        if (!isInText(child))
            child.node = QDomElement();
    }
    if (m_depth > 2 && !m_node.isNull())
        m_node = m_node.parentNode().toElement();
    else
        m_node = QDomElement();
    --m_depth;
}

FontsDocument::FontsDocument()
{
    clear();
}

void FontsDocument::clear()
{
    m_codec = QTextCodec::codecForName("UTF-8");
    m_byteOrderMark.clear();
    m_text = QString(declaration) + QLatin1Char('\n') + doctype + QLatin1Char('\n') + emptyRoot;
    m_document = QDomDocument();
    m_children.clear();
    m_doctype = -1;
    m_rootOpenEnd = m_text.lastIndexOf(QLatin1String("\n</"));
    m_rootClose = m_rootOpenEnd + 1;
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
    const int skip = m_byteOrderMark.size();
    QTextCodec::ConverterState reading(QTextCodec::IgnoreHeader);
    m_text = m_codec->toUnicode(content.constData() + skip, content.size() - skip, &reading);
    // Only a text that turns back into the same bytes can be changed without losing any.
    QTextCodec::ConverterState writing(QTextCodec::IgnoreHeader);
    if (m_byteOrderMark + m_codec->fromUnicode(m_text.constData(), m_text.size(), &writing) != content) {
        *error = QStringLiteral("not %1 text").arg(QString::fromLatin1(m_codec->name()));
        return false;
    }
    return true;
}

bool FontsDocument::setContent(const QByteArray &content, QString *error)
{
    clear();
    if (content.trimmed().isEmpty())
        return true;
    bool understood = decode(content, error);
    if (understood) {
        Reader reader(this);
        understood = reader.read(error);
        if (!understood && reader.hasNoRoot()) {
            m_text += (m_text.endsWith(QLatin1Char('\n')) ? QString() : newLine()) + emptyRoot;
            understood = Reader(this).read(error);
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
    QStringList appended;
    for (const Change &change : changes) {
        const auto child = std::find_if(m_children.begin(), m_children.end(), [&change](const Child &child) {
            return !change.node.isNull() && child.node == change.node;
        });
        if (child != m_children.end())
            edits.append(changeOf(*child, withoutUnencodable(change.form, m_codec)));
        else if (!change.form.isEmpty())
            appended.append(withoutUnencodable(change.form, m_codec));
    }
    if (!appended.isEmpty())
        edits.append(insertionOf(appended));
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit &one, const Edit &other) { return one.start < other.start; });

    QString text;
    int position = 0;
    for (const Edit &edit : qAsConst(edits)) {
        text += m_text.midRef(position, edit.start - position) + edit.text;
        position = edit.end;
    }
    text += m_text.midRef(position);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return m_byteOrderMark + m_codec->fromUnicode(text.constData(), text.size(), &state);
}

void FontsDocument::addPrologEdits(QVector<Edit> *edits) const
{
    if (m_text.startsWith(quotedDeclaration))
        edits->append({0, quotedDeclaration.size(), declaration});
    else if (!m_text.startsWith(QLatin1String("<?xml")))
        edits->append({0, 0, declaration + newLine()});
    if (m_doctype >= 0)
        edits->append({m_doctype, m_doctype + bareDoctype.size(), doctype});
}

FontsDocument::Edit FontsDocument::changeOf(const Child &child, const QString &form) const
{
    const QString indentation = lineIndentation(child.start);
    const QString old = m_text.mid(child.start, child.end - child.start);
    // What users wrote between our tags is theirs.
    const QStringList remarks = remarksIn(old);
    if (form.isEmpty()) {
        const QString rest = laidOut(remarks, indentation);
        return {rest.isEmpty() ? removalStart(child, indentation) : child.start, child.end, rest};
    }
    QStringList lines = form.split(QLatin1Char('\n'));
    // A start tag may carry more than we know of.
    if (child.node.attributes().size() > 1)
        lines.first() = m_text.mid(child.start, child.startTagEnd - child.start);
    for (int i = 0; i < remarks.size(); ++i)
        lines.insert(1 + i, QLatin1Char('\t') + remarks.at(i));
    const QString wanted = laidOut(lines, indentation);
    return {child.start, child.end, essence(old) == essence(wanted) ? old : wanted};
}

int FontsDocument::removalStart(const Child &child, const QString &indentation) const
{
    int start = child.start - indentation.size();
    const int lineEnd = m_text.indexOf(QLatin1Char('\n'), child.end);
    const bool isAlone = start > 0 && m_text.at(start - 1) == QLatin1Char('\n') && lineEnd >= 0
                         && m_text.midRef(child.end, lineEnd - child.end).trimmed().isEmpty();
    if (!isAlone)
        return child.start;
    --start;
    return start > 0 && m_text.at(start - 1) == QLatin1Char('\r') ? start - 1 : start;
}

FontsDocument::Edit FontsDocument::insertionOf(const QStringList &forms) const
{
    const QString step = indentationStep();
    QString text;
    for (const QString &form : forms)
        text += newLine() + step + laidOut(form.split(QLatin1Char('\n')), step);
    if (m_rootClose < 0) {
        const int slash = m_rootOpenEnd - 2;
        return {slash, m_rootOpenEnd, QLatin1Char('>') + text + newLine() + QLatin1String("</fontconfig>")};
    }
    int position = m_rootClose;
    while (position > m_rootOpenEnd && m_text.at(position - 1).isSpace())
        --position;
    if (!m_text.midRef(position, m_rootClose - position).contains(QLatin1Char('\n')))
        text += newLine();
    return {position, position, text};
}

QString FontsDocument::laidOut(QStringList lines, const QString &indentation) const
{
    const QString step = indentationStep();
    for (int i = 1; i < lines.size(); ++i) {
        int level = 0;
        while (level < lines.at(i).size() && lines.at(i).at(level) == QLatin1Char('\t'))
            ++level;
        lines[i] = indentation + step.repeated(level) + lines.at(i).mid(level);
    }
    return lines.join(newLine());
}

QString FontsDocument::lineIndentation(int position) const
{
    const int lineStart = m_text.lastIndexOf(QLatin1Char('\n'), position - 1) + 1;
    const QString before = position > 0 ? m_text.mid(lineStart, position - lineStart) : QString();
    return before.trimmed().isEmpty() ? before : QString();
}

QString FontsDocument::indentationStep() const
{
    for (const Child &child : m_children) {
        const QString indentation = lineIndentation(child.start);
        if (!indentation.isEmpty())
            return indentation;
    }
    return QStringLiteral("  ");
}

QString FontsDocument::newLine() const
{
    const int end = m_text.indexOf(QLatin1Char('\n'));
    return end > 0 && m_text.at(end - 1) == QLatin1Char('\r') ? QStringLiteral("\r\n") : QStringLiteral("\n");
}

bool FontsDocument::holdsOnly(const QVector<QDomElement> &owned) const
{
    static const QRegularExpression skeleton(
        QStringLiteral("^\\s*(<\\?xml [^>]*\\?>)?\\s*(<!DOCTYPE fontconfig( SYSTEM \"[^\"]*\")?>)?\\s*"
                       "<fontconfig>\\s*</fontconfig>\\s*$|^\\s*<fontconfig/>\\s*$"));
    QString rest;
    int position = 0;
    for (const Child &child : m_children) {
        if (child.node.isNull() || !owned.contains(child.node) || child.node.attributes().size() > 1
            || !remarksIn(m_text.mid(child.start, child.end - child.start)).isEmpty())
            return false;
        rest += m_text.midRef(position, child.start - position);
        position = child.end;
    }
    return skeleton.match(rest + m_text.midRef(position)).hasMatch();
}
