#include "pages/wallpaper/wallpaperpage.h"
#include "platform/qazsettings.h"
#include "resources/registerresources.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QUrl>

#include <algorithm>

namespace {

const QString themeFile = QStringLiteral("current.themerc");
const QString desktopFile = QStringLiteral("Desktops/Desktop1/.directory");
const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 10'><path fill='#f00' d='M0 "
                       "0h5v10h-5z'/></svg>";

/// The page and its widgets, loaded from the home's theme file.
struct Page {
    explicit Page(const TemporaryHome &home)
        : home(home)
    {
        QazSettings store(home.path(themeFile));
        store.sync(true);
        isLoaded = page.loadValues(&store);
    }
    void save()
    {
        QazSettings store(home.path(themeFile));
        store.sync(true);
        page.saveValues(&store);
    }
    template<typename Widget>
    Widget *child(const char *name) const
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }
    QColor shownColor() const { return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(0, 0); }
    QString text() const { return lineEdit->text(); }

    const TemporaryHome &home;
    WallpaperPage page;
    bool isLoaded = false;
    QLineEdit *lineEdit = child<QLineEdit>("wallpaperLineEdit");
    QComboBox *position = child<QComboBox>("wallpaperPositionCombo");
    QSpinBox *period = child<QSpinBox>("SlideShowSpinBox");
    QCheckBox *onlyDesktop = child<QCheckBox>("wallpaperForCurrDesktopCheckBox");
    QLabel *label = child<QLabel>("wallpaperPixmapLabel");
    QPushButton *fileButton = child<QPushButton>("wallpaperSelectionBtn");
    QPushButton *colorButton = child<QPushButton>("colorSelectionButton");
};

QString sizeName()
{
    const QSize size = QGuiApplication::primaryScreen()->size();
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString ownPictures(const TemporaryHome &home)
{
    return home.path(QStringLiteral(".local/share/wallpapers/")) + sizeName();
}

QString writeImage(const TemporaryHome &home, const QString &name, const QColor &color)
{
    QImage image(QGuiApplication::primaryScreen()->size(), QImage::Format_RGB32);
    image.fill(color);
    const QString path = home.write(name, {});
    if (!image.save(path))
        qFatal("Can't write %s", qPrintable(path));
    return path;
}

/// Types the path into the file dialog, as a user does.
std::function<void(QDialog *)> choosing(const QString &path)
{
    return [path](QDialog *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QApplication::setActiveWindow(dialog);
        name->setFocus();
        name->selectAll();
        QTest::keyClicks(name, path);
        dialog->accept();
    };
}

} // namespace

class TestWallpaperPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { registerResources(); }
    void slotsKeepTheirOrder();
    void valuesAreLoaded_data();
    void valuesAreLoaded();
    void desktopWallpaperIsLoaded();
    void repeatedLoadsConnectOnce();
    void onlyChangesAreStored();
    void desktopModeStoresForOneDesktop();
    void textsDrawTheirPreview();
    void colorsThatCantBeReadAreReplaced();
    void chosenFileIsTaken();
    void dialogStartsAtTheBestPlace();
    void svgIsConverted();
    void declinedConversionsChangeNothing();
    void chosenColorIsTaken();
};

void TestWallpaperPage::slotsKeepTheirOrder()
{
    const QMetaObject &meta = WallpaperPage::staticMetaObject;
    QByteArrayList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    QCOMPARE(
        names.join(' '),
        QByteArray("changedSignal() selectWallpaperFile() selectWallpaperColor() selectWallpaper(QString) "
                   "slotWallpaperType() slotCurrDesktop(int) clearWallpaper() loadValues(QazSettings*) "
                   "saveValues(QazSettings*)"));
}

void TestWallpaperPage::valuesAreLoaded_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("period");
    QTest::addColumn<QColor>("emptyColor"); // what an emptied line edit shows

    QTest::newRow("defaults") << QByteArray() << QStringLiteral("qaz-default") << 2 << 0 << QColor(Qt::blue);
    QTest::newRow("all set") << QByteArray("WallPaper=/no such.png\nWallPaperPos=Tile\nWallPaperPeriod=15\n"
                                           "DesktopColor=#123456\n")
                             << QStringLiteral("/no such.png") << 1 << 15 << QColor(0x12, 0x34, 0x56);
    QTest::newRow("unknown words") << QByteArray(
        "WallPaperPos=stretch\nWallPaperPeriod=often\nDesktopColor=qvlightgray\n")
                                   << QStringLiteral("qaz-default") << 0 << 0 << QColor(Qt::black);
    QTest::newRow("centre, out of range")
        << QByteArray("WallPaperPos=Center\nWallPaperPeriod=9999\nDesktopColor=qvblue\n")
        << QStringLiteral("qaz-default") << 0 << 3600 << QColor(Qt::blue);
    QTest::newRow("the preview adopts a colour")
        << QByteArray("WallPaper=#a6caf0\nDesktopColor=qvroyalblue\n") << QStringLiteral("#a6caf0") << 2 << 0
        << QColor(0xa6, 0xca, 0xf0);
}

