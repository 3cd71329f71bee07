#pragma once

#include <QByteArray>

#include <cstdlib>

/// One input; split at the first byte 1, a file's content and what is done to it.
struct FuzzInput {
    explicit FuzzInput(const QByteArray &whole)
        : bytes(whole)
        , content(whole.left(whole.indexOf('\1')))
        , argument(whole.mid(content.size() + 1))
    {}

    const QByteArray bytes, content, argument;
};

/// What every fuzz target is: ends the process when something about \a input is wrong.
void check(const FuzzInput &input);

/// Ends the process when a property of the code under test doesn't hold.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}
