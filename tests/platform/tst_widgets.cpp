#include "freedesktop/soundinfo.h"
#include "platform/qazfiledialog.h"
#include "platform/slidingstackedwidget.h"
#include "tests/support/rows.h"
#include "tests/support/temporaryhome.h"

namespace {

// A chunk of an odd length, the format, and half a second of stereo.
const QByteArray wav = QByteArrayLiteral("RIFF\0\0\0\0WAVEodd \3\0\0\0abc\0fmt \x10\0\0\0\1\0\2\0\x40\x1f\0\0"
                                         "\0\x7d\0\0\4\0\x10\0data\x80\x3e\0\0")
                       + QByteArray(16000, '\0');

/// A second and a half, of a length that the header does not know.
QByteArray au(char encoding)
{
    QByteArray bytes(".snd\0\0\0\x18\xff\xff\xff\xff\0\0\0\0\0\0\x1f\x40\0\0\0\1", 24);
    bytes[15] = encoding;
    return bytes + QByteArray(12000, '\0');
}

QString read(const QString &path)
{
    const SoundInfo info = soundInfo(path).value_or(SoundInfo{"none"_s});
    return QVariant(QVariantList{info.format, info.rate, info.channels, info.bits, info.seconds})
        .toStringList()
        .join(u' ');
}

} // namespace

/// The file dialog and the stack of pages.
class TestWidgets : public QObject
{
    Q_OBJECT
private slots:
    void headersOfSoundsAreRead()
    {
        const TemporaryHome home;
        QStringList told;
        for (const QByteArray &bytes :
             {wav, wav.chopped(8000), QByteArray(wav).replace("data\x80\x3e", QByteArray("data\x40\x1f")),
              wav.left(56), wav.left(52), QByteArray(wav).replace("RIFF", "RIFX"),
              QByteArray(wav).replace("WAVE", "RMID"), au(1), au(3).left(24), au(1).left(8),
              QByteArray("text")})
            told += read(home.write("sound"_s, bytes));
        QCOMPARE(told.join(u'|'), "WAV 8000 2 16 0.5|WAV 8000 2 16 0.25|WAV 8000 2 16 0.25|WAV 8000 2 16 "
                                  "0|none 0 0 0 0|none 0 0 0 0|none 0 0 0 0|"
                                  "AU 8000 1 8 1.5|AU 8000 1 16 0|AU 0 0 0 0|none 0 0 0 0"_s);
        QStringList bits;
        for (const char encoding : {0, 1, 2, 3, 4, 5, 6, 7, 8, 26, 27, 28})
            bits += read(home.write("sound"_s, au(encoding))).section(u' ', 3, 3);
        QCOMPARE(bits.join(u' '), "0 8 8 16 24 32 32 64 0 0 8 0"_s);

        QFile large(home.write("large"_s, au(1)));
        QVERIFY(large.resize(64 * 1024 * 1024));
        QVERIFY(soundInfo(large.fileName()));
        QVERIFY(large.resize(64 * 1024 * 1024 + 1));
        for (const QString &odd : {large.fileName(), home.makeFifo("fifo.wav"_s), "/dev/zero"_s, home.path()})
            QVERIFY2(!soundInfo(odd), qPrintable(odd)); // nor hangs
    }

    void previewTellsWhatIsInTheFile()
    {
        // A file, what is told of it, and the size of its picture.
        const QVector<QStringList> rows = rowsOf("platform/previews.json"_s);
        const TemporaryHome home;
        home.write("a.wav"_s, wav);
        home.write("text.png"_s, "text");
        for (const QStringList &row : rows) {
            QImage image(row[1].section(u' ', 0, 0).toInt(), row[1].section(u' ', 2, 2).toInt(),
                         QImage::Format_Mono);
            image.fill(1);
            image.save(home.path(row[0])); // unless it has no size
        }
        const QString first = home.path("first.png"_s);
        QVERIFY(QFile::copy(home.path("a <b>.png"_s), first));
        QazFileDialog dialog(nullptr, {}, first);
        QFileDialog plain;
        plain.setOption(QFileDialog::DontUseNativeDialog);
        const auto *shown = dialog.findChild<QLabel *>("previewText"_s);
        const auto *picture = dialog.findChild<QLabel *>("previewPicture"_s);
        QCOMPARE(dialog.width(), plain.width() + shown->parentWidget()->sizeHint().width());
        dialog.show();
        QTRY_COMPARE(shown->text(), "first.png\n300 × 20 pixels"_s);
        QCOMPARE(dialog.findChild<QLineEdit *>("fileNameEdit"_s)->text(), "first.png"_s);
        QCOMPARE(shown->textFormat(), Qt::PlainText);
        QVERIFY(shown->wordWrap() && dialog.testOption(QFileDialog::DontUseNativeDialog));
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(picture->size(), QSize(192, 160));
        QCOMPARE(picture->geometry().center().x(), shown->geometry().center().x());
        QCOMPARE(picture->alignment(), Qt::AlignCenter);
        QCOMPARE(shown->alignment(), Qt::AlignHCenter | Qt::AlignTop);
        QCOMPARE(picture->y(), shown->parentWidget()->layout()->contentsRect().top());

        auto *list = dialog.findChild<QListView *>("listView"_s);
        const QAbstractItemModel *model = list->model();
        QTRY_COMPARE(model->rowCount(list->rootIndex()), rows.size() + 1);
        list->setCurrentIndex(model->index(0, 0, list->rootIndex()));
        for (const QStringList &row : rows) {
            emit dialog.currentChanged(first);
            emit dialog.currentChanged(home.path(row[0]));
            QCOMPARE(shown->text(), QString()); // at rest only
            QVERIFY(picture->pixmap(Qt::ReturnByValue).isNull());
            if (!row[1].isEmpty())
                QTRY_COMPARE(shown->text(), row[0] + u'\n' + row[1]);
            const QSize size = picture->pixmap(Qt::ReturnByValue).size();
            QCOMPARE("%1 × %2"_s.arg(size.width()).arg(size.height()), row[2]);
        }
    }

