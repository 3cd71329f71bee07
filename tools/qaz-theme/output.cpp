#include "tools/qaz-theme/output.h"

#include "base/diagnostics.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace {

/// Any JSON value as text; arrays alone can be documents.
QByteArray raw(const QJsonArray &values)
{
    return QJsonDocument(values).toJson(QJsonDocument::Compact);
}

QByteArray rawValue(const QJsonValue &value)
{
    const QByteArray array = raw({value});
    return array.mid(1, array.size() - 2);
}

QString onOneLine(const QString &text)
{
    QString line;
    for (const QChar character : text) {
        if (character == QLatin1Char('\n'))
            line += QLatin1String("\\n");
        else if (character.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line;
}

void write(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
}

} // namespace

void JsonObject::addRaw(const QString &name, const QByteArray &value)
{
    m_members.append(rawValue(name) + ": " + value);
}

void JsonObject::add(const QString &name, const QString &text)
{
    addRaw(name, rawValue(text));
}

void JsonObject::add(const QString &name, int number)
{
    addRaw(name, rawValue(number));
}

void JsonObject::add(const QString &name, bool truth)
{
    addRaw(name, rawValue(truth));
}

void JsonObject::add(const QString &name, const QStringList &texts)
{
    addRaw(name, raw(QJsonArray::fromStringList(texts)));
}

void JsonObject::add(const QString &name, const JsonObject &object)
{
    addRaw(name, object.text());
}

void JsonObject::add(const QString &name, const QVector<JsonObject> &objects)
{
    QList<QByteArray> texts;
    for (const JsonObject &object : objects)
        texts.append(object.text());
    addRaw(name, '[' + texts.join(", ") + ']');
}

QByteArray JsonObject::text() const
{
    return '{' + m_members.join(", ") + '}';
}

QByteArray JsonObject::lines() const
{
    return m_members.isEmpty() ? QByteArray("{}\n") : "{\n  " + m_members.join(",\n  ") + "\n}\n";
}

void printLine(const QString &text)
{
    write(onOneLine(text).toLocal8Bit() + '\n');
}

void print(const JsonObject &object)
{
    write(object.lines());
}

void complain(const QString &text)
{
    printDiagnosticAs("qaz-theme", onOneLine(text));
}

void printChanges(const ThemeChanges &changes, bool json)
{
    JsonObject object;
    for (const ThemeChange &change : changes) {
        JsonObject member;
        member.add(QStringLiteral("value"), change.after);
        member.add(QStringLiteral("before"), change.before);
        object.add(change.key, member);
        if (!json)
            printLine(QStringLiteral("%1: %2 -> %3").arg(change.key, change.before, change.after));
    }
    if (json)
        print(object);
}
