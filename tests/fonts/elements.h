#pragma once

#include "tests/support/testing.h"

const QString place = ".config/fontconfig/fonts.conf"_s;

/// A fontconfig file as the editor lays it out: "rgba=bgr antialias=true size=3-7 <dir>/a</dir>".
inline QByteArray fontsFile(const QByteArray &children)
{
    QByteArray text = "<?xml version=\"1.0\"?>\n<fontconfig>\n";
    for (const QByteArray &child : children.split(' ')) {
        const int sign = child.indexOf('=');
        QByteArray name = child.left(sign), value = child.mid(sign + 1), tests;
        if (sign < 0) {
            text += child.isEmpty() ? "" : "  " + child + '\n';
            continue;
        }
        if (const QByteArrayList bounds = value.split('-'); bounds.size() == 2) {
            const QByteArray test = "    <test qual=\"any\" name=\"" + name + "\" compare=\"";
            const QByteArray end = "</double>\n    </test>\n";
            tests = test + "more_eq\">\n      <double>" + bounds[0] + end + test
                    + "less_eq\">\n      <double>" + bounds[1] + end;
            name = "antialias";
            value = "false";
        }
        const QByteArray tag = value.toLower() == "true" || value.toLower() == "false" ? "bool>" : "const>";
        text += "  <match target=\"font\">\n" + tests + "    <edit mode=\"assign\" name=\"" + name
                + "\">\n      <" + tag + value + "</" + tag + "\n    </edit>\n  </match>\n";
    }
    return text + "</fontconfig>\n";
}
