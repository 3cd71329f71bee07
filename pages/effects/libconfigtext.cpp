#include "pages/effects/libconfigtext.h"

#include "base/atomicfile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QVector>

namespace {

constexpr int includeDepthLimit = 10; // libconfig's own

// Patterns for bytes that are read as Latin-1: so a position in the text is one in the bytes.
const QLatin1String comment(R"x(#[^\n]*+|//[^\n]*+|/\*(?s:.*?)(?:\*/|\z))x");
const QLatin1String string(R"x("(?:[^"\\]++|\\(?s:.))*+(?:"|\z))x");
const QLatin1String signOrWord(R"x([=:;,{}()\[\]]|(?:(?!#|//|/\*)[^\s=:;,{}()\[\]"])++)x");
const QLatin1String includeLine(R"x((?m:^)[ \t]*+\K@include[ \t]+"((?:[^"\\\n]|\\.)*+)")x");

struct Token {
    QString text; ///< of a value in brackets only the first one
    int begin;
    int end;

    bool isString() const { return text.startsWith(QLatin1Char('"')); }
};

/// The names, signs and values at the root of a text that libconfig has read before. A value in brackets is one token, and
/// so are adjacent strings.
QVector<Token> rootTokens(const QByteArray &text)
{
    static const QRegularExpression pattern(QStringLiteral("%1|(%2|%3)").arg(comment, string, signOrWord));
    QVector<Token> tokens;
    int depth = 0;
    for (auto matches = pattern.globalMatch(QString::fromLatin1(text)); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const Token token{match.captured(1), match.capturedStart(1), match.capturedEnd(1)};
        if (token.text.isEmpty())
            continue; // a comment
        if (depth > 0 || (token.isString() && !tokens.isEmpty() && tokens.last().isString()))
            tokens.last().end = token.end;
        else
            tokens.append(token);
        if (QLatin1String("{([").contains(token.text))
            ++depth;
        else if (QLatin1String("})]").contains(token.text))
            --depth;
    }
    return tokens;
}

/// Puts a configuration and its included files together.
class Includes
{
public:
    Includes(const QString &directory, int sizeLimit)
        : m_directory(directory)
        , m_bytesLeft(sizeLimit)
    {}

    std::optional<QByteArray> expand(const QByteArray &text, int depthLeft)
    {
        // Comments and strings may hold such a line, too.
        static const QRegularExpression pattern(QStringLiteral("%1|%2|%3").arg(comment, string, includeLine));
        QByteArray result;
        int copied = 0;
        for (auto matches = pattern.globalMatch(QString::fromLatin1(text)); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            if (match.lastCapturedIndex() == 0)
                continue;
            const std::optional<QByteArray> included = read(match.captured(1), depthLeft);
            if (!included)
                return {};
            result += text.mid(copied, match.capturedStart() - copied) + *included;
            if (!included->endsWith('\n')) // it may end in a comment
                result += '\n';
            copied = match.capturedEnd();
        }
        return result + text.mid(copied);
    }

private:
    std::optional<QByteArray> read(QString quoted, int depthLeft)
    {
        static const QRegularExpression escape(QStringLiteral(R"(\\(.))"));
        const QString name = QFile::decodeName(quoted.replace(escape, QStringLiteral("\\1")).toLatin1());
        const FileContent file = readRegularFile(m_directory.absoluteFilePath(name), m_bytesLeft);
        if (file.state != FileState::Regular || depthLeft == 0)
            return {};
        m_bytesLeft -= file.content.size();
        return expand(file.content, depthLeft - 1);
    }

    const QDir m_directory;
    int m_bytesLeft;
};

} // namespace

std::optional<QByteArray> withIncludes(const QByteArray &text, const QString &directory, int sizeLimit)
{
    return Includes(directory, sizeLimit).expand(text, includeDepthLimit);
}

QByteArray withRootBoolean(const QByteArray &text, const QByteArray &name, bool value)
{
    const QByteArray valueText = value ? "true" : "false";
    QString setting;
    QString sign;
    for (const Token &token : rootTokens(text)) {
        if (setting == QLatin1String(name) && (sign == QLatin1Char('=') || sign == QLatin1Char(':')))
            return text.left(token.begin) + valueText + text.mid(token.end);
        setting = sign;
        sign = token.text;
    }
    // In front: the text may end in an open comment.
    return name + " = " + valueText + (text.contains("\r\n") ? ";\r\n" : ";\n") + text;
}