void TestWallpaperPage::valuesAreLoaded()
{
    QFETCH(QByteArray, theme);
    const TemporaryHome home;
    home.write(themeFile, theme);
    Page page(home);
    QVERIFY(page.isLoaded && page.page.loaded);
    QTEST(page.text(), "text");
    QTEST(page.position->currentIndex(), "position");
    QTEST(page.period->value(), "period");
    QVERIFY(!page.onlyDesktop->isChecked() && page.position->isEnabled() && page.period->isEnabled());
    QCOMPARE(page.label->pixmap(Qt::ReturnByValue).size(), QSize(242, 181));
    page.page.clearWallpaper();
    QTEST(page.shownColor(), "emptyColor");
}

void TestWallpaperPage::desktopWallpaperIsLoaded()
{
    const TemporaryHome home;
    home.write(themeFile, "WallPaper=/global.png\nWallPaperPos=Tile\nWallPaperPeriod=15\n");
    home.write(desktopFile, "[Desktop Entry]\nX-QAZ-WallPaper=\"#a6caf0\"\n");
    Page page(home);
    QCOMPARE(page.text(), QStringLiteral("#a6caf0"));
    QCOMPARE(page.position->currentIndex(), 2);
    QCOMPARE(page.period->value(), 0);
    QVERIFY(page.onlyDesktop->isChecked() && !page.position->isEnabled() && !page.period->isEnabled());
    QCOMPARE(page.shownColor(), QColor(0xa6, 0xca, 0xf0));

    page.onlyDesktop->click();
    QVERIFY(page.position->isEnabled() && page.period->isEnabled());
    page.onlyDesktop->click();
    QVERIFY(!page.position->isEnabled() && !page.period->isEnabled());
}

void TestWallpaperPage::repeatedLoadsConnectOnce()
{
    const TemporaryHome home;
    Page page(home);
    QazSettings store(home.path(themeFile));
    QVERIFY(page.page.loadValues(&store));
    const QSignalSpy changed(&page.page, &WallpaperPage::changedSignal);
    page.period->setValue(5);
    QCOMPARE(changed.count(), 1);
    page.lineEdit->setText(QStringLiteral("/x"));
    QCOMPARE(changed.count(), 2);
    emit page.position->activated(1);
    QCOMPARE(changed.count(), 3);
    page.onlyDesktop->click();
    QCOMPARE(changed.count(), 4);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestWallpaperPage::onlyChangesAreStored()
{
    const TemporaryHome home;
    home.write(desktopFile, "[Desktop Entry]\nName=1\n");
    home.write(QStringLiteral("Desktops/Desktop2/.directory"), "[Desktop Entry]\nX-QAZ-WallPaper=a\n");
    Page page(home);
    WmListener listener;
    page.save();
    QCOMPARE(listener.take(), QStringList());
    QVERIFY(!home.exists(themeFile));
    QCOMPARE(home.read(QStringLiteral("Desktops/Desktop2/.directory")), QByteArray("[Desktop Entry]\n"));

    page.lineEdit->setText(QStringLiteral("/a b.png"));
    page.position->setCurrentIndex(1);
    page.period->setValue(15);
    page.save();
    QCOMPARE(listener.take(), QStringList({QStringLiteral("QAZWM_UPDATE_VAL WallPaper /a b.png"),
                                           QStringLiteral("QAZWM_UPDATE_VAL WallPaperPos Tile"),
                                           QStringLiteral("QAZWM_UPDATE_VAL WallPaperPeriod 15")}));
    QByteArrayList lines = home.read(themeFile).trimmed().split('\n');
    std::sort(lines.begin(), lines.end());
    QCOMPARE(lines.join('|'), QByteArray("WallPaper=/a b.png|WallPaperPeriod=15|WallPaperPos=Tile"));
    page.save();
    QCOMPARE(listener.take(), QStringList());
}

void TestWallpaperPage::desktopModeStoresForOneDesktop()
{
    const TemporaryHome home;
    home.write(desktopFile, "[Desktop Entry]\nName=1\n");
    const QString other = QStringLiteral("Desktops/Desktop2/.directory");
    home.write(other, "[Desktop Entry]\nX-QAZ-WallPaper=a\n");
    Page page(home);
    WmListener listener;
    page.onlyDesktop->click();
    page.lineEdit->setText(QStringLiteral("#a6caf0"));
    page.save();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("QAZWM_UPDATE_VAL WallPaperLocal \"#a6caf0\"")});
    QCOMPARE(home.read(desktopFile), QByteArray("[Desktop Entry]\nName=1\nX-QAZ-WallPaper=\"#a6caf0\"\n"));
    QCOMPARE(home.read(other), QByteArray("[Desktop Entry]\nX-QAZ-WallPaper=a\n"));
    QVERIFY(!home.exists(themeFile));
}

