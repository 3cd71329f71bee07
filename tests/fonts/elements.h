#pragma once

#include "tests/support/testing.h"

const QString place = ".config/fontconfig/fonts.conf"_s;

/// A fontconfig file with \a children, which the two functions below lay out as the editor does.
inline QByteArray fontsFile(const QByteArray &children)
{
    return "<?xml version=\"1.0\"?>\n<fontconfig>\n" + children + "</fontconfig>\n";
}

inline QByteArray element(const char *name, const char *tag, const char *value)
{
    return QByteArray("  <match target=\"font\">\n    <edit mode=\"assign\" name=\"") + name + "\">\n      <"
           + tag + '>' + value + "</" + tag + ">\n    </edit>\n  </match>\n";
}

inline QByteArray range(const char *name, const char *from, const char *to)
{
    const QByteArray test = QByteArray("    <test qual=\"any\" name=\"") + name + "\" compare=\"";
    return "  <match target=\"font\">\n" + test + "more_eq\">\n      <double>" + from
           + "</double>\n    </test>\n" + test + "less_eq\">\n      <double>" + to
           + "</double>\n    </test>\n    <edit mode=\"assign\" name=\"antialias\">\n"
             "      <bool>false</bool>\n    </edit>\n  </match>\n";
}
