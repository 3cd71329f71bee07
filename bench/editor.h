#pragma once

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

#include "app/configdialog.h"
#include "platform/qazinit.h"
#include "resources/registerresources.h"

/// The editor's window in this process, on a theme file of the (temporary) home, with every page shown once.
class Editor
{
public:
    Editor()
    {
        registerResources();
        qazInit("benchmark", "benchmark");
        m_dialog = std::make_unique<ConfigDialog>(QDir::homePath() + QLatin1String("/bench.themerc"));
        m_dialog->show();
        for (int row = 0; row < pageCount(); ++row)
            showPage(row);
    }

    int pageCount() const { return list()->count(); }
    /// Shows a page and paints it.
    void showPage(int row)
    {
        list()->setCurrentRow(row);
        QCoreApplication::processEvents();
    }
    void setDelay(int minutes)
    {
        m_dialog->findChild<QSpinBox *>(QStringLiteral("minutesToStartSpinBox"))->setValue(minutes);
    }
    void apply() { m_dialog->buttonBox()->button(QDialogButtonBox::Apply)->click(); }

private:
    QListWidget *list() const
    {
        return m_dialog->findChild<QListWidget *>(QString(), Qt::FindDirectChildrenOnly);
    }

    std::unique_ptr<ConfigDialog> m_dialog;
};
