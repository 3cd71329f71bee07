#include "app/configdialog.h"
#include "fonts/fontaasettings.h"
#include "platform/qazinit.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/support/temporaryhome.h"

namespace {

/// Shows each page and tab of \a dialog, then its anti-aliasing dialog, and calls \a visit with the name and the
/// widget in view.
template<typename Visitor>
void visitViews(ConfigDialog *dialog, Visitor visit)
{
    const auto visitSettled = [&visit](const QString &name, QWidget *widget) {
        QCoreApplication::sendPostedEvents(); // a page lays itself out again after it was filled
        visit(name, widget);
    };
    auto *list = dialog->findChild<QListWidget *>("contentsWidget"_s);
    const auto *stack = dialog->findChild<SlidingStackedWidget *>();
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        QWidget *page = stack->currentWidget();
        const QString name = QString::fromLatin1(page->metaObject()->className());
        auto *tabs = page->findChild<QTabWidget *>();
        for (int i = 0; i < (tabs ? tabs->count() : 1); ++i) {
            if (tabs)
                tabs->setCurrentIndex(i);
            visitSettled(tabs ? name + u'/' + tabs->widget(i)->objectName() : name, page);
        }
    }
    auto *antiAliasing = dialog->findChild<FontAASettings *>();
    antiAliasing->show();
    visitSettled("FontAASettings"_s, antiAliasing);
    antiAliasing->hide();
}

/// Whether \a label shows a text of the program's; a font's preview shows the font, and names nothing.
bool isTextLabel(const QLabel *label)
{
    return !label->text().isEmpty() && label->objectName() != "previewLabel"_s;
}

/// A control's class and object name, for failures.
QString described(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
}

/// Whether those who can't see \a control learn what it is.
bool hasName(QWidget *control)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
    const QString name = interface->text(QAccessible::Name).trimmed();
    // The name of a combo box is what it shows: it needs a label.
    if (interface->role() == QAccessible::ComboBox)
        return !control->accessibleName().isEmpty() || !interface->relations(QAccessible::Label).isEmpty();
    // Qt lends a control the title of its group, which tells it from no other one there.
    const auto *group = qobject_cast<QGroupBox *>(control->parent());
    return qobject_cast<QTabBar *>(control) || (!name.isEmpty() && !(group && name == group->title()));
}

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

/// What must hold for everything that a user meets: each page, each tab of it, the dialogs, in every language.
class TestViews : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("language"); // and Qt's own "Close" in it
        for (const char *language : {"en Close", "de Schließen", "fr Fermer", "es Cerrar"})
            QTest::newRow(language) << QString::fromUtf8(language);
    }
    void initTestCase() { registerResources(); }

    void init()
    {
        QFETCH_GLOBAL(QString, language);
        QLocale::setDefault(QLocale(language.left(2)));
        qazInit("1", "title");
        m_dialog = std::make_unique<ConfigDialog>(m_home.path("a.themerc"_s));
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        QCOMPARE(m_dialog->buttonBox()->button(QDialogButtonBox::Close)->text().remove(u'&'),
                 language.mid(3));
    }

    void cleanup()
    {
        m_dialog.reset();
        qDeleteAll(qApp->findChildren<QTranslator *>()); // which takes them out of use
    }

    void everyControlHasAName()
    {
        QStringList faulty;
        visitViews(m_dialog.get(), [&](const QString &, QWidget *view) {
            for (QWidget *control : view->window()->findChildren<QWidget *>()) {
                const bool takesTab = (control->focusPolicy() & Qt::TabFocus) != 0 && !control->focusProxy();
                if (takesTab && control->isVisible() && !hasName(control))
                    faulty.append(described(control));
            }
        });
        faulty.removeDuplicates();
        QVERIFY2(faulty.isEmpty(), qPrintable(faulty.join(", "_s)));
    }

    void textsFitAndAcceleratorsDiffer()
    {
        visitViews(m_dialog.get(), [](const QString &name, QWidget *view) {
            QHash<QKeySequence, QString> accelerators;
            const QWidget *window = view->window();
            QVERIFY2(window->width() <= 800 && window->minimumSizeHint().width() <= 800,
                     qPrintable(name + QString::number(window->minimumSizeHint().width())));
            for (const QWidget *widget : window->findChildren<QWidget *>()) {
                if (widget->window() != window || !widget->isVisible())
                    continue;
                QVERIFY2(widget->width() >= neededWidth(widget),
                         qPrintable(name + ": "_s + described(widget)));
                const QString text = labelOf(widget);
                const QKeySequence key = QKeySequence::mnemonic(text);
                QVERIFY2(!accelerators.contains(key),
                         qPrintable(QStringList({name, text, accelerators.value(key)}).join(": "_s)));
                if (!key.isEmpty())
                    accelerators.insert(key, text);
            }
        });
    }

private:
    TemporaryHome m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
};

QTEST_MAIN(TestViews)
#include "tst_views.moc"
