#pragma once

#include "fonts/fontsdocument.h"
#include "fonts/fontsitem.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <QtTest>

#include <memory>

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

/// What \a content holds besides the elements of our settings, piece by piece; whitespace counts where it is inside
/// an element. The parser is not the one that the program changes files with.
inline QStringList foreignPieces(const QByteArray &content)
{
    QStringList pieces;
    QString piece; // a child of the root, or one token outside of them
    QStringList comments;
    const QRegularExpression comment(QStringLiteral("<!--.*?-->"),
                                     QRegularExpression::DotMatchesEverythingOption);
    std::unique_ptr<QXmlStreamWriter> writer;
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd();) {
        reader.readNext();
        depth += reader.isStartElement();
        if (depth < 2 || (depth == 2 && reader.isStartElement())) {
            piece.clear();
            comments.clear();
            writer = std::make_unique<QXmlStreamWriter>(&piece);
        }
        if (!reader.isStartDocument() && !reader.isDTD())
            writer->writeCurrentToken(reader);
        if (reader.isComment())
            comments += QStringLiteral("<!--%1-->").arg(reader.text()).simplified();
        depth -= reader.isEndElement();
        if (depth > 1 || reader.isWhitespace())
            continue;
        FontsXml xml;
        QString error;
        const bool isElement = readFontsXml("<fontconfig>" + QString(piece).remove(comment).toUtf8()
                                                + "</fontconfig>",
                                            &xml, &error)
                               && xml.children.size() == 1 && xml.children.first().item;
        if (isElement && xml.children.first().item->kind != FontsItem::Kind::Directory)
            pieces += comments;
        else
            pieces += reader.isEndElement() ? piece : piece.simplified();
    }
    if (reader.hasError())
        pieces += reader.errorString();
    return pieces;
}
