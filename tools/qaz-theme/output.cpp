#include "tools/qaz-theme/output.h"

#include "base/diagnostics.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace {

/// Any JSON value as text; arrays alone can be documents.
QByteArray raw(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QString onOneLine(const QString &text)
{
    QString line;
    for (const QChar character : text) {
        if (character == QLatin1Char('\n'))
            line += QLatin1String("\\n");
        else if (character.category() == QChar::Other_Control)
            line += QLatin1String("\\x") + QLatin1String(QByteArray(1, character.toLatin1()).toHex());
        else
            line += character;
    }
    return line;
}

} // namespace

void JsonObject::add(const QString &name, const QJsonValue &value)
{
    m_members.append(raw(name) + ": " + raw(value));
}

void JsonObject::add(const QString &name, const JsonObject &object)
{
    m_members.append(raw(name) + ": " + object.text());
}

void JsonObject::add(const QString &name, const QVector<JsonObject> &objects)
{
    QByteArrayList texts;
    for (const JsonObject &object : objects)
        texts.append(object.text());
    m_members.append(raw(name) + ": [" + texts.join(", ") + ']');
}

QByteArray JsonObject::text() const
{
    return '{' + m_members.join(", ") + '}';
}

QByteArray JsonObject::lines() const
{
    return m_members.isEmpty() ? "{}" : "{\n  " + m_members.join(",\n  ") + "\n}";
}

void printLine(const QString &text)
{
    std::puts(onOneLine(text).toLocal8Bit().constData());
}

Status print(bool json, const JsonObject &object, const QStringList &lines)
{
    if (json)
        std::puts(object.lines().constData());
    else
        std::for_each(lines.begin(), lines.end(), printLine);
    return Success;
}

void complain(const QString &text)
{
    printDiagnosticAs("qaz-theme", onOneLine(text));
}
