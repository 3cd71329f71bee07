#include "pages/wallpaper/wallpaperpage.h"
#include "resources/registerresources.h"
#include "tests/support/pageoverfile.h"

namespace {

const QString desktopFile = "Desktops/Desktop1/.directory"_s;
const QString ownPictures = ".local/share/wallpapers/1280x1024/"_s; // those made for this screen
const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 10'><path fill='#f00' d='M0 "
                       "0h5v10h-5z'/></svg>";

struct Page : PageOverFile<WallpaperPage> {
    Page() { home.write(desktopFile, "[Desktop Entry]\nX-QAZ-WallPaper="); }
    explicit Page(const QByteArray &theme)
        : Page()
    {
        load(theme);
    }
    /// What comes of a step; of "preview" the colour at its corner and its size.
    QString outcome(const QString &step, const QString &view)
    {
        if (step == "clear"_s)
            page.clearWallpaper();
        else if (step != "preview"_s)
            return PageOverFile::outcome(step, view);
        const QPixmap preview = label->pixmap(Qt::ReturnByValue);
        return "%1 %2x%3"_s.arg(shownColor()).arg(preview.width()).arg(preview.height());
    }
    QString shownColor() const { return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(0, 0).name(); }
    /// Presses "File...", chooses \a path, and gives the answers.
    void choose(const QString &path, const QList<QMessageBox::StandardButton> &answers = {})
    {
        driver.then([path](QDialog *dialog) {
            dialog->findChild<QLineEdit *>("fileNameEdit"_s)->setText(path);
            dialog->accept();
        });
        for (const QMessageBox::StandardButton answer : answers) {
            driver.then([answer](QDialog *dialog) {
                auto *box = qobject_cast<QMessageBox *>(dialog);
                QCOMPARE(box->textFormat(), Qt::PlainText); // names may look like markup
                box->button(answer)->click();
            });
        }
        fileButton->click();
    }

    const ScopedEnvironment data{"QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s))};
    QLineEdit *lineEdit = find<QLineEdit>("wallpaperLineEdit");
    QComboBox *position = find<QComboBox>("wallpaperPositionCombo");
    QPushButton *fileButton = find<QPushButton>("wallpaperSelectionBtn");
    QLabel *label = find<QLabel>("wallpaperPixmapLabel");
};

/// An image file of one colour and one pixel.
QByteArray picture(const char *color)
{
    return QByteArray("/* XPM */\nstatic char *x[] = {\"1 1 1 1\", \"a c ") + color + "\", \"a\"};\n";
}

} // namespace

class TestWallpaperPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { registerResources(); }

    void valuesAreShownEditedAndSaved()
    {
        playOnPages<Page>("pages/wallpaper/steps.json"_s,
                          "wallpaperLineEdit wallpaperPositionCombo SlideShowSpinBox "
                          "wallpaperForCurrDesktopCheckBox"_s);
    }

    void textsDrawTheirPreview()
    {
        Page page("WallPaper=#102030\n");
        const QString red = page.home.write("red image.xpm"_s, picture("red"));
        page.home.write(".local/share/wallpapers/my paper.xpm"_s, picture("#00ff00"));
        page.lineEdit->setText(red);
        QCompleter *completer = page.lineEdit->completer();
        completer->setCompletionPrefix(red.chopped(5));
        QCOMPARE(completer->currentCompletion(), red);
        QTest::keyClick(page.position, Qt::Key_Up);
        page.home.write("#abcdef"_s, picture("red"));
        QDir::setCurrent(page.home.path());
        const QStringList texts{red, "my paper"_s, "no paper"_s, "#zz"_s, "#abcdef"_s, {}};
        QStringList shown;
        for (const QString &text : texts) {
            page.lineEdit->setText(text);
            shown += page.shownColor() + page.lineEdit->text().left(4);
        }
        QCOMPARE(shown.join(u' '),
                 "#ff0000%1 #00ff00my p #102030no p #102030#102 #abcdef#abc #abcdef"_s.arg(red.left(4)));
        QCOMPARE(
            QDir(page.home.path(".cache/qaz/wallpapers"_s)).entryList(QDir::Files).join(u'|'),
            "Stretch_#102030_red image.xpm.png|Tile_#102030_my paper.png|Tile_#102030_red image.xpm.png"_s);
        QCOMPARE(page.save(), "WallPaper #abcdef|WallPaperPos Tile"_s);
        page.lineEdit->setText("file:///a%20b.png\nfile:///c"_s); // typed, or pasted with the mouse
        QCOMPARE(page.lineEdit->text(), "/a b.png"_s);
    }

