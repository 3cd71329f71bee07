#include "tests/app/dialogtest.h"

#include "fonts/fontaasettings.h"

namespace {

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
    // A font's preview shows the font, and names nothing.
    if (label && (label->text().isEmpty() || label->objectName() == "previewLabel"_s))
        return 0;
    if (label || qobject_cast<const QComboBox *>(widget))
        return widget->sizeHint().width();
    const bool shows = qobject_cast<const QAbstractSpinBox *>(widget) || !labelOf(widget).isEmpty();
    return shows ? widget->minimumSizeHint().width() : 0;
}

} // namespace

/// What must hold for everything that a user meets: each page, each tab of it, the dialogs, in every language.
class TestViews : public DialogTest
{
    Q_OBJECT

private slots:
    void everyViewCanBeReadAndUsed_data()
    {
        QTest::addColumn<QString>("close"); // Qt's own text, in the row's language
        for (const char *row : {"en Close", "de Schließen", "fr Fermer", "es Cerrar"})
            QTest::newRow(row) << QString::fromUtf8(row).mid(3);
    }

    void everyViewCanBeReadAndUsed()
    {
        QFETCH(QString, close);
        QLocale::setDefault(QLocale(QString::fromLatin1(QTest::currentDataTag(), 2)));
        qazInit("1", "title");
        open();
        QCOMPARE(button(QDialogButtonBox::Close)->text().remove(u'&'), close);
        onEachPage([this](QWidget *page) {
            auto *tabs = page->findChild<QTabWidget *>();
            for (int i = 0; i < (tabs ? tabs->count() : 1); ++i) {
                if (tabs)
                    tabs->setCurrentIndex(i);
                verifyView(m_dialog.get());
            }
        });
        auto *antiAliasing = find<FontAASettings>();
        antiAliasing->show();
        verifyView(antiAliasing);
        QCOMPARE(find<QComboBox>("subPixelTypeCombo")->itemText(3),
                 QCoreApplication::translate("FontRendering", "Vertical BGR"));
        QCOMPARE(find<QComboBox>("hintStyleCombo")->itemText(3),
                 QCoreApplication::translate("FontRendering", "Full"));
    }

private:
    static void verifyView(QWidget *window)
    {
        QCoreApplication::sendPostedEvents(); // a page lays itself out again after it was filled
        QVERIFY(window->width() <= 800 && window->minimumSizeHint().width() <= 800);
        QHash<QKeySequence, QString> accelerators;
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            if (widget->window() != window || !widget->isVisible())
                continue;
            const QString name = QLatin1String(widget->metaObject()->className()) + u' '
                                 + widget->objectName();
            const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
            QVERIFY2(!takesTab || hasName(widget), qPrintable(name));
            QVERIFY2(widget->width() >= neededWidth(widget), qPrintable(name));
            const QString text = labelOf(widget);
            const QKeySequence key = QKeySequence::mnemonic(text);
            QVERIFY2(!accelerators.contains(key), qPrintable(text + ": "_s + accelerators.value(key)));
            if (!key.isEmpty())
                accelerators.insert(key, text);
        }
    }
};

QTEST_MAIN(TestViews)
#include "tst_views.moc"