    void theTypedFileIsTaken()
    {
        const TemporaryHome home;
        const QString quoted = "sub/a \"b\".png"_s;
        for (const QString &name : {"plain.png"_s, "sub.png"_s, "sub/plain.png"_s, quoted})
            home.write(name, "x");
        const QString throughTheDirectory = home.path(
            "../%1/sub/plain.png"_s.arg(QDir(home.path()).dirName()));
        QStringList taken;
        for (const QString &typed : {"sub.png"_s, "\"sub.png\""_s, "sub/plain.png"_s, home.path(quoted),
                                     quoted, throughTheDirectory}) {
            QazFileDialog dialog(nullptr, {}, home.path("plain.png"_s));
            dialog.show();
            QApplication::setActiveWindow(&dialog);
            auto *name = dialog.findChild<QLineEdit *>("fileNameEdit"_s);
            name->setFocus();
            name->selectAll();
            QTest::keyClicks(name, typed);
            static_cast<QDialog &>(dialog).accept();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            taken += QFileInfo(dialog.selectedFiles().join(u'|')).canonicalFilePath();
        }
        QCOMPARE(taken.join(u'|').remove(home.path()),
                 "/sub.png|/sub.png|/sub/plain.png|/sub/a \"b\".png|/sub/a \"b\".png|/sub/plain.png"_s);
    }

    void pagesSlide()
    {
        SlidingStackedWidget stack;
        for (int i = 0; i < 3; ++i)
            stack.addWidget(new QLabel(QString::number(i), &stack));
        stack.resize(320, 240);
        stack.show();
        QVERIFY(QTest::qWaitForWindowExposed(&stack));
        QSignalSpy finished(&stack, &SlidingStackedWidget::animationFinished);
        // The slides that ended since the last look, the current page, and all that are in view.
        const auto look = [&] {
            QString text = "%1 %2:"_s.arg(finished.count()).arg(stack.currentIndex());
            finished.clear();
            for (int i = 0; i < 3; ++i)
                text += stack.widget(i)->isVisible() ? QString::number(i) : QString();
            return stack.currentWidget()->geometry() == stack.contentsRect() ? text : text + " moved"_s;
        };
        // Codes of directions, and where the page comes from.
        const std::pair<int, QPoint> rows[] = {{0, {-320, 0}}, {1, {320, 0}},  {2, {0, -240}},
                                               {3, {0, 240}},  {4, {-320, 0}}, {-1, {-320, 0}}};
        for (const auto &[direction, side] : rows) {
            const QWidget *outgoing = stack.currentWidget();
            const int page = (stack.currentIndex() + 1) % 3;
            stack.slideInIdx(page, direction);
            const QWidget *incoming = stack.widget(page);
            QCOMPARE(incoming->geometry(), QRect(side, QSize(320, 240)));
            auto *slide = stack.findChildren<QVariantAnimation *>().constLast();
            QCOMPARE(slide->duration(), 300);
            slide->setCurrentTime(150);
            QCOMPARE(incoming->pos(), side / 8); // it is slowest at its end
            QCOMPARE(outgoing->pos(), incoming->pos() - side);
            QVERIFY(incoming->isVisible() && outgoing->isVisible() && finished.isEmpty());
            QVERIFY(finished.wait());
            QCOMPARE(outgoing->geometry(), stack.contentsRect());
            QCOMPARE(look(), "1 %1:%1"_s.arg(page));
        }

        for (const int index : {0, 1, 7, -1}) // of which one moves, and is ended at once
            stack.slideInIdx(index);
        QCOMPARE(look(), "4 1:1"_s);
        stack.slideInIdx(2);
        stack.slideInIdx(0);
        QCOMPARE(look(), "1 2:02"_s);
        stack.resize(500, 400);
        QCOMPARE(look(), "1 0:0"_s);
        stack.hide();
        stack.slideInIdx(1);
        stack.show();
        QCOMPARE(look(), "1 1:1"_s);
    }
};

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