void TestWallpaperPage::textsDrawTheirPreview()
{
    const TemporaryHome home;
    home.write(themeFile, "WallPaper=#102030\n");
    const QString red = writeImage(home, QStringLiteral("red image.png"), Qt::red);
    writeImage(home, QStringLiteral(".local/share/wallpapers/my paper.jpg"), QColor(0, 255, 0));
    Page page(home);
    const QString written = QStringLiteral(".cache/qaz/wallpapers/");
    QVERIFY(!home.exists(written));

    page.lineEdit->setText(red);
    QCOMPARE(page.shownColor(), QColor(Qt::red));
    const QString file = home.path(written + QStringLiteral("Stretch_#102030_red image.png.png"));
    QCOMPARE(QImage(file).size(), QSize(242, 181));
    QCOMPARE(QImage(file).pixelColor(241, 180), QColor(Qt::red));

    page.position->setCurrentIndex(0);
    emit page.position->activated(0);
    QVERIFY(home.exists(written + QStringLiteral("Center_#102030_red image.png.png")));
    page.lineEdit->setText(QStringLiteral("my paper"));
    QVERIFY(page.shownColor().green() > 250 && page.shownColor().red() < 5);
    QVERIFY(home.exists(written + QStringLiteral("Center_#102030_my paper.png")));
    page.lineEdit->setText(QStringLiteral("no paper"));
    QCOMPARE(page.shownColor(), QColor(0x10, 0x20, 0x30));
    QVERIFY(!home.exists(written + QStringLiteral("Center_#102030_no paper.png")));
}

void TestWallpaperPage::colorsThatCantBeReadAreReplaced()
{
    const TemporaryHome home;
    home.write(themeFile, "DesktopColor=#102030\n");
    Page page(home);
    page.lineEdit->setText(QStringLiteral("#zz"));
    QCOMPARE(page.text(), QStringLiteral("#102030"));
    QCOMPARE(page.shownColor(), QColor(0x10, 0x20, 0x30));
    page.lineEdit->setText(QStringLiteral("#abcdef"));
    page.lineEdit->setText(QStringLiteral("#abcdeg"));
    QCOMPARE(page.text(), QStringLiteral("#abcdef"));
    page.page.clearWallpaper();
    page.save();
    QCOMPARE(home.read(themeFile), QByteArray("DesktopColor=#102030\nWallPaper=#abcdef\n"));

    home.write(themeFile, "WallPaper=#zz\nDesktopColor=nothing\n");
    const Page invalid(home);
    QCOMPARE(invalid.text(), QStringLiteral("#000000"));
    QCOMPARE(invalid.shownColor(), QColor(Qt::black));
}

void TestWallpaperPage::chosenFileIsTaken()
{
    const TemporaryHome home;
    const QString path = writeImage(home, QStringLiteral("a/blank $(x) %1.png"), Qt::red);
    const QString upperCase = home.write(QStringLiteral("a/PICTURE.SVG"), svg);
    Page page(home);
    const QSignalSpy changed(&page.page, &WallpaperPage::changedSignal);
    ModalDriver driver;
    driver.then(choosing(path));
    page.fileButton->click();
    QCOMPARE(page.text(), path);
    QCOMPARE(page.shownColor(), QColor(Qt::red));
    QCOMPARE(changed.count(), 1);

    driver.then(choosing(upperCase));
    page.fileButton->click();
    QCOMPARE(page.text(), upperCase);
    driver.thenReject();
    page.fileButton->click();
    QCOMPARE(page.text(), upperCase);
    QVERIFY(driver.isDone());
    QCOMPARE(driver.seen().constFirst(), QStringLiteral("Select wallpaper image file|QazFileDialog"));
}

