#include "bench/fontfaces.h"

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QtEndian>

namespace {

using Tables = QMap<QByteArray, QByteArray>; // by tag

template<typename Number>
void append(QByteArray *bytes, Number value)
{
    const Number bigEndian = qToBigEndian(value);
    bytes->append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

template<typename Number>
Number numberAt(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<Number>(bytes.constData() + offset);
}

Tables readTables(const QByteArray &font)
{
    Tables tables;
    const int count = numberAt<quint16>(font, 4);
    for (int i = 0; i < count; ++i) {
        const int entry = 12 + 16 * i;
        tables.insert(font.mid(entry, 4), font.mid(int(numberAt<quint32>(font, entry + 8)),
                                                   int(numberAt<quint32>(font, entry + 12))));
    }
    return tables;
}

QByteArray fontFile(const Tables &tables)
{
    QByteArray directory;
    append<quint32>(&directory, 0x00010000);
    append<quint16>(&directory, quint16(tables.size()));
    directory.append(6, '\0'); // hints for a binary search, which nobody needs
    QByteArray content;
    const int begin = directory.size() + 16 * tables.size();
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        directory += table.key();
        append<quint32>(&directory, 0); // checksum
        append<quint32>(&directory, quint32(begin + content.size()));
        append<quint32>(&directory, quint32(table.value().size()));
        content += table.value();
        content.append((4 - content.size() % 4) % 4, '\0');
    }
    return directory + content;
}

/// A table of names in English for Windows: family, style, full and PostScript name.
QByteArray nameTable(const QString &family)
{
    const QPair<quint16, QString> names[] = {{1, family},
                                             {2, QStringLiteral("Regular")},
                                             {4, family},
                                             {6, QString(family).remove(QLatin1Char(' '))}};
    QByteArray records;
    QByteArray texts;
    for (const auto &[id, text] : names) {
        for (const quint16 field :
             {quint16(3), quint16(1), quint16(0x409), id, quint16(2 * text.size()), quint16(texts.size())})
            append(&records, field);
        for (const QChar character : text)
            append<quint16>(&texts, character.unicode());
    }
    QByteArray table;
    for (const int field : {0, int(std::size(names)), 6 + records.size()})
        append(&table, quint16(field));
    return table + records + texts;
}

} // namespace

bool writeFontFaces(const QString &source, const QString &directory, int count)
{
    QFile original(source);
    if (!original.open(QIODevice::ReadOnly))
        return false;
    const Tables all = readTables(original.readAll());
    Tables tables;
    for (const char *tag : {"OS/2", "cmap", "head", "hhea", "hmtx", "maxp", "post"})
        tables.insert(tag, all.value(tag));
    tables.insert("glyf", QByteArray(4, '\0'));
    tables.insert("loca", QByteArray(all.value("loca").size(), '\0'));
    for (int i = 0; i < count; ++i) {
        tables.insert("name", nameTable(QStringLiteral("Bench Family %1").arg(i)));
        QFile face(QStringLiteral("%1/face%2.ttf").arg(directory, QString::number(i)));
        const QByteArray content = fontFile(tables);
        if (!face.open(QIODevice::WriteOnly) || face.write(content) != content.size())
            return false;
    }
    return true;
}
