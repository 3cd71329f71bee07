#include "platform/qazfiledialog.h"

#include <QFileInfo>
#include <QListView>

QazFileDialog::QazFileDialog(QWidget *parent, const QString &caption, const QString &location,
                             const QString &filter)
    : QFileDialog(parent, caption, QString(), filter)
{
    // A native dialog of another desktop would know nothing of the sidebar's places.
    setOption(DontUseNativeDialog);
    setFileMode(ExistingFile);
    const QFileInfo info(location);
    if (info.isDir()) {
        setDirectory(location);
    } else if (!location.isEmpty()) {
        setDirectory(info.path());
        selectFile(info.fileName());
        // Only the name field holds it: a selected row would join the next name put there, as a second file.
        if (const auto *files = findChild<QListView *>(QStringLiteral("listView")))
            files->selectionModel()->clearSelection();
    }
}

QString QazFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &location,
                                       const QString &filter)
{
    QazFileDialog dialog(parent, caption, location, filter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
