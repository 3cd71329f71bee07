#include "freedesktop/images.h"
#include "freedesktop/soundinfo.h"
#include "platform/qazfiledialog.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QtEndian>
#include <QtTest>

#include <sys/stat.h>

namespace {

template<typename T>
QByteArray bytes(T number)
{
    return QByteArray(reinterpret_cast<const char *>(&number), sizeof number);
}

QByteArray png()
{
    QImage image(300, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return content;
}

/// Half a second of stereo, with a chunk of an odd length before the format; \a stated is the length in the header.
QByteArray wav(quint32 stated)
{
    const QByteArray format = bytes<quint16>(1) + bytes<quint16>(2) + bytes<quint32>(8000)
                              + bytes<quint32>(32000) + bytes<quint16>(4) + bytes<quint16>(16);
    return "RIFF" + bytes<quint32>(0) + "WAVEodd " + bytes<quint32>(3) + "abc" + '\0' + "fmt "
           + bytes<quint32>(16) + format + "data" + bytes(stated) + QByteArray(16000, '\0');
}

QByteArray au()
{
    QByteArray content = ".snd";
    for (const quint32 field : {24U, 0xFFFFFFFFU, 27U, 8000U, 1U})
        content += bytes(qToBigEndian(field));
    return content + QByteArray(12000, '\0');
}

} // namespace

class TestFileDialog : public QObject
{
    Q_OBJECT
private slots:
    void previewTellsWhatIsInTheFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("text");
        QTest::newRow("a <b>.png") << png() << "300 × 20 pixels";
        QTest::newRow("a.wav") << wav(16000) << "WAV, 8000 Hz, 2 × 16 bit\nLength: 0.5 s";
        QTest::newRow("states more.wav") << wav(0xFFFFFFFF) << "WAV, 8000 Hz, 2 × 16 bit\nLength: 0.5 s";
        QTest::newRow("a.au") << au() << "AU, 8000 Hz, 1 × 8 bit\nLength: 1.5 s";
        QTest::newRow("no length.au") << au().left(8) << "AU, 0 Hz, 0 × 0 bit\nLength: 0.0 s";
        QTest::newRow("cut off.wav") << wav(1).left(30) << "";
        QTest::newRow("text.png") << QByteArray("text") << "";
    }
    void previewTellsWhatIsInTheFile()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, text);
        const TemporaryHome home;
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        const QString first = home.write("first.png"_s, png());
        home.write(name, content);
        QazFileDialog dialog(nullptr, {}, first);
        dialog.show();
        const auto *shown = dialog.findChild<QLabel *>("previewText"_s);
        const auto *picture = dialog.findChild<QLabel *>("previewPicture"_s);
        QTRY_COMPARE(shown->text(), "first.png\n300 × 20 pixels"_s);
        QCOMPARE(picture->pixmap(Qt::ReturnByValue).size(), QSize(192, 12));
        QCOMPARE(dialog.findChild<QLineEdit *>("fileNameEdit"_s)->text(), "first.png"_s);

        auto *list = dialog.findChild<QListView *>("listView"_s);
        QModelIndex row;
        QTRY_VERIFY((row = list->model()
                               ->match(list->model()->index(0, 0, list->rootIndex()), Qt::DisplayRole, name,
                                       1, Qt::MatchExactly)
                               .value(0))
                        .isValid());
        list->selectionModel()->setCurrentIndex(row, QItemSelectionModel::SelectCurrent);
        QCOMPARE(shown->text(), QString()); // at rest only
        emit dialog.currentChanged(first);
        emit dialog.currentChanged(home.path(name));
        if (text.isEmpty())
            QVERIFY(!soundInfo(home.path(name)) && imageSize(home.path(name)).isEmpty());
        else
            QTRY_COMPARE(shown->text(), name + u'\n' + text);
        QCOMPARE(shown->textFormat(), Qt::PlainText);
    }

    void oddFilesDontHang()
    {
        const TemporaryHome home;
        QCOMPARE(::mkfifo(QFile::encodeName(home.path("fifo.wav"_s)).constData(), 0600), 0);
        for (const QString &odd : {home.path("fifo.wav"_s), "/dev/zero"_s, home.path()})
            QVERIFY2(!soundInfo(odd) && imageSize(odd).isEmpty(), qPrintable(odd));
    }
};

QTEST_MAIN(TestFileDialog)
#include "tst_filedialog.moc"
