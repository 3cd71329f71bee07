#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "tests/app/controls.h"
#include "tests/support/editorprocess.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QtTest>

namespace {

/// The text whose accelerator leads to \a widget; empty when it has none of its own.
QString labelOf(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && !label->buddy())
        return {};
    return widget->property(label || qobject_cast<const QAbstractButton *>(widget) ? "text" : "title")
        .toString();
}

/// The width that \a widget takes with its texts of a catalogue; 0 when it shows none.
int neededWidth(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (qobject_cast<const QComboBox *>(widget) || (label && isTextLabel(label)))
        return widget->sizeHint().width();
    const bool shows = qobject_cast<const QAbstractSpinBox *>(widget)
                       || (!label && !labelOf(widget).isEmpty());
    return shows ? widget->minimumSizeHint().width() : 0;
}

} // namespace

/// The program in each of its languages.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void localeChoosesTheCatalogue()
    {
        const QByteArray german("Aufruf: qaz-admin-theme Designdatei - Designdatei öffnen und bearbeiten\n");
        const QByteArray english("Usage: qaz-admin-theme themefile - open and edit theme file\n");
        const struct {
            const char *locale;
            const char *languages;
            QByteArray line;
        } rows[] = {{"C", "", "Qaz\n"},           {"ru_RU.UTF-8", "", "Qaz\n"},
                    {"en_GB.UTF-8", "", english}, {"de_AT.UTF-8", "", german},
                    {"C.UTF-8", "de:fr", german}, {"ru_RU.UTF-8", "ru:de", german}};
        for (const auto &row : rows) {
            const ScopedEnvironment all("LC_ALL", row.locale);
            const ScopedEnvironment preferred("LANGUAGE", row.languages);
            EditorProcess editor({"--help"_s});
            QCOMPARE(editor.exitCode(), 1);
            QCOMPARE(editor.process().readAllStandardOutput(), row.line);
        }
    }

    void theWindowSpeaksTheLanguage()
    {
        const ScopedEnvironment preferred("LANGUAGE", "de");
        EditorProcess editor;
        QVERIFY2(editor.waitForWindow("Qaz-Designeditor - current.themerc"_s), qPrintable(editor.errors()));
    }

    void textsFitAndAcceleratorsDiffer_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("closeText"); // from Qt's own catalogue
        QTest::newRow("English") << "en"_s
                                 << "Close"_s;
        QTest::newRow("German") << "de"_s
                                << "Schließen"_s;
        QTest::newRow("French") << "fr"_s
                                << "Fermer"_s;
        QTest::newRow("Spanish") << "es"_s
                                 << "Cerrar"_s;
    }
    void textsFitAndAcceleratorsDiffer()
    {
        QFETCH(QString, language);
        QFETCH(QString, closeText);
        registerResources();
        QLocale::setDefault(QLocale(language));
        qazInit("1", "title");
        {
            ConfigDialog dialog(m_home.path("a.themerc"_s));
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            const QPushButton *close = dialog.buttonBox()->button(QDialogButtonBox::Close);
            QCOMPARE(close->text().remove(u'&'), closeText);
            visitViews(&dialog, [](const View &view) {
                QHash<QKeySequence, QString> accelerators;
                const QWidget *window = view.widget->window();
                QVERIFY2(window->width() <= 800 && window->minimumSizeHint().width() <= 800,
                         qPrintable(view.name + QString::number(window->minimumSizeHint().width())));
                const QList<QWidget *> widgets = window->findChildren<QWidget *>();
                for (const QWidget *widget : widgets) {
                    if (widget->window() != window || !widget->isVisible())
                        continue;
                    QVERIFY2(widget->width() >= neededWidth(widget),
                             qPrintable(view.name + ": "_s + described(widget)));
                    const QString text = labelOf(widget);
                    const QKeySequence key = QKeySequence::mnemonic(text);
                    QVERIFY2(
                        !accelerators.contains(key),
                        qPrintable(QStringList({view.name, text, accelerators.value(key)}).join(": "_s)));
                    if (!key.isEmpty())
                        accelerators.insert(key, text);
                }
            });
        }
        qDeleteAll(qApp->findChildren<QTranslator *>()); // which takes them out of use
        QLocale::setDefault(QLocale::system());
    }

private:
    TemporaryHome m_home;
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
