#pragma once

#include "fonts/fontsdocument.h"
#include "fonts/fontsitem.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>
#include <QtTest>

/// Real-looking fontconfig files, by name.
inline QMap<QString, QByteArray> corpus()
{
    QMap<QString, QByteArray> files;
    const QDir directory(QStringLiteral(QAZ_SOURCE_DIR "/tests/fonts/corpus"));
    for (const QFileInfo &info : directory.entryInfoList({QStringLiteral("*.conf")})) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("Can't read %s", qPrintable(info.filePath()));
        files.insert(info.completeBaseName(), file.readAll());
    }
    return files;
}

/// A row for each file of the corpus, with its content.
inline void addCorpusRows()
{
    QTest::addColumn<QByteArray>("content");
    const QMap<QString, QByteArray> files = corpus();
    QVERIFY(files.size() >= 12);
    for (auto file = files.begin(); file != files.end(); ++file)
        QTest::newRow(qPrintable(file.key())) << file.value();
}

/// All that stands in \a content outside the elements of our settings, a token a line; whitespace counts where
/// it is inside an element. The parser is not the one that the program changes files with.
inline QStringList foreignTokens(const QByteArray &content)
{
    QStringList tokens;
    QStringList element; // the child of the root that is being read
    QDomDocument document;
    QDomNode node = document;
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd();) {
        QString token = reader.readNext() == QXmlStreamReader::DTD ? QString() : reader.text().toString();
        if (reader.isStartElement()) {
            if (++depth == 2)
                document = QDomDocument();
            QDomElement next = document.createElement(reader.name().toString());
            token = reader.name().toString();
            for (const QXmlStreamAttribute &attribute : reader.attributes()) {
                token += QStringLiteral(" %1='%2'").arg(attribute.qualifiedName(), attribute.value());
                next.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
            }
            if (depth > 1)
                node = depth == 2 ? document.appendChild(next) : node.appendChild(next);
        } else if (reader.isEndElement()) {
            node = node.parentNode();
            --depth;
        } else if (reader.isCharacters() && depth > 1 && !reader.isWhitespace()) {
            node.appendChild(document.createTextNode(token));
        } else if (depth < 2) {
            token = token.simplified();
            if (reader.isStartDocument() || reader.isDTD() || token.isEmpty())
                continue;
        }
        element.append(reader.tokenString() + QLatin1Char(' ') + token);
        if (depth > 1)
            continue;
        const auto item = readFontsItem(document.documentElement(), QStringLiteral("/home/me"));
        if (!reader.isEndElement() || depth != 1 || !item || item->kind == FontsItem::Kind::Directory) {
            tokens += element;
        } else {
            for (const QString &comment : element.filter(QStringLiteral("Comment")))
                tokens += comment.simplified();
        }
        element.clear();
    }
    if (reader.hasError())
        tokens.append(reader.errorString());
    return tokens;
}
