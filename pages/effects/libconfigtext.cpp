#include "pages/effects/libconfigtext.h"

#include "base/atomicfile.h"

#include <QDir>
#include <QFile>

#include <cstring>

namespace {

constexpr int includeDepthLimit = 10; // libconfig's own

struct Token {
    enum Kind { End, Word, String, Sign };

    Kind kind = End;
    int begin = 0;
    int end = 0;
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

bool isSign(char c)
{
    return std::strchr("=:;,{}()[]\"", c) != nullptr;
}

/// Splits a configuration into tokens without judging it: libconfig has read the text before.
class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_text(text)
    {}

    Token next()
    {
        skipBlanksAndComments();
        Token token{Token::End, m_position, m_position};
        if (m_position >= m_text.size())
            return token;
        const char first = m_text.at(m_position++);
        if (first == '"') {
            token.kind = Token::String;
            skipString();
        } else if (isSign(first)) {
            token.kind = Token::Sign;
        } else {
            token.kind = Token::Word;
            while (m_position < m_text.size() && !isBlank(m_text.at(m_position))
                   && !isSign(m_text.at(m_position)) && !startsComment())
                ++m_position;
        }
        token.end = m_position;
        return token;
    }

    QByteArray textOf(const Token &token) const { return m_text.mid(token.begin, token.end - token.begin); }
    char signOf(const Token &token) const
    {
        return token.kind == Token::Sign ? m_text.at(token.begin) : '\0';
    }

private:
    bool startsWith(const char *start) const
    {
        return std::strncmp(m_text.constData() + m_position, start, std::strlen(start)) == 0;
    }
    bool startsComment() const { return startsWith("#") || startsWith("//") || startsWith("/*"); }

    void skipBlanksAndComments()
    {
        while (m_position < m_text.size()) {
            if (isBlank(m_text.at(m_position)))
                ++m_position;
            else if (startsWith("/*"))
                skipBehind("*/", 2);
            else if (startsComment())
                skipBehind("\n", 1);
            else
                return;
        }
    }

    void skipBehind(const char *end, int from)
    {
        const int found = m_text.indexOf(end, m_position + from);
        m_position = found < 0 ? m_text.size() : found + int(std::strlen(end));
    }

    void skipString()
    {
        while (m_position < m_text.size() && m_text.at(m_position) != '"')
            m_position += m_text.at(m_position) == '\\' ? 2 : 1;
        m_position = qMin(m_position + 1, m_text.size());
    }

    const QByteArray m_text;
    int m_position = 0;
};

struct Range {
    int begin;
    int end;
};

int nesting(char sign)
{
    if (sign == '\0')
        return 0;
    return std::strchr("{([", sign) ? 1 : std::strchr("})]", sign) ? -1 : 0;
}

/// The value that starts at \a token, up to its closing bracket; adjacent strings are one value.
Range valueRange(Scanner &scanner, Token *token)
{
    Range range{token->begin, token->end};
    const bool isString = token->kind == Token::String;
    int depth = nesting(scanner.signOf(*token));
    for (*token = scanner.next(); token->kind != Token::End; *token = scanner.next()) {
        if (depth == 0 && !(isString && token->kind == Token::String))
            break;
        depth += nesting(scanner.signOf(*token));
        range.end = token->end;
    }
    return range;
}

/// Where the value of the root's setting \a name stands.
std::optional<Range> findRootValue(const QByteArray &text, const QByteArray &name)
{
    Scanner scanner(text);
    for (Token token = scanner.next(); token.kind != Token::End;) {
        const bool isWanted = token.kind == Token::Word && scanner.textOf(token) == name;
        token = scanner.next();
        const char sign = scanner.signOf(token);
        if (sign != '=' && sign != ':')
            continue;
        token = scanner.next();
        const Range range = valueRange(scanner, &token);
        if (isWanted)
            return range;
    }
    return {};
}

/// The quoted text with its escapes resolved, as far as file names use them.
QString includedName(const QByteArray &quoted)
{
    QByteArray name;
    for (int i = 1; i < quoted.size() - 1; ++i) {
        if (quoted.at(i) == '\\')
            ++i;
        name += quoted.at(i);
    }
    return QFile::decodeName(name);
}

bool standsFirstInLine(const QByteArray &text, int position)
{
    while (position > 0 && (text.at(position - 1) == ' ' || text.at(position - 1) == '\t'))
        --position;
    return position == 0 || text.at(position - 1) == '\n';
}

std::optional<QByteArray> expand(const QByteArray &text, const QDir &directory, int sizeLimit, int depth);

std::optional<QByteArray> expandFile(const QString &path, const QDir &directory, int sizeLimit, int depth)
{
    if (depth > includeDepthLimit)
        return {};
    const FileContent file = readRegularFile(path, sizeLimit);
    if (file.state != FileState::Regular)
        return {};
    return expand(file.content, directory, sizeLimit, depth);
}

std::optional<QByteArray> expand(const QByteArray &text, const QDir &directory, int sizeLimit, int depth)
{
    QByteArray result;
    int copied = 0;
    Scanner scanner(text);
    for (Token token = scanner.next(); token.kind != Token::End;) {
        const Token word = token;
        token = scanner.next();
        if (token.kind != Token::String || scanner.textOf(word) != "@include"
            || !standsFirstInLine(text, word.begin))
            continue;
        const auto included = expandFile(directory.absoluteFilePath(includedName(scanner.textOf(token))),
                                         directory, sizeLimit - result.size(), depth + 1);
        if (!included)
            return {};
        result += text.mid(copied, word.begin - copied) + *included;
        if (!included->endsWith('\n')) // it may end in a comment
            result += '\n';
        copied = token.end;
    }
    result += text.mid(copied);
    if (result.size() > sizeLimit)
        return {};
    return result;
}

} // namespace

std::optional<QByteArray> withIncludes(const QByteArray &text, const QString &directory, int sizeLimit)
{
    return expand(text, QDir(directory), sizeLimit, 0);
}

QByteArray withRootBoolean(const QByteArray &text, const QByteArray &name, bool value)
{
    const QByteArray valueText = value ? "true" : "false";
    QByteArray result = text;
    if (const std::optional<Range> range = findRootValue(text, name))
        return result.replace(range->begin, range->end - range->begin, valueText);
    const QByteArray lineEnd = text.contains("\r\n") ? "\r\n" : "\n";
    if (!result.isEmpty() && !result.endsWith('\n'))
        result += lineEnd;
    return result + name + " = " + valueText + ';' + lineEnd;
}
