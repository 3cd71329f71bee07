#include "base/escapes.h"

#include <string_view>

namespace {

// A backslash and the sign stand for the character.
constexpr std::string_view signs("\\nrts");
constexpr std::string_view characters("\\\n\r\t ");

} // namespace

QByteArray escaped(const QByteArray &text)
{
    QByteArray result;
    result.reserve(text.size() + 2);
    for (const char c : text) {
        const std::size_t place = characters.find(c);
        if (place == characters.npos || c == ' ')
            result += c;
        else
            (result += '\\') += signs[place];
    }
    return result;
}

QByteArray unescaped(const QByteArray &text)
{
    QByteArray result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && i + 1 < text.size();
        const std::size_t place = isEscape ? signs.find(text[i + 1]) : signs.npos;
        result += place == signs.npos ? text[i] : characters[place];
        i += place == signs.npos ? 0 : 1;
    }
    return result;
}
