#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

namespace {

QWidget *ordinaryWidget(int number, QWidget *parent)
{
    const QString text = QStringLiteral("Widget %1").arg(number);
    switch (number % 5) {
    case 0:
        return new QLabel(text, parent);
    case 1:
        return new QCheckBox(text, parent);
    case 2:
        return new QSpinBox(parent);
    case 3: {
        auto *combo = new QComboBox(parent);
        combo->addItems({text, text});
        return combo;
    }
    default:
        return new QPushButton(text, parent);
    }
}

QWidget *page(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *layout = new QGridLayout(page);
    for (int number = 0; number < 20; ++number)
        layout->addWidget(ordinaryWidget(number, page), number / 2, number % 2);
    return page;
}

} // namespace

// What any Qt dialog of the editor's shape costs with Qt's defaults: the measure for bench/startup.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDialog dialog;
    auto *list = new QListWidget(&dialog);
    auto *stack = new QStackedWidget(&dialog);
    for (int row = 0; row < 6; ++row) {
        list->addItem(QStringLiteral("Page %1").arg(row + 1));
        stack->addWidget(page(stack));
    }
    QObject::connect(list, &QListWidget::currentRowChanged, stack, &QStackedWidget::setCurrentIndex);
    auto *layout = new QHBoxLayout(&dialog);
    layout->addWidget(list);
    layout->addWidget(stack, 1);
    dialog.resize(800, 600);
    dialog.show();
    return QApplication::exec();
}