    void chosenFileIsTaken()
    {
        Page page("WallPaper=/x\n");
        page.home.write(ownPictures + "any"_s, {});
        const QString path = page.home.write("a/blank \"q\" $(x) %1.xpm"_s, picture("red"));
        QVERIFY(page.home.makeDirectory("Pictures"_s) && page.home.makeDirectory("data/wallpapers"_s));
        QStringList seen;
        const auto look = [&](QDialog *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            seen << files->directory().path() << QUrl::toStringList(files->sidebarUrls()).join(u' ')
                 << files->nameFilters();
            files->reject();
        };
        page.driver.then(look);
        QContextMenuEvent rightClick(QContextMenuEvent::Mouse, {1, 1});
        QCoreApplication::sendEvent(page.label, &rightClick); // starts at the best place
        page.choose(path);
        QCOMPARE(page.lineEdit->text() + page.shownColor(), path + "#ff0000"_s);
        page.driver.then(look);
        page.fileButton->click();
        QCOMPARE(page.lineEdit->text(), path);
        const QString places = "file: file://HOME file://HOME/Pictures file://HOME/.local/share/wallpapers "
                               "file://HOME/data/wallpapers file:///usr/share/wallpapers"_s;
        const QString filter = "Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG "
                               "*.SVGZ)"_s;
        QCOMPARE(seen.replaceInStrings(page.home.path(), "HOME"_s),
                 QStringList({"HOME/.local/share/wallpapers/1280x1024"_s, places, filter, "HOME/a"_s, places,
                              filter}));
        QVERIFY(page.driver.isDone());
        QCOMPARE(page.driver.seen().constFirst(), "Select wallpaper image file|QazFileDialog"_s);
    }

    void svgIsConverted()
    {
        Page page("WallPaper=/x\n");
        const QString name = "a/-picture <b>.tar.svg"_s, source = page.home.write(name, svg);
        const QString relative = ownPictures + "-picture <b>.png"_s, target = page.home.path(relative);
        page.choose(source, {QMessageBox::No});
        QVERIFY(!page.home.exists(".local/share/wallpapers"_s));
        page.home.write(relative, "older");
        page.choose(source, {QMessageBox::Yes, QMessageBox::No});
        QCOMPARE(page.home.read(relative), QByteArray("older"));
        QCOMPARE(page.changed.count(), 0);
        const QString convert = "File conversion|Selected file '-picture <b>.tar' is in svg format\n"
                                "Would you like to convert it to png now?"_s;
        const QString rewrite = "File exists|File '%1' already exists\nWould you like to rewrite it now?"_s;
        QCOMPARE(page.driver.seen().mid(3), QStringList({convert, rewrite.arg(target)}));
        QVERIFY(QFile::remove(target));
        page.choose(source, {QMessageBox::Yes});
        QCOMPARE(page.lineEdit->text(), target);
        const QImage converted(target);
        QVERIFY(converted.size() == QSize(1280, 1024) && converted.pixelColor(1000, 0) == Qt::white);
        QStringList colors{page.shownColor()};
        for (const QByteArray &content :
             {QByteArray(svg).replace("#f00", "#00f"), QByteArray("no drawing")}) {
            page.home.write(name, content);
            page.choose(source, {QMessageBox::Yes, QMessageBox::Yes});
            colors += page.shownColor();
        }
        QCOMPARE(colors.join(u' '), "#ff0000 #0000ff #ffffff"_s);
        QCOMPARE(page.home.backups().size(), 2);
        QVERIFY(page.driver.isDone());
    }

    void droppedAndPastedDataIsTaken()
    {
        Page page("");
        page.home.write("a b.XPM"_s, {});
        // Type, data, and the text that is taken.
        for (QStringList row : rowsOf("pages/wallpaper/drops.json"_s)) {
            const QString taken = row[3].startsWith(u'/') ? page.home.path() + row[3] : row[3];
            auto *mime = new QMimeData;
            mime->setData(row[1], row[2].replace("HOME"_s, "file://"_s + page.home.path()).toLatin1());
            QGuiApplication::clipboard()->setMimeData(mime);
            QWidget *const targets[] = {&page.page, page.lineEdit, page.find<QWidget>("qt_spinbox_lineedit")};
            for (QWidget *target : targets) {
                page.lineEdit->setText("/x"_s);
                const auto actions = Qt::CopyAction | Qt::MoveAction;
                QDragEnterEvent enter({1, 1}, actions, mime, Qt::LeftButton, Qt::ShiftModifier);
                QDropEvent drop({1, 1}, actions, mime, Qt::LeftButton, Qt::ShiftModifier);
                for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop}) {
                    QCoreApplication::sendEvent(target, event);
                    QCOMPARE(event->isAccepted(), !taken.isEmpty());
                    QVERIFY(taken.isEmpty() || event->dropAction() == Qt::CopyAction);
                }
                QTRY_COMPARE(page.lineEdit->text(), taken.isEmpty() ? "/x"_s : taken);
            }
            if (taken.isEmpty())
                continue; // pasted, it is the line edit's own business
            page.lineEdit->clear();
            QTest::keyClicks(page.lineEdit, "/x"_s); // other keys paste nothing
            QCOMPARE(page.lineEdit->text(), "/x"_s);
            QTest::keyClick(page.lineEdit, Qt::Key_V, Qt::ControlModifier);
            QTRY_COMPARE(page.lineEdit->text(), taken);
        }
    }
};

QTEST_MAIN(TestWallpaperPage)
#include "tst_wallpaperpage.moc"
