#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "tests/app/controls.h"
#include "tests/support/editorprocess.h"
#include "tests/support/temporaryhome.h"

#include <QAbstractSpinBox>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

/// The program in each of its languages.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void localeChoosesTheCatalogue_data();
    void localeChoosesTheCatalogue();
    void theWindowSpeaksTheLanguage();
    void textsFitAndAcceleratorsDiffer_data();
    void textsFitAndAcceleratorsDiffer();

private:
    std::unique_ptr<TemporaryHome> m_home;
};

namespace {

/// True for what shows a text of a catalogue that its layout must leave room for.
bool showsText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return !label->text().isEmpty() && label->objectName() != QLatin1String("previewLabel");
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return !button->text().isEmpty();
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
           || qobject_cast<const QGroupBox *>(widget);
}

int neededWidth(const QWidget *widget)
{
    const bool isWhole = qobject_cast<const QLabel *>(widget) || qobject_cast<const QComboBox *>(widget);
    return isWhole ? widget->sizeHint().width() : widget->minimumSizeHint().width();
}

/// The text whose accelerator leads to \a widget; empty when it has none of its own.
QString labelOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->buddy() ? label->text() : QString();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    const auto *box = qobject_cast<const QGroupBox *>(widget);
    return box ? box->title() : QString();
}

} // namespace

void TestLanguages::init()
{
    m_home = std::make_unique<TemporaryHome>();
}

void TestLanguages::cleanup()
{
    m_home.reset();
}

void TestLanguages::localeChoosesTheCatalogue_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("languages");
    QTest::addColumn<QString>("line");
    const QString english = QStringLiteral("Usage: qaz-admin-theme themefile - open and edit theme file");
    const QString german = QStringLiteral(
        "Aufruf: qaz-admin-theme Designdatei - Designdatei öffnen und bearbeiten");
    QTest::newRow("C") << QByteArray("C") << QByteArray() << QStringLiteral("Qaz");
    QTest::newRow("C.UTF-8") << QByteArray("C.UTF-8") << QByteArray() << QStringLiteral("Qaz");
    QTest::newRow("no catalogue") << QByteArray("ru_RU.UTF-8") << QByteArray() << QStringLiteral("Qaz");
    QTest::newRow("English") << QByteArray("en_GB.UTF-8") << QByteArray() << english;
    QTest::newRow("Austrian German") << QByteArray("de_AT.UTF-8") << QByteArray() << german;
    QTest::newRow("language before locale") << QByteArray("C.UTF-8") << QByteArray("de:fr") << german;
    QTest::newRow("second choice") << QByteArray("ru_RU.UTF-8") << QByteArray("ru:de") << german;
}

void TestLanguages::localeChoosesTheCatalogue()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, languages);
    QFETCH(QString, line);
    const ScopedEnvironment all("LC_ALL", locale);
    const ScopedEnvironment preferred("LANGUAGE", languages);
    EditorProcess editor({QStringLiteral("--help")});
    QVERIFY(editor.waitForEnd());
    QCOMPARE(QString::fromUtf8(editor.process().readAllStandardOutput()), line + QLatin1Char('\n'));
}

void TestLanguages::theWindowSpeaksTheLanguage()
{
    const ScopedEnvironment preferred("LANGUAGE", "de");
    EditorProcess editor;
    QVERIFY2(editor.waitForWindow(QStringLiteral("Qaz-Designeditor - current.themerc")),
             qPrintable(editor.errors()));
}

void TestLanguages::textsFitAndAcceleratorsDiffer_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("closeText"); // from Qt's own catalogue
    QTest::newRow("English") << QStringLiteral("en") << QStringLiteral("Close");
    QTest::newRow("German") << QStringLiteral("de") << QStringLiteral("Schließen");
    QTest::newRow("French") << QStringLiteral("fr") << QStringLiteral("Fermer");
    QTest::newRow("Spanish") << QStringLiteral("es") << QStringLiteral("Cerrar");
}

void TestLanguages::textsFitAndAcceleratorsDiffer()
{
    QFETCH(QString, language);
    QFETCH(QString, closeText);
    registerResources();
    QLocale::setDefault(QLocale(language));
    qazInit("1", "title");
    {
        ConfigDialog dialog(m_home->path(QStringLiteral("a.themerc")));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QPushButton *close = dialog.buttonBox()->button(QDialogButtonBox::Close);
        QCOMPARE(close->text().remove(QLatin1Char('&')), closeText);
        visitViews(&dialog, [](const View &view) {
            QStringList cutOff;
            QHash<QKeySequence, QString> accelerators;
            const QWidget *window = view.widget->window();
            QVERIFY2(window->width() <= 800 && window->minimumSizeHint().width() <= 800,
                     qPrintable(view.name + QString::number(window->minimumSizeHint().width())));
            const QList<QWidget *> widgets = window->findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                if (widget->window() != window)
                    continue;
                if (widget->isVisible() && showsText(widget) && widget->width() < neededWidth(widget))
                    cutOff.append(described(widget));
                const QString text = labelOf(widget);
                const QKeySequence key = QKeySequence::mnemonic(text);
                if (key.isEmpty() || !widget->isVisible())
                    continue;
                QVERIFY2(!accelerators.contains(key),
                         qPrintable(view.name + QLatin1String(": ") + text + QLatin1String(", ")
                                    + accelerators.value(key)));
                accelerators.insert(key, text);
            }
            QVERIFY2(cutOff.isEmpty(),
                     qPrintable(view.name + QLatin1String(": ") + cutOff.join(QLatin1String(", "))));
        });
    }
    qDeleteAll(qApp->findChildren<QTranslator *>()); // which takes them out of use
    QLocale::setDefault(QLocale::system());
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
