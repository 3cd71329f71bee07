#include "platform/qazfiledialog.h"

#include "platform/filepreview.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSplitter>

QazFileDialog::QazFileDialog(QWidget *parent, const QString &caption, const QString &location,
                             const QString &filter)
    : QFileDialog(parent, caption, QString(), filter)
{
    // A native dialog of another desktop would know nothing of the sidebar's places.
    setOption(DontUseNativeDialog);
    setFileMode(ExistingFile);
    letTypedPathsCount();
    auto *preview = new FilePreview(findChild<QSplitter *>()); // beside the list
    connect(this, &QFileDialog::currentChanged, preview, &FilePreview::showFile);
    const int wider = width() + preview->sizeHint().width();
    resize(qMin(wider, screen()->availableGeometry().width()), height());
    const QFileInfo info(location);
    if (info.isDir()) {
        setDirectory(location);
    } else if (!location.isEmpty()) {
        setDirectory(info.path());
        selectFile(info.fileName());
        preview->showFile(location);
        // Only the name field holds it: a selected row would join the next name put there, as a second file.
        findChild<QListView *>(QStringLiteral("listView"))->selectionModel()->clearSelection();
    }
}

/// While a path is typed, Qt selects the rows that it passes, and would then take the directory in view for it.
void QazFileDialog::letTypedPathsCount()
{
    auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto *files = findChild<QListView *>(QStringLiteral("listView"));
    connect(name, &QLineEdit::textChanged, files, [name, files](const QString &text) {
        if (!text.contains(QLatin1Char('/')) && files->selectionModel()->selectedRows().size() <= 1)
            return;
        if (name->text() != text) { // a row selected while the field has no focus puts its bare name there
            const QSignalBlocker blocker(name);
            name->setText(text);
        }
        files->selectionModel()->clearSelection();
    });
}

/// Qt reads quotes as marks between several names. A name that holds quotes itself is given by its row.
void QazFileDialog::accept()
{
    const QString name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
    const QFileInfo info(directory(), name);
    if (name.contains(QLatin1Char('"')) && info.isFile()) {
        setDirectory(info.path());
        auto *files = findChild<QListView *>(QStringLiteral("listView"));
        if (const auto *model = qobject_cast<QFileSystemModel *>(files->model()))
            files->selectionModel()->select(model->index(info.filePath()),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    QFileDialog::accept();
}

QString QazFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &location,
                                       const QString &filter)
{
    QazFileDialog dialog(parent, caption, location, filter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
