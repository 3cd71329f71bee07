#include "freedesktop/images.h"
#include "freedesktop/soundinfo.h"
#include "platform/qazfiledialog.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

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
QByteArray wav(const QByteArray &stated)
{
    return QByteArrayLiteral("RIFF\0\0\0\0WAVEodd \3\0\0\0abc\0fmt \x10\0\0\0\1\0\2\0\x40\x1f\0\0"
                             "\0\x7d\0\0\4\0\x10\0data")
           + stated + QByteArray(16000, '\0');
}

} // namespace

class TestFileDialog : public QObject
{
    Q_OBJECT
private slots:
    void previewTellsWhatIsInTheFile()
    {
        // A second and a half, of a length that the header does not know.
        QByteArray au(".snd\0\0\0\x18\xff\xff\xff\xff\0\0\0\x1b\0\0\x1f\x40\0\0\0\1", 24);
        au.append(12000, '\0');
        const std::tuple<QString, QByteArray, QString> rows[] = {
            {"a <b>.png"_s, png(), "300 × 20 pixels"_s},
            {"a.wav"_s, wav({"\x80\x3e\0\0", 4}), "WAV, 8000 Hz, 2 × 16 bit\nLength: 0.5 s"_s},
            {"more.wav"_s, wav("\xff\xff\xff\xff"), "WAV, 8000 Hz, 2 × 16 bit\nLength: 0.5 s"_s},
            {"a.au"_s, au, "AU, 8000 Hz, 1 × 8 bit\nLength: 1.5 s"_s},
            {"no length.au"_s, au.left(8), "AU, 0 Hz, 0 × 0 bit\nLength: 0.0 s"_s},
            {"cut off.wav"_s, wav({}).left(30), {}},
            {"text.png"_s, "text", {}}};
        const TemporaryHome home;
        const QString first = home.write("first.png"_s, png());
        for (const auto &[name, content, text] : rows)
            home.write(name, content);
        QazFileDialog dialog(nullptr, {}, first);
        dialog.show();
        const auto *shown = dialog.findChild<QLabel *>("previewText"_s);
        const auto *picture = dialog.findChild<QLabel *>("previewPicture"_s);
        QTRY_COMPARE(shown->text(), "first.png\n300 × 20 pixels"_s);
        QCOMPARE(picture->pixmap(Qt::ReturnByValue).size(), QSize(192, 12));
        QCOMPARE(dialog.findChild<QLineEdit *>("fileNameEdit"_s)->text(), "first.png"_s);

        auto *list = dialog.findChild<QListView *>("listView"_s);
        const QAbstractItemModel *model = list->model();
        QTRY_COMPARE(model->rowCount(list->rootIndex()), int(std::size(rows)) + 1);
        list->setCurrentIndex(model->index(0, 0, list->rootIndex()));
        QCOMPARE(shown->text(), QString()); // at rest only
        for (const auto &[name, content, text] : rows) {
            emit dialog.currentChanged(first);
            emit dialog.currentChanged(home.path(name));
            if (text.isEmpty())
                QVERIFY(!soundInfo(home.path(name)) && imageSize(home.path(name)).isEmpty());
            else
                QTRY_COMPARE(shown->text(), name + u'\n' + text);
        }
        QCOMPARE(shown->textFormat(), Qt::PlainText);
        for (const QString &odd : {home.makeFifo("fifo.wav"_s), "/dev/zero"_s, home.path()})
            QVERIFY2(!soundInfo(odd), qPrintable(odd)); // nor hangs
    }
};

QTEST_MAIN(TestFileDialog)
#include "tst_filedialog.moc"