void TestWallpaperPage::dialogStartsAtTheBestPlace()
{
    const TemporaryHome home;
    const QString path = writeImage(home, QStringLiteral("a/picture.png"), Qt::red);
    QVERIFY(QDir().mkpath(ownPictures(home)));
    Page page(home);
    ModalDriver driver;
    QStringList starts;
    QList<QUrl> places;
    const auto look = [&](QDialog *dialog) {
        auto *files = qobject_cast<QFileDialog *>(dialog);
        starts.append(files->directory().path());
        places = files->sidebarUrls();
        dialog->reject();
    };
    driver.then(look);
    page.fileButton->click();
    page.lineEdit->setText(path);
    driver.then(look);
    QCOMPARE(page.label->contextMenuPolicy(), Qt::CustomContextMenu);
    emit page.label->customContextMenuRequested(QPoint(1, 1));
    QCOMPARE(starts, QStringList({ownPictures(home), home.path(QStringLiteral("a"))}));
    QCOMPARE(places.last(), QUrl::fromLocalFile(QStringLiteral("/usr/share/wallpapers")));
}

void TestWallpaperPage::svgIsConverted()
{
    const TemporaryHome home;
    const QString source = home.write(QStringLiteral("a/picture.tar.svg"), svg);
    const QString target = ownPictures(home) + QStringLiteral("/picture.png");
    Page page(home);
    ModalDriver driver;
    driver.then(choosing(source));
    driver.thenAnswer(QMessageBox::Yes);
    page.fileButton->click();
    QCOMPARE(page.text(), target);
    const QImage converted(target);
    QCOMPARE(converted.size(), QGuiApplication::primaryScreen()->size());
    QCOMPARE(converted.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(converted.pixelColor(converted.width() - 1, 0), QColor(Qt::white));

    home.write(QStringLiteral("a/picture.tar.svg"), QByteArray(svg).replace("#f00", "#00f"));
    driver.then(choosing(source));
    driver.thenAnswer(QMessageBox::Yes);
    driver.thenAnswer(QMessageBox::Yes);
    page.fileButton->click();
    QCOMPARE(QImage(target).pixelColor(0, 0), QColor(Qt::blue));
    QVERIFY(driver.isDone());
    QCOMPARE(
        driver.seen().mid(3),
        QStringList({QStringLiteral("File conversion|Selected file 'picture.tar' is in svg format\n"
                                    "Would you like to convert it to png now?"),
                     QStringLiteral("File exists|File '%1' already exists\nWould you like to rewrite it now?")
                         .arg(target)}));
}

void TestWallpaperPage::declinedConversionsChangeNothing()
{
    const TemporaryHome home;
    const QString source = home.write(QStringLiteral("a/-picture <b>.svg"), svg);
    Page page(home);
    const QSignalSpy changed(&page.page, &WallpaperPage::changedSignal);
    ModalDriver driver;
    driver.then(choosing(source));
    driver.thenAnswer(QMessageBox::No);
    page.fileButton->click();
    QVERIFY(!home.exists(QStringLiteral(".local/share/wallpapers")));

    const QString existing = QStringLiteral(".local/share/wallpapers/") + sizeName()
                             + QStringLiteral("/-picture <b>.png");
    home.write(existing, "older");
    driver.then(choosing(source));
    driver.thenAnswer(QMessageBox::Yes);
    driver.thenAnswer(QMessageBox::No);
    page.fileButton->click();
    QCOMPARE(home.read(existing), QByteArray("older"));
    QCOMPARE(page.text(), QStringLiteral("qaz-default"));
    QCOMPARE(changed.count(), 0);
    QVERIFY(driver.isDone());
}

void TestWallpaperPage::chosenColorIsTaken()
{
    const TemporaryHome home;
    home.write(themeFile, "WallPaper=/x\nDesktopColor=#102030\n");
    Page page(home);
    ModalDriver driver;
    QColor initial;
    driver.then([&initial](QDialog *dialog) {
        auto *colors = qobject_cast<QColorDialog *>(dialog);
        initial = colors->currentColor();
        colors->setCurrentColor(QColor(0xa6, 0xca, 0xf0));
        colors->accept();
    });
    page.colorButton->click();
    QCOMPARE(initial, QColor(0x10, 0x20, 0x30));
    QCOMPARE(page.text(), QStringLiteral("#a6caf0"));
    QCOMPARE(page.shownColor(), QColor(0xa6, 0xca, 0xf0));
    driver.thenReject();
    page.colorButton->click();
    QCOMPARE(page.text(), QStringLiteral("#a6caf0"));
    QVERIFY(driver.isDone());
}

QTEST_MAIN(TestWallpaperPage)
#include "tst_wallpaperpage.moc"
